#include "model/nonzeroedit.h"

#include <cstdint>

#include "frame/result.h"
#include "model/addressing.h"

namespace tarq {
namespace {

struct Place {
    std::int32_t columnNumber = 0;
    std::int32_t rowNumber = 0;
};

Result<Place> resolvePlace(const ModelStore& store, const Variant& column, const Variant& row) {
    TARQ_ASSIGN(const std::int32_t columnPosition, resolve<ColumnRecord>(store, column));
    TARQ_ASSIGN(const std::int32_t rowPosition, resolve<RowRecord>(store, row));
    return Place{columnPosition + 1, rowPosition + 1};
}

}  // namespace

Outcome addNonzero(ModelStore& store, const Variant& row, const Variant& column, double delta) {
    TARQ_ASSIGN(const Place place, resolvePlace(store, column, row));
    store.addToNonzero(place.columnNumber, place.rowNumber, delta);
    return {};
}

Outcome deleteNonzero(ModelStore& store, const Variant& column, const Variant& row) {
    TARQ_ASSIGN(const Place place, resolvePlace(store, column, row));
    if (store.eraseNonzero(place.columnNumber, place.rowNumber)) return {};
    return {status::noSuchNonzero, "Nonzero element does not exist"};
}

Result<double> getNonzero(const ModelStore& store, const Variant& row, const Variant& column) {
    TARQ_ASSIGN(const Place place, resolvePlace(store, column, row));
    return store.nonzeroAt(place.columnNumber, place.rowNumber);
}

Outcome putNonzero(ModelStore& store, const Variant& row, const Variant& column, double value) {
    TARQ_ASSIGN(const Place place, resolvePlace(store, column, row));
    store.setNonzero(place.columnNumber, place.rowNumber, value);
    return {};
}

}  // namespace tarq
