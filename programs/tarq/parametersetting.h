// Setting solver parameters as the command line asks for it.
#pragma once

#include <tarq/tarq.h>

#include <optional>
#include <vector>

#include "commandline.h"
#include "failure.h"

namespace tarq::command {

/// Sets parameters in the order given, up to the first one that is refused. An assignment takes a number written in
/// full with a decimal point, and for the direction min or max; the component itself would make something of any text.
[[nodiscard]] std::optional<Failure> setParameters(ITARQModel& model, const std::vector<ParameterSource>& sources);

}  // namespace tarq::command
