// CTARQModel: rows and their properties.
#include "component/ctarqmodel.h"
#include "model/modeledit.h"

namespace tarq {

// NOLINTBEGIN(bugprone-reserved-identifier)
Status CTARQModel::AddRow(double LB, double UB, const Variant& Name) {
    return guarded([&] { return addRow(store_, LB, UB, Name); });
}

Status CTARQModel::DelRow(const Variant& Row) {
    return guarded([&] { return deleteItem<RowRecord>(store_, Row); });
}

Status CTARQModel::_ChangeRow(std::int32_t lIndex0, const double* pdLB, const double* pdUB,
                              const std::string* pbsName) {
    const ItemChange change{.lowerBound = pdLB, .upperBound = pdUB, .name = pbsName};
    return guarded([&] { return changeItem<RowRecord>(store_, lIndex0, change); });
}

Status CTARQModel::get_NumberOfRows(std::int32_t* value) {
    return guardedGet(value, [&] { return store_.rowCount(); });
}

Status CTARQModel::get_RowName(std::int32_t Index, std::string* value) {
    return guardedResult(value, [&] { return getItemName<RowRecord>(store_, Index); });
}

Status CTARQModel::put_RowName(std::int32_t Index, const std::string& value) {
    return guarded([&] { return putItemName<RowRecord>(store_, Index, value); });
}

Status CTARQModel::get_RowIndex(const Variant& Row, std::int32_t* value) {
    return guardedResult(value, [&] { return getItemNumber<RowRecord>(store_, Row); });
}

Status CTARQModel::get_RowLHS(const Variant& Row, double* value) {
    return guardedResult(value, [&] { return getField(store_, Row, &RowRecord::lowerBound); });
}

Status CTARQModel::put_RowLHS(const Variant& Row, double value) {
    return guarded([&] { return putLowerBound<RowRecord>(store_, Row, value); });
}

Status CTARQModel::get_RowRHS(const Variant& Row, double* value) {
    return guardedResult(value, [&] { return getField(store_, Row, &RowRecord::upperBound); });
}

Status CTARQModel::put_RowRHS(const Variant& Row, double value) {
    return guarded([&] { return putUpperBound<RowRecord>(store_, Row, value); });
}
// NOLINTEND(bugprone-reserved-identifier)

}  // namespace tarq
