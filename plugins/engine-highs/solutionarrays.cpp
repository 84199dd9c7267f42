#include "solutionarrays.h"

#include <algorithm>
#include <cmath>

#include "tarq/engine.h"

namespace tarq::engine {

namespace {

std::int32_t stateOf(HighsBasisStatus status, double lower, double upper) {
    if (status == HighsBasisStatus::kBasic) return TarqBasic;
    if (lower == upper) return TarqFixed;
    switch (status) {
        case HighsBasisStatus::kLower:
            return TarqAtLowerBound;
        case HighsBasisStatus::kUpper:
            return TarqAtUpperBound;
        default:
            return TarqSuperbasic;
    }
}

std::int32_t stateAt(double value, double lower, double upper) {
    constexpr double tolerance = 1e-7;
    const auto at = [&](double bound) {
        return std::isfinite(bound) && std::abs(value - bound) <= tolerance * std::max(1.0, std::abs(bound));
    };
    if (lower == upper) return TarqFixed;
    if (at(lower)) return TarqAtLowerBound;
    return at(upper) ? TarqAtUpperBound : TarqSuperbasic;
}

}  // namespace

SolutionArrays arraysOf(const HighsLp& lp, const HighsSolution& solution, const HighsBasis& basis) {
    SolutionArrays arrays;
    const auto append = [&](const std::vector<double>& values, const std::vector<double>& duals,
                            const std::vector<HighsBasisStatus>& states, const std::vector<double>& lower,
                            const std::vector<double>& upper) {
        for (std::size_t position = 0; position < lower.size(); ++position) {
            const double value = position < values.size() ? values[position] : 0.0;
            arrays.values.push_back(value);
            arrays.reducedCosts.push_back(solution.dual_valid && position < duals.size() ? duals[position] : 0.0);
            arrays.states.push_back(basis.valid && position < states.size()
                                        ? stateOf(states[position], lower[position], upper[position])
                                        : stateAt(value, lower[position], upper[position]));
        }
    };
    const std::size_t count = lp.col_lower_.size() + lp.row_lower_.size();
    arrays.values.reserve(count);
    arrays.reducedCosts.reserve(count);
    arrays.states.reserve(count);
    append(solution.col_value, solution.col_dual, basis.col_status, lp.col_lower_, lp.col_upper_);
    append(solution.row_value, solution.row_dual, basis.row_status, lp.row_lower_, lp.row_upper_);
    return arrays;
}

}  // namespace tarq::engine
