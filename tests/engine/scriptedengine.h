// What a scripted engine library plays and what it has recorded. Each library has one script, which it exports as
// engineScript; tests set it before a run and read its log behind it.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <string>

#include "tarq/engine.h"

struct EngineScript {
    std::map<std::string, std::int32_t> results;          ///< by operation; 0 for one that isn't here
    std::map<std::string, std::string> parameters;        ///< what GetParameter serves; it refuses any other name
    std::map<std::string, std::function<void()>> during;  ///< called within an operation, outputs already written

    std::int32_t maximalRows = 0;
    std::int32_t maximalColumns = 0;
    std::int32_t maximalNonzeros = 0;
    std::int32_t lpStatus = 0;
    std::int32_t stopReason = 0;
    std::int32_t lpSolutionStatus = 0;
    std::int32_t ipSolutionStatus = 0;
    /// Value k of a solution is the base plus k; its reduced cost lies 50 above, its basis status is k % 5 + 1.
    double lpBase = 100.0;
    double ipBase = 200.0;

    TarqCallback callback = nullptr;  ///< what SetCallback registered
    std::int32_t entries = 0;         ///< columns and rows of the model taken over
    std::string log;                  ///< a line for each call, with its arguments
};
