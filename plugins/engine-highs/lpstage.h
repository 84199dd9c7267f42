// The LP stage: solves the continuous model, and says what is known when it had to end early.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "parametervalues.h"
#include "solutionarrays.h"
#include "solvermodel.h"

namespace tarq::engine {

/// What a stage ended with, as the operations of the interface report it.
struct StageOutcome {
    std::int32_t result = 6;
    std::int32_t modelStatus = 0;     ///< LP: 1 infeasible, 2 unbounded
    std::int32_t limit = 0;           ///< LP: which limit (xertyp); IP: stopReason
    std::int32_t solutionStatus = 0;  ///< as GetLPSolution or GetIPSolution report it
    double objective = 0.0;
    double bestPossible = 0.0;
    double gap = 0.0;
    SolutionArrays solution;  ///< empty when there is none
    std::string message;      ///< empty, or why the stage failed
};

inline constexpr std::int32_t resultStopped = 999;
/// GetLPSolution's status for a point that is neither primal nor dual feasible, or no point at all.
inline constexpr std::int32_t nothingFeasible = 6;

/// Whether an LP of this size is over in well under a second, so that nobody waits for a stop.
[[nodiscard]] bool isBrief(std::int64_t rows, std::int64_t columns, std::int64_t nonzeros);

/// Solves the LP within the limits of `parameters`; `iterationFrequency` above 0 ends it after so many iterations of
/// the simplex method. Runs on the stage's thread.
[[nodiscard]] StageOutcome solveLp(SolverModel& model, const ParameterValues& parameters,
                                   const std::shared_ptr<Watch>& watch, int iterationFrequency);
}  // namespace tarq::engine
