// The solver parameters for people to read, or as a JSON document for programs.
#pragma once

#include <string>
#include <vector>

#include "model/parameterlist.h"

namespace tarq::command {

/// One parameter in full: section, type, limits, default, meaning and the values that have one.
[[nodiscard]] std::string parameterReport(const Parameter& parameter, bool json);

/// A list of parameters: for people a table for each section, with descriptions that are cut at the terminal's edge,
/// and whole where there is none; for programs all that is known of each.
[[nodiscard]] std::string parameterReport(const std::vector<Parameter>& parameters, bool json);

}  // namespace tarq::command
