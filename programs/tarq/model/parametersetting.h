// Setting solver parameters as the command line asks for it.
#pragma once

#include <tarq/tarq.h>

#include <string>
#include <vector>

#include "commandline.h"

namespace tarq::command {

/// Sets parameters in the order given. The first one that is refused fails: with WrongUsage for an assignment, with
/// InputRejected for a profile. An assignment takes a number written in
/// full with a decimal point, and for the direction min or max; the component itself would make something of any text.
void setParameters(ITARQModel& model, const std::vector<ParameterSource>& sources);

/// Writes a profile with all parameters of a model to a file, or to standard output for "-"; else InputRejected.
void writeProfile(ITARQModel& model, const std::string& file);

}  // namespace tarq::command
