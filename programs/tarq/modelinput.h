// Reading the model that the user names, and explaining why it can't be read.
#pragma once

#include <tarq/tarq.h>

#include <optional>
#include <string>
#include <string_view>

#include "exitcodes.h"

namespace tarq::command {

/// Why a step of the command failed: the words for the user and the exit code.
struct Failure {
    ExitCode code;
    std::string text;
};

/// The format of a model file: the one that is named, else the one that the extension tells.
/// Fails with WrongUsage and the list of the formats.
[[nodiscard]] std::optional<Failure> chooseFormat(const std::string& file, const std::string& name,
                                                  TARQFileFormatType& format);

/// Reads a model file, or standard input for "-". On failure the model may hold what was read so far.
[[nodiscard]] std::optional<Failure> readModel(ITARQModel& model, const std::string& file, TARQFileFormatType format);

/// The file as it is named in messages.
[[nodiscard]] std::string_view shownName(const std::string& file);

}  // namespace tarq::command
