// Text for people: fitted to a width, safe to be shown, with numbers as they read them, and names they may have meant.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tarq::command {

/// ASCII capitals as small letters.
[[nodiscard]] std::string lowerCase(std::string_view text);

/// Breaks text at blanks into lines of at most `width` characters and puts `indent` blanks before each. A longer word
/// stands alone in its line. The last line ends without a line feed.
[[nodiscard]] std::string wrapped(std::string_view text, std::size_t width, std::size_t indent);

/// A name as it may be shown on a terminal: control characters become question marks, but those that are `kept`.
[[nodiscard]] std::string printable(std::string_view name, std::string_view kept = {});

/// A file as it is named in messages; `stream` is what "-" stands for.
[[nodiscard]] std::string shownName(const std::string& file, std::string_view stream);

/// Number of characters in a UTF-8 text.
[[nodiscard]] std::size_t characterCount(std::string_view text);

/// The first `count` characters of a UTF-8 text, the last of them an ellipsis when there are more.
[[nodiscard]] std::string shortened(std::string_view text, std::size_t count);

/// A number for people: up to ten significant digits and no negative zero.
[[nodiscard]] std::string numberText(double value);

/// "1 column", "2 columns".
[[nodiscard]] std::string counted(long count, std::string_view noun);

/// "Did you mean a, b or c?" with the names that are nearest to `wanted` or contain it, without regard to case;
/// `otherwise` when none is near.
[[nodiscard]] std::string suggestion(const std::vector<std::string_view>& names, std::string_view wanted,
                                     std::string_view otherwise);

}  // namespace tarq::command
