#include "indexed/arrays/matrixproduct.h"

#include <algorithm>

namespace tarq {
namespace {

// Sums of four rows by a strip of columns stay in the cache while the inner index runs.
constexpr std::size_t rowsAtOnce = 4;
constexpr std::size_t columnsAtOnce = 256;

/// Adds left(row .. row + count - 1, :) times right(:, first .. first + width - 1) to the product.
template <std::size_t count>
void addStrip(const MatrixView& left, const MatrixView& right, std::size_t row, std::size_t first, std::size_t width,
              double* product) {
    const std::size_t inner = left.columns;
    for (std::size_t k = 0; k < inner; ++k) {
        const double* const from = right.values.data() + k * right.columns + first;
        double factors[count];
        for (std::size_t i = 0; i < count; ++i) factors[i] = left.values[(row + i) * inner + k];
        for (std::size_t i = 0; i < count; ++i) {
            double* const to = product + (row + i) * right.columns + first;
            for (std::size_t j = 0; j < width; ++j) to[j] += factors[i] * from[j];
        }
    }
}

}  // namespace

std::vector<double> multiply(const MatrixView& left, const MatrixView& right) {
    const std::size_t rows = left.rows;
    std::vector<double> product(rows * right.columns, 0.0);
    for (std::size_t first = 0; first < right.columns; first += columnsAtOnce) {
        const std::size_t width = std::min(columnsAtOnce, right.columns - first);
        std::size_t row = 0;
        for (; row + rowsAtOnce <= rows; row += rowsAtOnce) {
            addStrip<rowsAtOnce>(left, right, row, first, width, product.data());
        }
        for (; row < rows; ++row) addStrip<1>(left, right, row, first, width, product.data());
    }
    return product;
}

}  // namespace tarq
