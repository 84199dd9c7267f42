// The published names of the statuses that a run leaves behind.
#pragma once

#include <tarq/tarq.h>

#include <string_view>

namespace tarq::command {

/// The name of a value, such as "LPFinished"; "Unknown" for a number that none has.
[[nodiscard]] std::string_view nameOf(TARQSolverStatusTyp status);
[[nodiscard]] std::string_view nameOf(TARQSolutionStatusTyp status);
[[nodiscard]] std::string_view nameOf(TARQColRowStatusType status);

/// What ended a run early, for people: "the node limit (xmxnod)". Empty when the status tells no such end.
[[nodiscard]] std::string_view limitOf(TARQSolverStatusTyp status);

}  // namespace tarq::command
