#include "solutioncheck.h"

#include <algorithm>
#include <cmath>

namespace tarq::engine {

namespace {

constexpr double relativeTolerance = 1e-9;

double violationOf(double value, double lower, double upper) {
    if (!std::isfinite(value)) return kHighsInf;
    return std::max({0.0, lower - value, value - upper});
}

}  // namespace

PointCheck checkPoint(const HighsLp& lp, const std::vector<HighsVarType>& integrality,
                      const std::vector<double>& columnValues, const CheckTolerance& tolerance,
                      std::vector<double>& rowValues) {
    PointCheck check;
    const auto columns = static_cast<std::size_t>(lp.num_col_);
    const auto rows = static_cast<std::size_t>(lp.num_row_);
    if (columnValues.size() != columns) return check;
    check.feasible = true;
    rowValues.assign(rows, 0.0);
    std::vector<double> rowSizes(rows, 0.0);

    for (std::size_t column = 0; column < columns; ++column) {
        const double value = columnValues[column];
        const double violation = violationOf(value, lp.col_lower_[column], lp.col_upper_[column]);
        check.bounds = std::max(check.bounds, violation);
        if (violation > tolerance.feasibility + relativeTolerance * std::abs(value)) check.feasible = false;
        if (!std::isfinite(value)) check.feasible = false;
        if (!integrality.empty() && integrality[column] == HighsVarType::kInteger) {
            check.integrality = std::max(check.integrality, std::abs(value - std::round(value)));
        }
        check.objective += lp.col_cost_[column] * value;
        for (HighsInt nonzero = lp.a_matrix_.start_[column]; nonzero < lp.a_matrix_.start_[column + 1]; ++nonzero) {
            const auto place = static_cast<std::size_t>(nonzero);
            const auto row = static_cast<std::size_t>(lp.a_matrix_.index_[place]);
            const double term = lp.a_matrix_.value_[place] * value;
            rowValues[row] += term;
            rowSizes[row] += std::abs(term);
        }
    }
    for (std::size_t row = 0; row < rows; ++row) {
        const double violation = violationOf(rowValues[row], lp.row_lower_[row], lp.row_upper_[row]);
        check.rows = std::max(check.rows, violation);
        if (violation > tolerance.feasibility + relativeTolerance * rowSizes[row]) check.feasible = false;
        if (!std::isfinite(rowValues[row])) check.feasible = false;
    }
    if (check.integrality > tolerance.integrality) check.feasible = false;
    return check;
}

}  // namespace tarq::engine
