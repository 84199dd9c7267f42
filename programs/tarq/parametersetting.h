// Setting solver parameters as the command line asks for it.
#pragma once

#include <tarq/tarq.h>

#include <optional>
#include <string>
#include <vector>

#include "commandline.h"
#include "failure.h"

namespace tarq::command {

/// Sets parameters in the order given, up to the first one that is refused. An assignment takes a number written in
/// full with a decimal point, and for the direction min or max; the component itself would make something of any text.
[[nodiscard]] std::optional<Failure> setParameters(ITARQModel& model, const std::vector<ParameterSource>& sources);

/// Writes a profile with all parameters of a model to a file, or to standard output for "-".
[[nodiscard]] std::optional<Failure> writeProfile(ITARQModel& model, const std::string& file);

}  // namespace tarq::command
