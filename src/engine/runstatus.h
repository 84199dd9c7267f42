// How the results and statuses of an engine read in the published enumerations. Every code has an answer: one that is
// not known maps to the general error, the other limit or the undefined status.
#pragma once

#include <cstdint>

#include "tarq/engine.h"
#include "tarq/interfaces/enumerations.h"

namespace tarq {

/// Whether a stage failed: it has left nothing to fetch, and the run can't go on.
[[nodiscard]] constexpr bool isCrucial(std::int32_t result) {
    return result != TarqSuccess && result != TarqLimitReached && result != TarqStoppedAtBreak;
}

/// What a crucial result of OptimizeLP or OptimizeIP means.
[[nodiscard]] TARQSolverStatusTyp lpErrorStatus(std::int32_t result);
[[nodiscard]] TARQSolverStatusTyp ipErrorStatus(std::int32_t result);

/// Which limit ended a stage: by the value of xertyp (a TarqLPLimit), by the stop reason of OptimizeIP (a
/// TarqIPStopReason).
[[nodiscard]] TARQSolverStatusTyp lpLimitStatus(std::int32_t xertyp);
[[nodiscard]] TARQSolverStatusTyp ipLimitStatus(std::int32_t stopReason);

/// What the status of GetLPSolution (a TarqLPSolution) or GetIPSolution (a TarqIPSolution) says of the solution.
[[nodiscard]] TARQSolutionStatusTyp lpSolutionStatus(std::int32_t status);
[[nodiscard]] TARQSolutionStatusTyp ipSolutionStatus(std::int32_t status);

}  // namespace tarq
