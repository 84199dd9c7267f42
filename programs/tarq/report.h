// The result of a solve for people to read.
#pragma once

#include <tarq/tarq.h>

#include <optional>
#include <string>

#include "failure.h"
#include "runresult.h"

namespace tarq::command {

/// Two lines: status and objective.
[[nodiscard]] std::string shortReport(const RunResult& result);

/// Model, direction, status, objective, counts and times, and a table of the columns that are not zero.
[[nodiscard]] std::string fullReport(ITARQModel& model, const RunResult& result);

/// Why a run failed, and what a person can do about it; nothing for a run that didn't.
[[nodiscard]] std::optional<Failure> failureOf(ITARQModel& model, const RunResult& result);

}  // namespace tarq::command
