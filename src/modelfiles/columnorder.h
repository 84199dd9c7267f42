// ColumnOrder: the nonzeros of a store column by column, rows ascending.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "model/modelstore.h"

namespace tarq {

/// A copy, made in two passes over the nonzeros. 12 bytes a nonzero and 8 a column.
class ColumnOrder {
public:
    explicit ColumnOrder(const ModelStore& store);

    /// Row numbers and values of the column at a 0-based position, in step.
    [[nodiscard]] std::span<const std::int32_t> rowNumbers(std::int32_t position) const {
        return std::span(rowNumbers_).subspan(startOf(position), lengthOf(position));
    }
    [[nodiscard]] std::span<const double> values(std::int32_t position) const {
        return std::span(values_).subspan(startOf(position), lengthOf(position));
    }

private:
    [[nodiscard]] std::size_t startOf(std::int32_t position) const {
        return starts_[static_cast<std::size_t>(position)];
    }
    [[nodiscard]] std::size_t lengthOf(std::int32_t position) const {
        return starts_[static_cast<std::size_t>(position) + 1] - startOf(position);
    }

    std::vector<std::size_t> starts_;  // one more than there are columns
    std::vector<std::int32_t> rowNumbers_;
    std::vector<double> values_;
};

}  // namespace tarq
