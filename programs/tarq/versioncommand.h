// `tarq --version`.
#pragma once

#include <string>

#include "exitcodes.h"

namespace tarq::command {

/// Shows the versions of the program and of the engine.
[[nodiscard]] ExitCode showVersion(const std::string& engine);

}  // namespace tarq::command
