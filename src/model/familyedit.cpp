#include "model/familyedit.h"

#include <utility>

namespace tarq {
namespace {

/// Positions from `first` to before `end`.
struct PositionRange {
    std::int32_t first = 0;
    std::int32_t end = 0;
};

template <class FamilyOf>
PositionRange findMembers(std::int32_t count, const IUnknown* family, FamilyOf familyOf) {
    if (family == nullptr) return {};
    PositionRange members;
    while (members.first < count && familyOf(members.first) != family) ++members.first;
    members.end = members.first;
    while (members.end < count && familyOf(members.end) == family) ++members.end;
    return members;
}

PositionRange findColumns(const ModelStore& store, const IUnknown* family) {
    return findMembers(store.columnCount(), family,
                       [&](std::int32_t position) { return store.column(position).family; });
}

PositionRange findRows(const ModelStore& store, const IUnknown* family) {
    return findMembers(store.rowCount(), family, [&](std::int32_t position) { return store.row(position).family; });
}

}  // namespace

Outcome addFamilyColumn(ModelStore& store, const std::string& name, IUnknown* family) {
    ColumnRecord column;
    column.name = name;
    column.upperBound = store.infinity();
    column.family = family;
    return store.addColumnRecord(std::move(column));
}

Outcome addFamilyRow(ModelStore& store, const std::string& name, IUnknown* family) {
    RowRecord row;
    row.name = name;
    row.upperBound = store.infinity();
    row.family = family;
    return store.addRowRecord(std::move(row));
}

Outcome getFamilyColumnStart(const ModelStore& store, const IUnknown* family, std::int32_t& number) {
    const PositionRange members = findColumns(store, family);
    if (members.first == members.end) return {status::wrongState, "TARQVarSet is not part of the model"};
    number = members.first + 1;
    return {};
}

Outcome getFamilyRowStart(const ModelStore& store, const IUnknown* family, std::int32_t& number) {
    const PositionRange members = findRows(store, family);
    if (members.first == members.end) return Status(1);
    number = members.first + 1;
    return {};
}

void clearFamilyColumns(ModelStore& store, const IUnknown* family) {
    const PositionRange members = findColumns(store, family);
    store.removeColumns(members.first + 1, members.end);
}

void clearFamilyRows(ModelStore& store, const IUnknown* family) {
    const PositionRange members = findRows(store, family);
    store.removeRows(members.first + 1, members.end);
}

}  // namespace tarq
