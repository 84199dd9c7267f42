// The product of two dense matrices.
#pragma once

#include <cstddef>
#include <span>
#include <vector>

namespace tarq {

/// A matrix, its values row by row.
struct MatrixView {
    std::span<const double> values;
    std::size_t rows;
    std::size_t columns;
};

/// left (r by n) times right (n by c), r by c. Each entry is summed from 0.0 in the order of the inner index, as a
/// person would check it.
[[nodiscard]] std::vector<double> multiply(const MatrixView& left, const MatrixView& right);

}  // namespace tarq
