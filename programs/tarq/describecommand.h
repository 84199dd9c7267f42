// `tarq describe`.
#pragma once

#include "commandline.h"
#include "exitcodes.h"

namespace tarq::command {

/// Lists the classes, interfaces and enumerations of the component, or explains what is named.
[[nodiscard]] ExitCode describe(const DescribeOptions& options);

}  // namespace tarq::command
