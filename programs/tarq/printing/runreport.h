// The result of a solve, for people to read, or as a JSON document for programs.
#pragma once

#include <tarq/tarq.h>

#include <optional>
#include <string>

#include "model/failure.h"
#include "run/runresult.h"

namespace tarq::command {

/// Two lines: status and objective.
[[nodiscard]] std::string shortReport(const RunResult& result);

/// Model, direction, status, objective, counts and times, and a table of the columns that are not zero.
[[nodiscard]] std::string fullReport(ITARQModel& model, const RunResult& result);

/// The document, with a line feed at its end, and with the member "error" for a failure, which may be null. What isn't
/// known by then, values of the objective that the run didn't find and numbers that JSON can't hold are null, and bytes
/// that are no UTF-8 become replacement characters.
[[nodiscard]] std::string jsonReport(ITARQModel& model, const RunResult& result, const Failure* failure);

/// Why a run failed, and what a person can do about it; nothing for a run that didn't.
[[nodiscard]] std::optional<Failure> failureOf(ITARQModel& model, const RunResult& result);

}  // namespace tarq::command
