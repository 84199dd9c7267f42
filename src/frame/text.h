// Measures of UTF-8 text that the object interface counts in wide characters.
#pragma once

#include <cstddef>
#include <string_view>

namespace tarq {

/// Length of a UTF-8 text in UTF-16 code units, the unit of every limit on wide characters. A byte that belongs to no
/// well-formed character counts as one, as it becomes one replacement character. Linear.
[[nodiscard]] std::size_t utf16Length(std::string_view text);

}  // namespace tarq
