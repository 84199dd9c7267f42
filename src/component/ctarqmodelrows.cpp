// CTARQModel: rows and their properties.
#include "component/ctarqmodel.h"
#include "frame/memberguard.h"
#include "model/modeledit.h"

namespace tarq {

// NOLINTBEGIN(bugprone-reserved-identifier)
Status CTARQModel::AddRow(double LB, double UB, const Variant& Name) {
    return guarded(classid::TARQModel, [&] { return addRow(store_, LB, UB, Name); });
}

Status CTARQModel::DelRow(const Variant& Row) {
    return guarded(classid::TARQModel, [&] { return deleteRow(store_, Row); });
}

Status CTARQModel::_ChangeRow(std::int32_t lIndex0, const double* pdLB, const double* pdUB,
                              const std::string* pbsName) {
    const RowChange change{.lowerBound = pdLB, .upperBound = pdUB, .name = pbsName};
    return guarded(classid::TARQModel, [&] { return changeRow(store_, lIndex0, change); });
}

Status CTARQModel::get_NumberOfRows(std::int32_t* value) {
    return guardedGet(value, [&] { return store_.rowCount(); });
}

Status CTARQModel::get_RowName(std::int32_t Index, std::string* value) {
    if (value == nullptr) return status::nullPointer;
    return guarded(classid::TARQModel, [&] { return getRowName(store_, Index, *value); });
}

Status CTARQModel::put_RowName(std::int32_t Index, const std::string& value) {
    return guarded(classid::TARQModel, [&] { return putRowName(store_, Index, value); });
}

Status CTARQModel::get_RowIndex(const Variant& Row, std::int32_t* value) {
    if (value == nullptr) return status::nullPointer;
    return guarded(classid::TARQModel, [&] { return getRowIndex(store_, Row, *value); });
}

Status CTARQModel::get_RowLHS(const Variant& Row, double* value) {
    if (value == nullptr) return status::nullPointer;
    return guarded(classid::TARQModel, [&] { return getRowLowerBound(store_, Row, *value); });
}

Status CTARQModel::put_RowLHS(const Variant& Row, double value) {
    return guarded(classid::TARQModel, [&] { return putRowLowerBound(store_, Row, value); });
}

Status CTARQModel::get_RowRHS(const Variant& Row, double* value) {
    if (value == nullptr) return status::nullPointer;
    return guarded(classid::TARQModel, [&] { return getRowUpperBound(store_, Row, *value); });
}

Status CTARQModel::put_RowRHS(const Variant& Row, double value) {
    return guarded(classid::TARQModel, [&] { return putRowUpperBound(store_, Row, value); });
}
// NOLINTEND(bugprone-reserved-identifier)

}  // namespace tarq
