// CTARQModel: members that take lists of columns and rows.
#include "component/bulknonzeros.h"
#include "component/ctarqmodel.h"
#include "component/objectivesum.h"

namespace tarq {

Status CTARQModel::AddObjSum(const ValueList& CoeffsAndCols) {
    return guarded([&] { return assignCosts(store_, CoeffsAndCols); });
}

Status CTARQModel::get_NZs(const Variant& RowIndices, const Variant& ColIndices, Variant* value) {
    if (value == nullptr) return status::nullPointer;
    return guarded([&] { return getNonzeros(store_, RowIndices, ColIndices, *value); });
}

Status CTARQModel::put_NZs(const Variant& RowIndices, const Variant& ColIndices, const Variant& value) {
    return guarded([&] { return putNonzeros(store_, RowIndices, ColIndices, value); });
}

Status CTARQModel::SetNZStair(const Variant& RowIndices, const Variant& ColIndices, const Variant& Nonzeros) {
    return guarded([&] { return setNonzeroStair(store_, RowIndices, ColIndices, Nonzeros); });
}

}  // namespace tarq
