// The IP stage: branch and bound on the model whose LP has been solved.
#pragma once

#include <memory>

#include "lpstage.h"

namespace tarq::engine {

/// Runs branch and bound within the limits of `parameters`; `nodeFrequency` above 0 ends it after so many nodes. The
/// solution's duals, reduced costs and states are those of the LP whose integer columns are fixed at the solution.
/// Runs on the stage's thread.
[[nodiscard]] StageOutcome solveIp(SolverModel& model, const ParameterValues& parameters,
                                   const std::shared_ptr<Watch>& watch, int nodeFrequency);

/// The best integer solution so far as an outcome without duals, for a stage that was given up.
[[nodiscard]] StageOutcome incumbentOutcome(Incumbent& incumbent, StopReason reason);

}  // namespace tarq::engine
