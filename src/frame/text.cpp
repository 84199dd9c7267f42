#include "frame/text.h"

#include <algorithm>

namespace tarq {
namespace {

bool isContinuation(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; }

/// Bytes of a character that begins with `lead`, 1 for a byte that can't begin one.
std::size_t sizeByLead(unsigned char lead) {
    if (lead >= 0xC2 && lead <= 0xDF) return 2;
    if (lead >= 0xE0 && lead <= 0xEF) return 3;
    if (lead >= 0xF0 && lead <= 0xF4) return 4;
    return 1;
}

/// False for the second bytes of forms that are longer than needed, of surrogates, and of what lies beyond U+10FFFF.
bool canFollow(unsigned char lead, unsigned char second) {
    if (lead == 0xE0) return second >= 0xA0;
    if (lead == 0xED) return second < 0xA0;
    if (lead == 0xF0) return second >= 0x90;
    if (lead == 0xF4) return second < 0x90;
    return true;
}

/// Bytes of the well-formed character that `text` begins with, 0 when it begins with none.
std::size_t wellFormedSize(std::string_view text) {
    const auto lead = static_cast<unsigned char>(text.front());
    if (lead < 0x80) return 1;
    const std::size_t size = sizeByLead(lead);
    if (size == 1 || text.size() < size) return 0;
    const bool isWellFormed = std::ranges::all_of(text.substr(1, size - 1), isContinuation) &&
                              canFollow(lead, static_cast<unsigned char>(text[1]));
    return isWellFormed ? size : 0;
}

}  // namespace

std::size_t utf16Length(std::string_view text) {
    std::size_t length = 0;
    while (!text.empty()) {
        const std::size_t size = wellFormedSize(text);
        length += size == 4 ? 2 : 1;
        text.remove_prefix(std::max<std::size_t>(size, 1));
    }
    return length;
}

std::string wellFormedText(std::string bytes) {
    constexpr std::string_view replacement = "\xEF\xBF\xBD";
    std::string text;
    bool anyReplaced = false;
    std::size_t done = 0;  // bytes that are in `text` already
    for (std::size_t at = 0; at < bytes.size();) {
        const std::size_t size = wellFormedSize(std::string_view(bytes).substr(at));
        if (size == 0) {
            text.append(bytes, done, at - done).append(replacement);
            done = at + 1;
            anyReplaced = true;
        }
        at += std::max<std::size_t>(size, 1);
    }
    if (!anyReplaced) return bytes;
    return text.append(bytes, done);
}

bool equalWithoutCase(std::string_view left, std::string_view right) noexcept {
    return std::ranges::equal(left, right, {}, lowerCased, lowerCased);
}

}  // namespace tarq
