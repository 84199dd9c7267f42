// `tarq parameters --page`.
#pragma once

#include <tarq/tarq.h>

#include <string>

#include "exitcodes.h"

namespace tarq::command {

/// Has a person change a profile on the parameter page: reads `file` where it is there, shows the page, and writes the
/// profile anew where the person has applied something. "-" starts from the defaults and writes to standard output,
/// where a profile also goes that can't be written to its file.
[[nodiscard]] ExitCode editProfile(ITARQModel& model, const std::string& file);

}  // namespace tarq::command
