// How the results and statuses of an engine read in the published enumerations. Every code has an answer: one that is
// not known maps to the general error, the other limit or the undefined status.
#pragma once

#include <cstdint>

#include "tarq/interfaces/enumerations.h"

namespace tarq {

/// Results of OptimizeLP and OptimizeIP that leave something to fetch.
namespace stageresult {
inline constexpr std::int32_t solved = 0;
inline constexpr std::int32_t limitReached = 1;
inline constexpr std::int32_t stoppedAtBreak = 999;
}  // namespace stageresult

/// True for every other result: the run can't go on.
[[nodiscard]] constexpr bool isCrucial(std::int32_t result) {
    return result != stageresult::solved && result != stageresult::limitReached &&
           result != stageresult::stoppedAtBreak;
}

/// What a crucial result means.
[[nodiscard]] TARQSolverStatusTyp lpErrorStatus(std::int32_t result);
[[nodiscard]] TARQSolverStatusTyp ipErrorStatus(std::int32_t result);

/// Which limit ended a stage: by the value of xertyp for the LP, by the stop reason of OptimizeIP.
[[nodiscard]] TARQSolverStatusTyp lpLimitStatus(std::int32_t xertyp);
[[nodiscard]] TARQSolverStatusTyp ipLimitStatus(std::int32_t stopReason);

/// What the status of GetLPSolution or GetIPSolution says of the solution.
[[nodiscard]] TARQSolutionStatusTyp lpSolutionStatus(std::int32_t status);
[[nodiscard]] TARQSolutionStatusTyp ipSolutionStatus(std::int32_t status);

}  // namespace tarq
