// The LP stage: solves the continuous model, and says what is known when it had to end early.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "parametervalues.h"
#include "solvermodel.h"

namespace tarq::engine {

/// Values, duals and states of all columns, then of all rows, in the form of the engine's interface.
struct SolutionArrays {
    std::vector<double> values;
    std::vector<double> reducedCosts;
    std::vector<std::int32_t> states;
};

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

/// Solves the LP within the limits of `parameters`; `iterationFrequency` above 0 ends it after so many iterations of
/// the simplex method. Runs on the stage's thread.
[[nodiscard]] StageOutcome solveLp(SolverModel& model, const ParameterValues& parameters,
                                   const std::shared_ptr<Watch>& watch, int iterationFrequency);

/// The solution of a Highs object in the form of the interface; states come from the basis, or from the values when
/// there is none.
[[nodiscard]] SolutionArrays arraysOf(const Highs& highs);

}  // namespace tarq::engine
