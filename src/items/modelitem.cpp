#include "items/modelitem.h"

#include <utility>

#include "frame/result.h"
#include "frame/text.h"

namespace tarq {
namespace {

constexpr std::size_t longestName = 64;

Outcome noModel() { return {status::wrongClass, "First parameter is no TARQModel object."}; }
Outcome boundOrderFailure() { return {status::boundOrder, "Lower bound is greater than upper bound."}; }

Status changeColumnBounds(ITARQModel& model, std::int32_t position, const double* lower, const double* upper) {
    return model._ChangeCol(position, lower, upper, nullptr, nullptr, nullptr);
}

Status changeRowBounds(ITARQModel& model, std::int32_t position, const double* lower, const double* upper) {
    return model._ChangeRow(position, lower, upper, nullptr);
}

/// A value of the solution, 0 where the model doesn't tell one.
template <class Value>
Value solutionValue(ITARQModel& model, ItemSide::Getter<Value> getter, const Variant& address) {
    Value value{};
    return contained([&] { return (model.*getter)(address, &value); }).isOk() ? value : Value{};
}

}  // namespace

const ItemSide columnSide{
    .number = &ITARQModel::get_ColIndex,
    .lowerBound = &ITARQModel::get_ColLB,
    .upperBound = &ITARQModel::get_ColUB,
    .lpValue = &ITARQModel::get_ColLPSol,
    .ipValue = &ITARQModel::get_ColIPSol,
    .price = &ITARQModel::get_ColRedCost,
    .status = &ITARQModel::get_ColStatus,
    .name = &ITARQModel::get_ColName,
    .rename = &ITARQModel::put_ColName,
    .count = &ITARQModel::get_NumberOfCols,
    .changeBounds = &changeColumnBounds,
    .noNumber = "TARQVar object is not attached to a model.",
    .noNewNumber = "TARQVar is not attached to a model.",
    .numberTooLarge = "Index is greater than number of columns in model.",
};

const ItemSide rowSide{
    .number = &ITARQModel::get_RowIndex,
    .lowerBound = &ITARQModel::get_RowLHS,
    .upperBound = &ITARQModel::get_RowRHS,
    .lpValue = &ITARQModel::get_RowLPSol,
    .ipValue = &ITARQModel::get_RowIPSol,
    .price = &ITARQModel::get_RowDual,
    .status = &ITARQModel::get_RowStatus,
    .name = &ITARQModel::get_RowName,
    .rename = &ITARQModel::put_RowName,
    .count = &ITARQModel::get_NumberOfRows,
    .changeBounds = &changeRowBounds,
    .noNumber = "No model attached.",
    .noNewNumber = "TARQRes is not attached to a model.",
    .numberTooLarge = "Index is greater than number of rows in model.",
};

Outcome ModelItem::attach(IUnknown* model, const Variant& address) {
    Ref<ITARQModel> asked = Ref<IUnknown>(model).query<ITARQModel>();
    if (!asked) return noModel();
    std::int32_t number = modelIndex_;
    TARQ_TRY((asked.get()->*side_.number)(address, &number));
    model_ = std::move(asked);
    modelIndex_ = number;
    return {};
}

Outcome ModelItem::point(IUnknown* model, std::int32_t number) {
    Ref<ITARQModel> asked = Ref<IUnknown>(model).query<ITARQModel>();
    if (model != nullptr && !asked) return noModel();
    modelIndex_ = number;
    model_ = std::move(asked);
    return {};
}

void ModelItem::detach() noexcept {
    const Ref<ITARQModel> model = model_;
    const Variant address = this->address();
    (void)contained([&] { return (model.get()->*side_.lowerBound)(address, &lowerBound_); });
    (void)contained([&] { return (model.get()->*side_.upperBound)(address, &upperBound_); });
    std::string name;
    (void)contained([&] { return (model.get()->*side_.name)(modelIndex_, &name); });
    name_ = std::move(name);
    lpValue_ = solutionValue(*model, side_.lpValue, address);
    ipValue_ = solutionValue(*model, side_.ipValue, address);
    price_ = solutionValue(*model, side_.price, address);
    status_ = solutionValue(*model, side_.status, address);
    model_ = nullptr;
}

Outcome ModelItem::getNumber(std::int32_t& number) const {
    number = isAttached() ? modelIndex_ : 0;
    return isAttached() ? Outcome() : Outcome(status::wrongState, side_.noNumber);
}

Outcome ModelItem::putNumber(std::int32_t number) {
    if (!isAttached()) return {status::wrongState, side_.noNewNumber};
    const Ref<ITARQModel> model = model_;
    std::int32_t count = 0;
    TARQ_TRY((model.get()->*side_.count)(&count));
    if (number < 1) return {status::indexOutOfRange, "Index may not be less than 1."};
    if (number > count) return {status::indexOutOfRange, side_.numberTooLarge};
    modelIndex_ = number;
    return {};
}

Outcome ModelItem::getName(std::string& name) const {
    if (!isAttached()) {
        name = name_;
        return {};
    }
    const Ref<ITARQModel> model = model_;
    return (model.get()->*side_.name)(modelIndex_, &name);
}

Outcome ModelItem::putName(const std::string& name) {
    if (isAttached()) {
        const Ref<ITARQModel> model = model_;
        return (model.get()->*side_.rename)(modelIndex_, name);
    }
    if (utf16Length(name) > longestName) return {status::textTooLong, "Passed string is to long."};
    name_ = name;
    return {};
}

Outcome ModelItem::putLowerBound(double bound) {
    if (isAttached()) return changeBounds(&bound, nullptr);
    if (bound > upperBound_) return boundOrderFailure();
    lowerBound_ = bound;
    return {};
}

Outcome ModelItem::putUpperBound(double bound) {
    if (isAttached()) return changeBounds(nullptr, &bound);
    if (bound < lowerBound_) return boundOrderFailure();
    upperBound_ = bound;
    return {};
}

Outcome ModelItem::putBounds(double lower, double upper) {
    if (isAttached()) return changeBounds(&lower, &upper);
    lowerBound_ = lower;
    upperBound_ = upper;
    return {};
}

Status ModelItem::changeBounds(const double* lower, const double* upper) const {
    return change(
        [&](ITARQModel& model, std::int32_t position) { return side_.changeBounds(model, position, lower, upper); });
}

}  // namespace tarq
