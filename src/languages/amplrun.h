// What every run of the AMPL translator has in common: its command file and the program itself.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "frame/result.h"
#include "languages/languagetarget.h"
#include "tarq/frame/status.h"

namespace tarq {

/// Makes the command file, byte for byte `commands`. temporaryFile when it can't be written.
[[nodiscard]] Outcome writeAmplCommands(const std::string& fileName, std::string_view commands);

/// Runs the translator to its end, without a limit on time: what it has written, at most one byte less than the target
/// keeps. Its exit code is not looked at. temporaryFile without a pipe, externalProcess when it
/// can't be started, `readFailure` when its output can't be read.
[[nodiscard]] Result<std::string> runAmplTranslator(const std::string& program,
                                                    const std::vector<std::string>& arguments,
                                                    const LanguageTarget& target, Outcome readFailure);

}  // namespace tarq
