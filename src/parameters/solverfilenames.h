// The names of the files that the engine writes during a run, made from one base name.
#pragma once

#include <string_view>

#include "parameters/parametertable.h"
#include "tarq/frame/status.h"

namespace tarq {

/// Sets seven file name rows to `name` with ".lps", ".ips", ".sta", ".log", ".msg", ".mps" and ".pro" behind it. An
/// extension of the name stays, a directory is allowed, and so is the empty name. fileNameRejected for more than 250
/// bytes or a character of "*?<>|" changes nothing.
[[nodiscard]] Outcome generateFileNames(ParameterTable& table, std::string_view name);

}  // namespace tarq
