#include "model/rowedit.h"

#include <utility>

#include "frame/result.h"
#include "model/addressing.h"
#include "model/editchecks.h"

namespace tarq {
namespace {

constexpr NameArgumentTexts nameTexts{"Row name is of wrong variant type", "Row name is too long.", status::badRowName};

Outcome readField(const ModelStore& store, const Variant& row, double RowRecord::*field, double& value) {
    std::int32_t position = 0;
    TARQ_TRY(resolveRow(store, row, position));
    value = store.row(position).*field;
    return {};
}

}  // namespace

Outcome addRow(ModelStore& store, double lowerBound, double upperBound, const Variant& name) {
    if (upperBound < lowerBound) return boundOrderFailure();
    RowRecord row;
    row.lowerBound = store.clampToInfinity(lowerBound);
    row.upperBound = store.clampToInfinity(upperBound);
    TARQ_TRY(readNameArgument(name, nameTexts, row.name));
    // Clients know this text without the name, unlike the one for columns.
    if (store.addRowRecord(std::move(row)).isOk()) return {};
    return {status::badRowName, "Duplicate row name."};
}

Outcome deleteRow(ModelStore& store, const Variant& row) {
    std::int32_t position = 0;
    TARQ_TRY(resolveRow(store, row, position));
    if (store.row(position).family != nullptr) {
        return {status::invalidArgument, "Row is part of a TARQResSet and cannot be deleted."};
    }
    store.removeRows(position + 1, position + 1);
    return {};
}

Outcome changeRow(ModelStore& store, std::int32_t position, const RowChange& change) {
    if (position < 0 || position >= store.rowCount()) return indexRangeFailure();
    const auto held = store.gate().edit();
    if (change.lowerBound != nullptr || change.upperBound != nullptr) {
        Outcome outcome = changeBounds(store, store.row(position), change.lowerBound, change.upperBound);
        if (!outcome.isOk()) return outcome;
    }
    return change.name != nullptr ? store.renameRow(position, *change.name) : Outcome();
}

Outcome getRowName(const ModelStore& store, std::int32_t number, std::string& name) {
    if (number < 1 || number > store.rowCount()) return indexRangeFailure();
    name = store.row(number - 1).name;
    return {};
}

Outcome putRowName(ModelStore& store, std::int32_t number, const std::string& name) {
    if (number < 1 || number > store.rowCount()) return indexRangeFailure();
    if (store.row(number - 1).family != nullptr) {
        return {status::invalidArgument, "Name could not be changed, because specified row is part of a TARQResSet."};
    }
    return store.renameRow(number - 1, name);
}

Outcome getRowIndex(const ModelStore& store, const Variant& row, std::int32_t& number) {
    std::int32_t position = 0;
    TARQ_TRY(resolveRow(store, row, position));
    number = position + 1;
    return {};
}

Outcome getRowLowerBound(const ModelStore& store, const Variant& row, double& bound) {
    return readField(store, row, &RowRecord::lowerBound, bound);
}

Outcome putRowLowerBound(ModelStore& store, const Variant& row, double bound) {
    std::int32_t position = 0;
    TARQ_TRY(resolveRow(store, row, position));
    const auto held = store.gate().edit();
    return putLowerBound(store, store.row(position), bound);
}

Outcome getRowUpperBound(const ModelStore& store, const Variant& row, double& bound) {
    return readField(store, row, &RowRecord::upperBound, bound);
}

Outcome putRowUpperBound(ModelStore& store, const Variant& row, double bound) {
    std::int32_t position = 0;
    TARQ_TRY(resolveRow(store, row, position));
    const auto held = store.gate().edit();
    return putUpperBound(store, store.row(position), bound);
}

}  // namespace tarq
