// What the terminal behind a standard stream can do.
#pragma once

#include <cstddef>
#include <cstdio>

namespace tarq::command {

/// True if the stream is shown on a terminal.
[[nodiscard]] bool isTerminal(std::FILE* stream);

/// True if the stream is shown on a terminal on which a line can be rewritten.
[[nodiscard]] bool canRewriteLines(std::FILE* stream);

/// Characters in a line of the terminal behind the stream; 80 where nothing tells it.
[[nodiscard]] std::size_t terminalWidth(std::FILE* stream);

}  // namespace tarq::command
