// ParseFailure: what a reader of model files found wrong in a text, and the description in which a client gets it.
#pragma once

#include <charconv>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace tarq {

struct ParseFailure {
    std::string message;  ///< a sentence, without the format and the line
    std::size_t lineNumber = 0;
};

namespace detail {

inline constexpr std::string_view beforeFormat = "Error parsing ";
inline constexpr std::string_view beforeMessage = " file: ";
inline constexpr std::string_view beforeLine = " Line ";

}  // namespace detail

/// "Error parsing MPS file: ROWS indicator expected. Line 3": the description of a syntaxError.
[[nodiscard]] inline std::string parseFailureText(std::string_view format, const ParseFailure& failure) {
    return std::string(detail::beforeFormat)
        .append(format)
        .append(detail::beforeMessage)
        .append(failure.message)
        .append(detail::beforeLine)
        .append(std::to_string(failure.lineNumber));
}

/// What parseFailureText has made into `description`; nothing for any other text.
[[nodiscard]] inline std::optional<ParseFailure> parseFailureIn(std::string_view description) {
    const std::size_t message = description.find(detail::beforeMessage);
    const std::size_t line = description.rfind(detail::beforeLine);
    if (!description.starts_with(detail::beforeFormat) || message >= line || line == std::string_view::npos) return {};
    ParseFailure failure;
    const std::string_view number = description.substr(line + detail::beforeLine.size());
    const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), failure.lineNumber);
    if (error != std::errc{} || end != number.data() + number.size()) return {};
    const std::size_t start = message + detail::beforeMessage.size();
    if (start > line) return {};
    failure.message = description.substr(start, line - start);
    return failure;
}

}  // namespace tarq
