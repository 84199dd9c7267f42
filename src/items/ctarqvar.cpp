#include "items/ctarqvar.h"

namespace tarq {
namespace {

Status refuse(const char* description) {
    return guarded(classid::TARQVar, [&] { return Outcome(status::invalidArgument, description); });
}

}  // namespace

Status CTARQVar::Detach() {
    // Where it is detached already these stay as they are.
    (void)item_.read(&ITARQModel::get_ColCost, cost_, &cost_);
    (void)item_.read(&ITARQModel::get_ColType, type_, &type_);
    return ItemObject::Detach();
}

Status CTARQVar::put_LB(double value) {
    if (isDetachedBinary() && value != 0.0) return refuse("Columns of type 'Binary' must have LB=0.");
    return ItemObject::put_LB(value);
}

Status CTARQVar::put_UB(double value) {
    if (isDetachedBinary() && value != 1.0) return refuse("Columns of type 'Binary' must have UB=1.");
    return ItemObject::put_UB(value);
}

Status CTARQVar::get_Cost(double* value) { return item_.read(&ITARQModel::get_ColCost, cost_, value); }

Status CTARQVar::put_Cost(double value) {
    if (item_.isAttached()) {
        return item_.change([&](ITARQModel& model, std::int32_t position) {
            return model._ChangeCol(position, nullptr, nullptr, nullptr, &value, nullptr);
        });
    }
    cost_ = value;
    return status::ok;
}

Status CTARQVar::get_Type(TARQColType* value) { return item_.read(&ITARQModel::get_ColType, type_, value); }

Status CTARQVar::put_Type(TARQColType value) {
    if (item_.isAttached()) {
        return item_.change([&](ITARQModel& model, std::int32_t position) {
            return model._ChangeCol(position, nullptr, nullptr, &value, nullptr, nullptr);
        });
    }
    switch (value) {
        case TARQColType::Continuous:
        case TARQColType::Integer:
            type_ = value;
            return status::ok;
        case TARQColType::Binary:
            type_ = value;
            return guarded(classid::TARQVar, [&] { return item_.putBounds(0.0, 1.0); });
    }
    return refuse("Bad column type.");
}

}  // namespace tarq
