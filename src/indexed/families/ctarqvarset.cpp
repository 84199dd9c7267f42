#include "indexed/families/ctarqvarset.h"

namespace tarq {
namespace {

Status changeCost(ITARQModel& model, std::int32_t position, const Variant& value) {
    const double cost = value.real();
    return model._ChangeCol(position, nullptr, nullptr, nullptr, &cost, nullptr);
}

Status changeType(ITARQModel& model, std::int32_t position, const Variant& value) {
    // The model refuses what is no type.
    const auto type = static_cast<TARQColType>(value.integer());
    return model._ChangeCol(position, nullptr, nullptr, &type, nullptr, nullptr);
}

}  // namespace

Status CTARQVarSet::get_Cost(const Variant& Index1, const Variant& Index2, const Variant& Index3, const Variant& Index4,
                             const Variant& Index5, Variant* value) {
    return read(&ITARQModel::get_ColCost, {&Index1, &Index2, &Index3, &Index4, &Index5}, value);
}

Status CTARQVarSet::put_Cost(const Variant& Index1, const Variant& Index2, const Variant& Index3, const Variant& Index4,
                             const Variant& Index5, const Variant& value) {
    return write(&changeCost, {&Index1, &Index2, &Index3, &Index4, &Index5}, value);
}

Status CTARQVarSet::get_Type(const Variant& Index1, const Variant& Index2, const Variant& Index3, const Variant& Index4,
                             const Variant& Index5, Variant* value) {
    return read(&ITARQModel::get_ColType, {&Index1, &Index2, &Index3, &Index4, &Index5}, value);
}

Status CTARQVarSet::put_Type(const Variant& Index1, const Variant& Index2, const Variant& Index3, const Variant& Index4,
                             const Variant& Index5, const Variant& value) {
    return write(&changeType, {&Index1, &Index2, &Index3, &Index4, &Index5}, value, Kind::Long);
}

Status CTARQVarSet::get_RedCost(const Variant& Index1, const Variant& Index2, const Variant& Index3,
                                const Variant& Index4, const Variant& Index5, Variant* value) {
    return read(&ITARQModel::get_ColRedCost, {&Index1, &Index2, &Index3, &Index4, &Index5}, value);
}

Status CTARQVarSet::get_VarName(std::int32_t Index, std::string* value) {
    if (value == nullptr) return status::nullPointer;
    return guarded(columnFamilies.classId, [&] { return family_.memberName(Index, *value); });
}

}  // namespace tarq
