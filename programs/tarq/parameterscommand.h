// `tarq parameters`.
#pragma once

#include "commandline.h"
#include "exitcodes.h"

namespace tarq::command {

/// Lists all solver parameters, explains the one that is named, or lists those that speak of a word.
[[nodiscard]] ExitCode explainParameters(const ParametersOptions& options);

}  // namespace tarq::command
