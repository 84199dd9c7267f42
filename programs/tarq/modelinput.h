// Reading the model that the user names, and explaining why it can't be read.
#pragma once

#include <tarq/tarq.h>

#include <optional>
#include <string>

#include "failure.h"

namespace tarq::command {

/// Why the system won't let us read a file, in its own words.
[[nodiscard]] std::string reasonNotReadable(const std::string& file);

/// Reads a model file, or standard input for "-". On failure the model may hold what was read so far.
[[nodiscard]] std::optional<Failure> readModel(ITARQModel& model, const std::string& file, TARQFileFormatType format);

}  // namespace tarq::command
