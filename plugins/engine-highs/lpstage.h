// The LP stage: solves the continuous model, and says what is known when it had to end early.
#pragma once

#include <cstdint>
#include <memory>

#include "parametervalues.h"
#include "solvermodel.h"
#include "stageoutcome.h"

namespace tarq::engine {

/// Whether an LP of this size is over in well under a second, so that nobody waits for a stop.
[[nodiscard]] bool isBrief(std::int64_t rows, std::int64_t columns, std::int64_t nonzeros);

/// Solves the LP within the limits of `parameters`; `iterationFrequency` above 0 ends it after so many iterations of
/// the simplex method. Runs on the stage's thread.
[[nodiscard]] StageOutcome solveLp(SolverModel& model, const ParameterValues& parameters,
                                   const std::shared_ptr<Watch>& watch, int iterationFrequency);

}  // namespace tarq::engine
