// The command line of ampl.
#pragma once

#include <optional>
#include <string>

namespace tarq::translator {

struct CommandLine {
    std::string stub;  ///< of -og; empty without
    std::string file;
};

/// Nothing when there is nothing to do, because help or the version was asked for and shown, or because the line makes
/// no sense, which was said on standard error; `exitCode` tells which.
[[nodiscard]] std::optional<CommandLine> parseCommandLine(int count, const char* const* words, int& exitCode);

}  // namespace tarq::translator
