#include "modelbuild.h"

#include <fmt/format.h>

#include <cmath>
#include <limits>

#include "tarq/engine.h"

namespace tarq::engine {

namespace {

constexpr double largestCost = 1e20;
constexpr double largestElement = 1e15;

std::string checkPointers(const ModelArrays& arrays) {
    if (arrays.rows < 0 || arrays.columns < 0 || arrays.nonzeros < 0) {
        return fmt::format("The model has {} rows, {} columns and {} nonzeros.", arrays.rows, arrays.columns,
                           arrays.nonzeros);
    }
    if (arrays.rows > std::numeric_limits<std::int32_t>::max() - arrays.columns) {
        return fmt::format("{} rows and {} columns are more than can be numbered.", arrays.rows, arrays.columns);
    }
    if (!(arrays.infinity > 0.0)) return fmt::format("{:g} can't stand for infinity.", arrays.infinity);
    if (arrays.nonzeros > 0 && (!arrays.rowIndices || !arrays.columnIndices || !arrays.values)) {
        return "The arrays of the nonzeros are missing.";
    }
    if (arrays.rows > 0 || arrays.columns > 0) {
        if (!arrays.lower || !arrays.upper) return "The arrays of the bounds are missing.";
    }
    if (arrays.columns > 0 && (!arrays.cost || !arrays.type)) return "The arrays of the columns are missing.";
    return {};
}

// Bounds of `count` columns or rows whose entries begin at `first`.
std::string takeBounds(const ModelArrays& arrays, std::int32_t first, std::int32_t count, const char* kind,
                       std::vector<double>& lower, std::vector<double>& upper) {
    lower.resize(static_cast<std::size_t>(count));
    upper.resize(static_cast<std::size_t>(count));
    for (std::int32_t position = 0; position < count; ++position) {
        double low = arrays.lower[first + position];
        double high = arrays.upper[first + position];
        if (std::isnan(low) || std::isnan(high)) {
            return fmt::format("A bound of {} {} is not a number.", kind, position + 1);
        }
        if (low >= arrays.infinity) return fmt::format("The lower bound of {} {} is infinite.", kind, position + 1);
        if (high <= -arrays.infinity) return fmt::format("The upper bound of {} {} is infinite.", kind, position + 1);
        if (low > high) {
            return fmt::format("The lower bound {:g} of {} {} is above its upper bound {:g}.", low, kind, position + 1,
                               high);
        }
        if (low <= -arrays.infinity) low = -kHighsInf;
        if (high >= arrays.infinity) high = kHighsInf;
        lower[static_cast<std::size_t>(position)] = low;
        upper[static_cast<std::size_t>(position)] = high;
    }
    return {};
}

std::string takeColumns(const ModelArrays& arrays, BuiltModel& model) {
    bool integer = false;
    for (std::int32_t column = 0; column < arrays.columns; ++column) {
        if (!(std::abs(arrays.cost[column]) < largestCost)) {
            return fmt::format("The cost {:g} of column {} is not a finite number below {:g}.", arrays.cost[column],
                               column + 1, largestCost);
        }
        if (arrays.type[column] < TarqContinuousColumn || arrays.type[column] > TarqBinaryColumn) {
            return fmt::format("The type {} of column {} is unknown.", arrays.type[column], column + 1);
        }
        integer = integer || arrays.type[column] != TarqContinuousColumn;
    }
    model.lp.col_cost_.assign(arrays.cost, arrays.cost + arrays.columns);
    model.integrality.clear();
    if (!integer) return {};
    model.integrality.resize(static_cast<std::size_t>(arrays.columns), HighsVarType::kContinuous);
    for (std::int32_t column = 0; column < arrays.columns; ++column) {
        if (arrays.type[column] == TarqContinuousColumn) continue;
        model.integrality[static_cast<std::size_t>(column)] = HighsVarType::kInteger;
    }
    return {};
}

// Checks each nonzero and counts those to be kept: after it, start[c + 1] is the count of column c.
std::string countNonzeros(const ModelArrays& arrays, double smallest, std::vector<HighsInt>& start) {
    start.assign(static_cast<std::size_t>(arrays.columns) + 1, 0);
    for (std::int32_t nonzero = 0; nonzero < arrays.nonzeros; ++nonzero) {
        const std::int32_t row = arrays.rowIndices[nonzero];
        const std::int32_t column = arrays.columnIndices[nonzero];
        const double size = std::abs(arrays.values[nonzero]);
        if (row < 1 || row > arrays.rows) {
            return fmt::format("Row index {} of nonzero {} is outside 1 to {}.", row, nonzero + 1, arrays.rows);
        }
        if (column < 1 || column > arrays.columns) {
            return fmt::format("Column index {} of nonzero {} is outside 1 to {}.", column, nonzero + 1,
                               arrays.columns);
        }
        if (!(size < largestElement)) {
            return fmt::format("The coefficient {:g} in row {} and column {} is not a finite number below {:g}.",
                               arrays.values[nonzero], row, column, largestElement);
        }
        if (size >= smallest && size > 0.0) ++start[static_cast<std::size_t>(column)];
    }
    return {};
}

std::string findDuplicate(const HighsSparseMatrix& matrix) {
    std::vector<HighsInt> seenIn(static_cast<std::size_t>(matrix.num_row_), -1);
    for (HighsInt column = 0; column < matrix.num_col_; ++column) {
        const auto end = matrix.start_[static_cast<std::size_t>(column) + 1];
        for (HighsInt nonzero = matrix.start_[static_cast<std::size_t>(column)]; nonzero < end; ++nonzero) {
            const HighsInt row = matrix.index_[static_cast<std::size_t>(nonzero)];
            HighsInt& seen = seenIn[static_cast<std::size_t>(row)];
            if (seen == column) return fmt::format("Row {} and column {} have two coefficients.", row + 1, column + 1);
            seen = column;
        }
    }
    return {};
}

// A counting transpose: within a column the entries keep their order, so that nonzeros sorted by row come out sorted.
std::string takeNonzeros(const ModelArrays& arrays, double smallest, HighsSparseMatrix& matrix) {
    matrix.format_ = MatrixFormat::kColwise;
    matrix.num_col_ = arrays.columns;
    matrix.num_row_ = arrays.rows;
    if (std::string failure = countNonzeros(arrays, smallest, matrix.start_); !failure.empty()) return failure;
    for (std::size_t column = 1; column < matrix.start_.size(); ++column) {
        matrix.start_[column] += matrix.start_[column - 1];
    }
    const auto kept = static_cast<std::size_t>(matrix.start_.back());
    matrix.index_.resize(kept);
    matrix.value_.resize(kept);

    bool sorted = true;
    std::vector<HighsInt> next(matrix.start_.begin(), matrix.start_.end() - 1);
    for (std::int32_t nonzero = 0; nonzero < arrays.nonzeros; ++nonzero) {
        const double value = arrays.values[nonzero];
        if (std::abs(value) < smallest || value == 0.0) continue;
        const auto column = static_cast<std::size_t>(arrays.columnIndices[nonzero]) - 1;
        const HighsInt row = arrays.rowIndices[nonzero] - 1;
        const auto place = static_cast<std::size_t>(next[column]++);
        matrix.index_[place] = row;
        matrix.value_[place] = value;
        if (place > static_cast<std::size_t>(matrix.start_[column])) sorted = sorted && matrix.index_[place - 1] < row;
    }
    return sorted ? std::string() : findDuplicate(matrix);
}

}  // namespace

std::string buildModel(const ModelArrays& arrays, double smallest, BuiltModel& model) {
    if (std::string failure = checkPointers(arrays); !failure.empty()) return failure;
    HighsLp& lp = model.lp;
    lp.clear();
    lp.num_col_ = arrays.columns;
    lp.num_row_ = arrays.rows;
    if (auto failure = takeBounds(arrays, 0, arrays.columns, "column", lp.col_lower_, lp.col_upper_);
        !failure.empty()) {
        return failure;
    }
    if (auto failure = takeBounds(arrays, arrays.columns, arrays.rows, "row", lp.row_lower_, lp.row_upper_);
        !failure.empty()) {
        return failure;
    }
    if (std::string failure = takeColumns(arrays, model); !failure.empty()) return failure;
    return takeNonzeros(arrays, smallest, lp.a_matrix_);
}

}  // namespace tarq::engine
