// Reading the model that the user names, and explaining why it can't be read.
#pragma once

#include <tarq/tarq.h>

#include <optional>
#include <string>

#include "commandline.h"
#include "failure.h"
#include "fileformat.h"

namespace tarq::command {

/// Why the system won't let us read a file, in its own words.
[[nodiscard]] std::string reasonNotReadable(const std::string& file);

/// Reads a model file or a text in a language, or standard input for "-". On failure the model may hold what was read
/// so far.
[[nodiscard]] std::optional<Failure> readModel(ITARQModel& model, const std::string& file, const InputFormat& format,
                                               const LanguageOptions& options);

}  // namespace tarq::command
