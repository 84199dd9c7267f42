#include "modelfiles/columnorder.h"

namespace tarq {

ColumnOrder::ColumnOrder(const ModelStore& store) {
    const NonzeroTable& nonzeros = store.nonzeros();
    const auto columnCount = static_cast<std::size_t>(store.columnCount());
    starts_.resize(columnCount + 1);
    rowNumbers_.resize(static_cast<std::size_t>(nonzeros.size()));
    values_.resize(static_cast<std::size_t>(nonzeros.size()));

    // Counts first, one place ahead, so that each column's start moves to its end while it is filled.
    nonzeros.forEach([&](std::int32_t column, std::int32_t /*row*/, double /*value*/) {
        if (static_cast<std::size_t>(column) < columnCount) ++starts_[static_cast<std::size_t>(column) + 1];
    });
    for (std::size_t i = 1; i <= columnCount; ++i) starts_[i] += starts_[i - 1];
    nonzeros.forEach([&](std::int32_t column, std::int32_t row, double value) {
        const std::size_t place = starts_[static_cast<std::size_t>(column)]++;
        rowNumbers_[place] = row;
        values_[place] = value;
    });
}

}  // namespace tarq
