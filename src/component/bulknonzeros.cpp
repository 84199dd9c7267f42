#include "component/bulknonzeros.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <span>
#include <utility>
#include <vector>

#include "component/indexlists.h"
#include "frame/result.h"
#include "indexed/dimensions/indexset.h"
#include "indexed/values/plainvalue.h"
#include "indexed/values/valueimport.h"
#include "tarq/frame/safearray.h"

namespace tarq {
namespace {

struct Places {
    PositionList rows;
    PositionList columns;
};

Result<Places> resolvePlaces(const ModelStore& store, const Variant& rows, const Variant& columns) {
    Places places;
    TARQ_TRY(resolveIndexList(store, columns, IndexedSide::Columns, places.columns));
    TARQ_TRY(resolveIndexList(store, rows, IndexedSide::Rows, places.rows));
    return places;
}

/// Values for so many places, of which a client may have given a single one for all.
class PlaceValues {
public:
    /// Reads values for a selection of these sizes.
    Outcome read(const Variant& source, std::span<const std::size_t> shape) {
        constexpr std::size_t most = std::numeric_limits<std::ptrdiff_t>::max() / sizeof(Variant);
        const PlainValue value(source);
        const std::size_t count = combinationCount(shape);
        if (count > most) return status::outOfMemory;
        // A single value is converted and kept once, however large the selection is.
        const bool single = !value->isArray() && !value->isObject();
        step_ = single ? 0 : 1;
        constexpr std::array<std::size_t, 1> one{1};
        return expandValues(source, single ? one : shape, single ? 1 : count, Kind::Double, values_);
    }
    [[nodiscard]] double operator[](std::size_t position) const { return values_[step_ * position].real(); }

private:
    std::vector<Variant> values_;
    std::size_t step_ = 1;
};

}  // namespace

Result<Variant> getNonzeros(const ModelStore& store, const Variant& rows, const Variant& columns) {
    TARQ_ASSIGN(const Places places, resolvePlaces(store, rows, columns));
    if (places.rows.size() == 1 && places.columns.size() == 1) {
        return Variant(store.nonzeroAt(places.columns.front() + 1, places.rows.front() + 1));
    }
    const std::array dimensions{Dimension{1, static_cast<std::uint32_t>(places.rows.size())},
                                Dimension{1, static_cast<std::uint32_t>(places.columns.size())}};
    SafeArray array;
    TARQ_TRY(SafeArray::create(Kind::Double, dimensions, array));
    std::size_t cell = 0;
    const std::span<double> cells = array.elements<double>();
    for (const std::int32_t row : places.rows) {
        for (const std::int32_t column : places.columns) cells[cell++] = store.nonzeroAt(column + 1, row + 1);
    }
    return Variant(std::move(array));
}

Outcome putNonzeros(ModelStore& store, const Variant& rows, const Variant& columns, const Variant& values) {
    TARQ_ASSIGN(const Places places, resolvePlaces(store, rows, columns));
    const std::array<std::size_t, 2> shape{places.rows.size(), places.columns.size()};
    PlaceValues read;
    TARQ_TRY(read.read(values, shape));
    std::size_t cell = 0;
    for (const std::int32_t row : places.rows) {
        for (const std::int32_t column : places.columns) store.setNonzero(column + 1, row + 1, read[cell++]);
    }
    return {};
}

Outcome setNonzeroStair(ModelStore& store, const Variant& rows, const Variant& columns, const Variant& values) {
    TARQ_ASSIGN(const Places places, resolvePlaces(store, rows, columns));
    const std::array<std::size_t, 1> shape{std::min(places.rows.size(), places.columns.size())};
    PlaceValues read;
    TARQ_TRY(read.read(values, shape));
    for (std::size_t step = 0; step < shape.front(); ++step) {
        store.setNonzero(places.columns[step] + 1, places.rows[step] + 1, read[step]);
    }
    return {};
}

}  // namespace tarq
