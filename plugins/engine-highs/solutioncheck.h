// Checks a solution against the model as it was handed over.
//
// HiGHS judges the model that presolve left; on the way back from it a solution can lose feasibility, and has been seen
// to. So nothing is reported as optimal that these checks refuse.
#pragma once

#include <vector>

#include "lp_data/HighsLp.h"

namespace tarq::engine {

/// Largest violations of a point, absolute, and its objective in the model's own direction.
struct PointCheck {
    double bounds = 0.0;
    double rows = 0.0;
    double integrality = 0.0;
    double objective = 0.0;
    bool feasible = false;
};

struct CheckTolerance {
    double feasibility;  ///< absolute; in rows with large terms also 1e-9 of their size
    double integrality;
};

/// `integrality` may be empty. Fills `rowValues` with the activity of each row. Cost: one pass over the nonzeros.
[[nodiscard]] PointCheck checkPoint(const HighsLp& lp, const std::vector<HighsVarType>& integrality,
                                    const std::vector<double>& columnValues, const CheckTolerance& tolerance,
                                    std::vector<double>& rowValues);

}  // namespace tarq::engine
