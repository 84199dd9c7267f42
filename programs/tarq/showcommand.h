// `tarq show`.
#pragma once

#include "commandline.h"
#include "exitcodes.h"

namespace tarq::command {

/// Prints a readable listing of a model file, or of a part of it.
[[nodiscard]] ExitCode showModel(const ShowOptions& options);

}  // namespace tarq::command
