// What the command says: results to standard output, messages to standard error, and text fitted to the terminal.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "exitcodes.h"

namespace tarq::command {

/// Shows a message for the user on standard error, behind the program's name.
void showMessage(std::string_view text);

/// Writes a result to standard output. `code`, or InputRejected with a message when the output takes no more.
[[nodiscard]] ExitCode writeResult(std::string_view text, ExitCode code);

/// Breaks text at blanks into lines of at most `width` characters and puts `indent` blanks before each. A longer word
/// stands alone in its line. The last line ends without a line feed.
[[nodiscard]] std::string wrapped(std::string_view text, std::size_t width, std::size_t indent);

/// A name as it may be shown on a terminal: control characters become question marks.
[[nodiscard]] std::string printable(std::string_view name);

/// Number of characters in a UTF-8 text.
[[nodiscard]] std::size_t characterCount(std::string_view text);

/// The first `count` characters of a UTF-8 text, the last of them an ellipsis when there are more.
[[nodiscard]] std::string shortened(std::string_view text, std::size_t count);

/// A number for people: up to ten significant digits and no negative zero.
[[nodiscard]] std::string numberText(double value);

/// "1 column", "2 columns".
[[nodiscard]] std::string counted(long count, std::string_view noun);

}  // namespace tarq::command
