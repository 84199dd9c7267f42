// UTF-8 text as the object interface measures and compares it, whatever the locale of the process.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tarq {

/// Length of a UTF-8 text in UTF-16 code units, the unit of every limit on wide characters. A byte that belongs to no
/// well-formed character counts as one, as it becomes one replacement character. Linear.
[[nodiscard]] std::size_t utf16Length(std::string_view text);

/// Bytes from outside as text: each byte that belongs to no well-formed character becomes U+FFFD, all else stays.
/// Linear.
[[nodiscard]] std::string wellFormedText(std::string bytes);

/// An ASCII capital as its small letter; any other byte as it is.
[[nodiscard]] constexpr char lowerCased(char character) noexcept {
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a') : character;
}

/// True when the texts differ at most in the case of ASCII letters.
[[nodiscard]] bool equalWithoutCase(std::string_view left, std::string_view right) noexcept;

}  // namespace tarq
