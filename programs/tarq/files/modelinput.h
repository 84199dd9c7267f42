// Reading the model that the user names, and explaining why it can't be read.
#pragma once

#include <tarq/tarq.h>

#include <string>

#include "commandline.h"
#include "files/format.h"

namespace tarq::command {

/// What "-" stands for as a file to read.
inline constexpr std::string_view standardInput = "standard input";

/// Why the system won't let us read a file, in its own words.
[[nodiscard]] std::string reasonNotReadable(const std::string& file);

/// Reads a model file or a text in a language, or standard input for "-". WrongUsage for more data files than the
/// format takes, else InputRejected; the model may then hold what was read so far.
void readModel(ITARQModel& model, const std::string& file, const InputFormat& format, const LanguageOptions& options);

/// Tells on standard error what other programs read differently in the file that the model was read from, and how the
/// file can say it so that all agree. Nothing where there is nothing to tell.
void showReadingNotes(ITARQModel& model);

}  // namespace tarq::command
