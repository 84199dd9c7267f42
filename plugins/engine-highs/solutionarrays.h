// SolutionArrays: a solution in the form of the engine's interface.
#pragma once

#include <cstdint>
#include <vector>

#include "lp_data/HStruct.h"
#include "lp_data/HighsLp.h"

namespace tarq::engine {

/// Values, duals and states of all columns, then of all rows.
struct SolutionArrays {
    std::vector<double> values;
    std::vector<double> reducedCosts;  ///< the duals in the row part
    std::vector<std::int32_t> states;  ///< a TarqBasisStatus each
};

/// States come from the basis, or from the values when it isn't valid.
[[nodiscard]] SolutionArrays arraysOf(const HighsLp& lp, const HighsSolution& solution, const HighsBasis& basis);

}  // namespace tarq::engine
