// CTARQModel: columns and their properties.
#include "component/ctarqmodel.h"
#include "model/modeledit.h"

namespace tarq {

// NOLINTBEGIN(bugprone-reserved-identifier)
Status CTARQModel::AddCol(double LB, double UB, TARQColType Type, const Variant& Cost, const Variant& Name) {
    return guarded([&] { return addColumn(store_, LB, UB, Type, Cost, Name); });
}

Status CTARQModel::DelCol(const Variant& Col) {
    return guarded([&] { return deleteItem<ColumnRecord>(store_, Col); });
}

Status CTARQModel::_ChangeCol(std::int32_t lIndex0, const double* pdLB, const double* pdUB, const TARQColType* peType,
                              const double* pdCost, const std::string* pbsName) {
    const ItemChange change{.lowerBound = pdLB, .upperBound = pdUB, .type = peType, .cost = pdCost, .name = pbsName};
    return guarded([&] { return changeItem<ColumnRecord>(store_, lIndex0, change); });
}

Status CTARQModel::get_NumberOfCols(std::int32_t* value) {
    return guardedGet(value, [&] { return store_.columnCount(); });
}

Status CTARQModel::get_IsIPModel(std::int32_t* value) {
    return guardedGet(value, [&] { return store_.hasIntegerColumn() ? 1 : 0; });
}

Status CTARQModel::get_ColName(std::int32_t Index, std::string* value) {
    return guardedResult(value, [&] { return getItemName<ColumnRecord>(store_, Index); });
}

Status CTARQModel::put_ColName(std::int32_t Index, const std::string& value) {
    return guarded([&] { return putItemName<ColumnRecord>(store_, Index, value); });
}

Status CTARQModel::get_ColIndex(const Variant& Col, std::int32_t* value) {
    return guardedResult(value, [&] { return getItemNumber<ColumnRecord>(store_, Col); });
}

Status CTARQModel::get_ColCost(const Variant& Col, double* value) {
    return guardedResult(value, [&] { return getField(store_, Col, &ColumnRecord::cost); });
}

Status CTARQModel::put_ColCost(const Variant& Col, double value) {
    return guarded([&] { return putColumnCost(store_, Col, value); });
}

Status CTARQModel::get_ColLB(const Variant& Col, double* value) {
    return guardedResult(value, [&] { return getField(store_, Col, &ColumnRecord::lowerBound); });
}

Status CTARQModel::put_ColLB(const Variant& Col, double value) {
    return guarded([&] { return putLowerBound<ColumnRecord>(store_, Col, value); });
}

Status CTARQModel::get_ColUB(const Variant& Col, double* value) {
    return guardedResult(value, [&] { return getField(store_, Col, &ColumnRecord::upperBound); });
}

Status CTARQModel::put_ColUB(const Variant& Col, double value) {
    return guarded([&] { return putUpperBound<ColumnRecord>(store_, Col, value); });
}

Status CTARQModel::get_ColType(const Variant& Col, TARQColType* value) {
    return guardedResult(value, [&] { return getField(store_, Col, &ColumnRecord::type); });
}

Status CTARQModel::put_ColType(const Variant& Col, TARQColType value) {
    return guarded([&] { return putColumnType(store_, Col, value); });
}
// NOLINTEND(bugprone-reserved-identifier)

}  // namespace tarq
