// Extensions of conventional file names, which stand for native ones here, and names in any case.
#pragma once

#include <algorithm>
#include <string_view>

namespace tarq {

/// An ASCII letter in lower case; any other byte as it is.
[[nodiscard]] constexpr char lowerCase(char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

[[nodiscard]] inline bool isSameInAnyCase(std::string_view left, std::string_view right) {
    return std::ranges::equal(left, right, {}, &lowerCase, &lowerCase);
}

/// True when `name` has something before `extension`, such as ".dll", in which case doesn't count.
[[nodiscard]] inline bool hasExtension(std::string_view name, std::string_view extension) {
    return name.size() > extension.size() && isSameInAnyCase(name.substr(name.size() - extension.size()), extension);
}

}  // namespace tarq
