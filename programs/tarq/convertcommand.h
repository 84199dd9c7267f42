// `tarq convert`.
#pragma once

#include "commandline.h"
#include "exitcodes.h"

namespace tarq::command {

/// Reads a model file and writes it in another format.
[[nodiscard]] ExitCode convert(const ConvertOptions& options);

}  // namespace tarq::command
