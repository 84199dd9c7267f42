// `tarq solve`.
#pragma once

#include "commandline.h"
#include "exitcodes.h"

namespace tarq::command {

/// Reads a model, solves it and reports the result.
[[nodiscard]] ExitCode solve(const SolveOptions& options);

}  // namespace tarq::command
