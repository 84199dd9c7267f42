// Whole numbers as people enter them for parameters.
#pragma once

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <optional>
#include <string_view>
#include <system_error>

namespace tarq {

/// Whether a text is a whole number in digits alone, behind a minus at most. A plus, a point or an exponent are
/// refused, though a text for a real number may have them.
[[nodiscard]] constexpr bool isWholeNumber(std::string_view text) {
    if (text.starts_with('-')) text.remove_prefix(1);
    return !text.empty() &&
           std::ranges::all_of(text, [](char character) { return character >= '0' && character <= '9'; });
}

/// The value of such a text; nothing too for a number beyond 32 bits.
[[nodiscard]] inline std::optional<std::int32_t> wholeNumberIn(std::string_view text) {
    std::int32_t number = 0;
    const bool isOne =
        isWholeNumber(text) && std::from_chars(text.data(), text.data() + text.size(), number).ec == std::errc();
    return isOne ? std::optional(number) : std::nullopt;
}

}  // namespace tarq
