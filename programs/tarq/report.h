// The result of a solve for people to read.
#pragma once

#include <tarq/tarq.h>

#include <string>

#include "runresult.h"

namespace tarq::command {

/// Two lines: status and objective.
[[nodiscard]] std::string shortReport(const RunResult& result);

/// Model, status, objective, counts and times, and a table of the columns that are not zero.
[[nodiscard]] std::string fullReport(ITARQModel& model, const RunResult& result);

/// What a person can do about a run that failed.
[[nodiscard]] std::string failureText(ITARQModel& model, const RunResult& result);

}  // namespace tarq::command
