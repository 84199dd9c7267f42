// The standard streams: results to standard output, messages to standard error, and the terminals behind them.
#pragma once

#include <cstddef>
#include <cstdio>
#include <string_view>

#include "model/failure.h"

namespace tarq::command {

/// Takes the places of standard streams that are closed, so that no file that is opened later becomes one of them.
/// Reading or writing such a stream fails. To be called before anything is opened.
void fillStandardStreams();

/// Shows a message for the user on standard error, behind the program's name.
void showMessage(std::string_view text);

/// Shows the words of a failure and returns its exit code.
[[nodiscard]] ExitCode show(const Failure& failure);

/// Writes a result to standard output. `code`, or InputRejected with a message when the output takes no more.
[[nodiscard]] ExitCode writeResult(std::string_view text, ExitCode code = ExitCode::Success);

/// True if the stream is shown on a terminal.
[[nodiscard]] bool isTerminal(std::FILE* stream);

/// True if the stream is shown on a terminal on which a line can be rewritten.
[[nodiscard]] bool canRewriteLines(std::FILE* stream);

/// Characters in a line of the terminal behind the stream; 80 where nothing tells it.
[[nodiscard]] std::size_t terminalWidth(std::FILE* stream);

/// How wide a text in sentences should be on standard output: as the terminal, but no wider than is easily read.
[[nodiscard]] std::size_t readingWidth();

}  // namespace tarq::command
