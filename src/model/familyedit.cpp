#include "model/familyedit.h"

#include <utility>

namespace tarq {
namespace {

/// Position behind the members that stand together from `first` on.
template <class FamilyOf>
std::int32_t endOfMembers(std::int32_t first, std::int32_t count, const FamilyOf& familyOf) {
    std::int32_t end = first + 1;
    while (end < count && familyOf(end) == familyOf(first)) ++end;
    return end;
}

}  // namespace

Outcome addFamilyColumn(ModelStore& store, const std::string& name, IUnknown* family) {
    ColumnRecord column;
    column.name = name;
    column.upperBound = store.infinity();
    column.family = FamilyMark::of(family);
    return store.addColumnRecord(std::move(column));
}

Outcome addFamilyRow(ModelStore& store, const std::string& name, IUnknown* family) {
    RowRecord row;
    row.name = name;
    row.upperBound = store.infinity();
    row.family = FamilyMark::of(family);
    return store.addRowRecord(std::move(row));
}

Outcome getFamilyColumnStart(const ModelStore& store, IUnknown* family, std::int32_t& number) {
    const std::int32_t first = store.findFamilyColumn(FamilyMark::of(family));
    if (first < 0) return {status::wrongState, "TARQVarSet is not part of the model"};
    number = first + 1;
    return {};
}

Outcome getFamilyRowStart(const ModelStore& store, IUnknown* family, std::int32_t& number) {
    const std::int32_t first = store.findFamilyRow(FamilyMark::of(family));
    if (first < 0) return status::none;
    number = first + 1;
    return {};
}

void clearFamilyColumns(ModelStore& store, IUnknown* family) {
    const std::int32_t first = store.findFamilyColumn(FamilyMark::of(family));
    if (first < 0) return;
    const auto familyOf = [&](std::int32_t position) { return store.column(position).family; };
    store.removeColumns(first + 1, endOfMembers(first, store.columnCount(), familyOf));
}

void clearFamilyRows(ModelStore& store, IUnknown* family) {
    const std::int32_t first = store.findFamilyRow(FamilyMark::of(family));
    if (first < 0) return;
    const auto familyOf = [&](std::int32_t position) { return store.row(position).family; };
    store.removeRows(first + 1, endOfMembers(first, store.rowCount(), familyOf));
}

}  // namespace tarq
