// Extensions of conventional file names, which stand for native ones here.
#pragma once

#include <algorithm>
#include <string_view>

namespace tarq {

/// True when `name` has something before `extension`, such as ".dll", in which case doesn't count.
[[nodiscard]] inline bool hasExtension(std::string_view name, std::string_view extension) {
    if (name.size() <= extension.size()) return false;
    name.remove_prefix(name.size() - extension.size());
    return std::ranges::equal(name, extension, [](char found, char wanted) {
        return (found >= 'A' && found <= 'Z' ? found - 'A' + 'a' : found) == wanted;
    });
}

}  // namespace tarq
