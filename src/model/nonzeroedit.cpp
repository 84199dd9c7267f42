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

Outcome resolvePlace(const ModelStore& store, const Variant& column, const Variant& row, Place& place) {
    Place position;
    TARQ_TRY(resolveColumn(store, column, position.columnNumber));
    TARQ_TRY(resolveRow(store, row, position.rowNumber));
    place = {position.columnNumber + 1, position.rowNumber + 1};
    return {};
}

}  // namespace

Outcome addNonzero(ModelStore& store, const Variant& row, const Variant& column, double delta) {
    Place place;
    TARQ_TRY(resolvePlace(store, column, row, place));
    store.addToNonzero(place.columnNumber, place.rowNumber, delta);
    return {};
}

Outcome deleteNonzero(ModelStore& store, const Variant& column, const Variant& row) {
    Place place;
    TARQ_TRY(resolvePlace(store, column, row, place));
    if (store.eraseNonzero(place.columnNumber, place.rowNumber)) return {};
    return {status::noSuchNonzero, "Nonzero element does not exist"};
}

Outcome getNonzero(const ModelStore& store, const Variant& row, const Variant& column, double& value) {
    Place place;
    TARQ_TRY(resolvePlace(store, column, row, place));
    // Without a nonzero the value is 0.0, which is what is asked for.
    static_cast<void>(store.findNonzero(place.columnNumber, place.rowNumber, value));
    return {};
}

Outcome putNonzero(ModelStore& store, const Variant& row, const Variant& column, double value) {
    Place place;
    TARQ_TRY(resolvePlace(store, column, row, place));
    store.setNonzero(place.columnNumber, place.rowNumber, value);
    return {};
}

}  // namespace tarq
