// `tarq parameters`.
#pragma once

#include "commandline.h"
#include "exitcodes.h"

namespace tarq::command {

/// Lists all solver parameters, or explains the one that is named.
[[nodiscard]] ExitCode explainParameters(const ParametersOptions& options);

}  // namespace tarq::command
