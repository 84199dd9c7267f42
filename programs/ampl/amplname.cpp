#include "amplname.h"

#include <algorithm>

namespace tarq::translator {

namespace {

/// Length of the subscript at the start of `text`, which is a word, a number or a string with its quotes.
std::size_t subscriptLength(std::string_view text) {
    if (text[0] != '\'') return std::min(text.find_first_of(",]"), text.size());
    // A quote within a string is doubled, which reads as one string behind another.
    std::size_t end = 0;
    while (text.substr(end, 1) == "'") end = std::min(text.find('\'', end + 1), text.size() - 1) + 1;
    return end;
}

bool needsQuotes(std::string_view subscript) {
    const char first = subscript.empty() ? '0' : subscript[0];
    return (first >= 'a' && first <= 'z') || (first >= 'A' && first <= 'Z') || first == '_';
}

}  // namespace

std::string amplName(std::string_view name) {
    const std::string_view family = familyName(name);
    if (family.size() == name.size() || name.back() != ']') return std::string(name);
    std::string spelled(family);
    std::string_view rest = name.substr(family.size());
    while (rest.size() > 1) {
        spelled += rest[0];
        rest.remove_prefix(1);
        const std::string_view subscript = rest.substr(0, subscriptLength(rest));
        const std::string_view quote = needsQuotes(subscript) ? "'" : "";
        spelled.append(quote).append(subscript).append(quote);
        rest.remove_prefix(subscript.size());
    }
    return spelled.append(rest);
}

std::string_view familyName(std::string_view name) { return name.substr(0, name.find('[')); }

}  // namespace tarq::translator
