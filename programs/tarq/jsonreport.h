// The result of a solve as one JSON document, for programs to read.
#pragma once

#include <tarq/tarq.h>

#include <optional>
#include <string>

#include "failure.h"
#include "runresult.h"

namespace tarq::command {

/// The document, with a line feed at its end, and with the member "error" where something failed. What isn't known by
/// then, values of the objective that the run didn't find and numbers that JSON can't hold are null, and bytes that are
/// no UTF-8 become replacement characters.
[[nodiscard]] std::string jsonReport(ITARQModel& model, const RunResult& result, const std::optional<Failure>& failure);

}  // namespace tarq::command
