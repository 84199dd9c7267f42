#include "frame/text.h"

#include <algorithm>

namespace tarq {
namespace {

/// Bytes of the character that begins with `lead`, 1 for a byte that can't begin one.
std::size_t characterSize(unsigned char lead) {
    if (lead >= 0xC2 && lead <= 0xDF) return 2;
    if (lead >= 0xE0 && lead <= 0xEF) return 3;
    if (lead >= 0xF0 && lead <= 0xF4) return 4;
    return 1;
}

bool isContinuation(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; }

}  // namespace

std::size_t utf16Length(std::string_view text) {
    std::size_t length = 0;
    while (!text.empty()) {
        std::size_t size = characterSize(static_cast<unsigned char>(text.front()));
        const std::string_view tail = text.substr(1, size - 1);
        if (tail.size() + 1 < size || !std::ranges::all_of(tail, isContinuation)) size = 1;
        length += size == 4 ? 2 : 1;
        text.remove_prefix(size);
    }
    return length;
}

}  // namespace tarq
