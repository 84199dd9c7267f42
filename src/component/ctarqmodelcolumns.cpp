// CTARQModel: columns and their properties.
#include "component/ctarqmodel.h"
#include "frame/memberguard.h"
#include "model/modeledit.h"

namespace tarq {

// NOLINTBEGIN(bugprone-reserved-identifier)
Status CTARQModel::AddCol(double LB, double UB, TARQColType Type, const Variant& Cost, const Variant& Name) {
    return guarded(classid::TARQModel, [&] { return addColumn(store_, LB, UB, Type, Cost, Name); });
}

Status CTARQModel::DelCol(const Variant& Col) {
    return guarded(classid::TARQModel, [&] { return deleteColumn(store_, Col); });
}

Status CTARQModel::_ChangeCol(std::int32_t lIndex0, const double* pdLB, const double* pdUB, const TARQColType* peType,
                              const double* pdCost, const std::string* pbsName) {
    const ColumnChange change{.lowerBound = pdLB, .upperBound = pdUB, .type = peType, .cost = pdCost, .name = pbsName};
    return guarded(classid::TARQModel, [&] { return changeColumn(store_, lIndex0, change); });
}

Status CTARQModel::get_NumberOfCols(std::int32_t* value) {
    return guardedGet(value, [&] { return store_.columnCount(); });
}

Status CTARQModel::get_IsIPModel(std::int32_t* value) {
    return guardedGet(value, [&] { return store_.hasIntegerColumn() ? 1 : 0; });
}

Status CTARQModel::get_ColName(std::int32_t Index, std::string* value) {
    if (value == nullptr) return status::nullPointer;
    return guarded(classid::TARQModel, [&] { return getColumnName(store_, Index, *value); });
}

Status CTARQModel::put_ColName(std::int32_t Index, const std::string& value) {
    return guarded(classid::TARQModel, [&] { return putColumnName(store_, Index, value); });
}

Status CTARQModel::get_ColIndex(const Variant& Col, std::int32_t* value) {
    if (value == nullptr) return status::nullPointer;
    return guarded(classid::TARQModel, [&] { return getColumnIndex(store_, Col, *value); });
}

Status CTARQModel::get_ColCost(const Variant& Col, double* value) {
    if (value == nullptr) return status::nullPointer;
    return guarded(classid::TARQModel, [&] { return getColumnCost(store_, Col, *value); });
}

Status CTARQModel::put_ColCost(const Variant& Col, double value) {
    return guarded(classid::TARQModel, [&] { return putColumnCost(store_, Col, value); });
}

Status CTARQModel::get_ColLB(const Variant& Col, double* value) {
    if (value == nullptr) return status::nullPointer;
    return guarded(classid::TARQModel, [&] { return getColumnLowerBound(store_, Col, *value); });
}

Status CTARQModel::put_ColLB(const Variant& Col, double value) {
    return guarded(classid::TARQModel, [&] { return putColumnLowerBound(store_, Col, value); });
}

Status CTARQModel::get_ColUB(const Variant& Col, double* value) {
    if (value == nullptr) return status::nullPointer;
    return guarded(classid::TARQModel, [&] { return getColumnUpperBound(store_, Col, *value); });
}

Status CTARQModel::put_ColUB(const Variant& Col, double value) {
    return guarded(classid::TARQModel, [&] { return putColumnUpperBound(store_, Col, value); });
}

Status CTARQModel::get_ColType(const Variant& Col, TARQColType* value) {
    if (value == nullptr) return status::nullPointer;
    return guarded(classid::TARQModel, [&] { return getColumnType(store_, Col, *value); });
}

Status CTARQModel::put_ColType(const Variant& Col, TARQColType value) {
    return guarded(classid::TARQModel, [&] { return putColumnType(store_, Col, value); });
}
// NOLINTEND(bugprone-reserved-identifier)

}  // namespace tarq
