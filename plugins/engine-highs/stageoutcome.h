// StageOutcome: what a stage ended with, in the values of the engine's interface.
#pragma once

#include <cstdint>
#include <string>

#include "solutionarrays.h"
#include "tarq/engine.h"

namespace tarq::engine {

struct StageOutcome {
    std::int32_t result = TarqInternalError;
    std::int32_t lpStatus = TarqLPSolvable;
    std::int32_t limit = 0;           ///< with TarqLimitReached: a TarqLPLimit or a TarqIPStopReason
    std::int32_t solutionStatus = 0;  ///< a TarqLPSolution or a TarqIPSolution
    double objective = 0.0;
    double bestPossible = 0.0;
    SolutionArrays solution;  ///< empty when there is none
    std::string message;      ///< empty, or why the stage failed

    /// The stage came to no end of its own: it was `stopped`, or `limitReached` ended it.
    void endEarly(bool stopped, std::int32_t limitReached) {
        result = stopped ? TarqStoppedAtBreak : TarqLimitReached;
        limit = stopped ? 0 : limitReached;
    }

    /// The stage found no answer.
    void fail(std::int32_t failure, std::string text) {
        result = failure;
        message = std::move(text);
    }
};

inline constexpr const char* outOfMemoryText = "Not enough memory.";

}  // namespace tarq::engine
