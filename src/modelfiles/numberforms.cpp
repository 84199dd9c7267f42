#include "modelfiles/numberforms.h"

#include <charconv>
#include <initializer_list>

namespace tarq {
namespace {

constexpr double withoutMinusZero(double value) { return value == 0.0 ? 0.0 : value; }

char* writeGeneral(char* to, double value, int digits) {
    return std::to_chars(to, to + longestNumberForm, withoutMinusZero(value), std::chars_format::general, digits).ptr;
}

}  // namespace

char* writeRealToken(char* to, double value) {
    char* const end = writeGeneral(to, value, 16);
    *end = ' ';
    return end + 1;
}

char* writeIntegerToken(char* to, std::int32_t value) {
    char* const end = std::to_chars(to, to + longestNumberForm, value).ptr;
    *end = ' ';
    return end + 1;
}

char* writeFixedFieldNumber(char* to, double value) {
    constexpr std::ptrdiff_t width = 12;
    for (const int digits : {11, 5}) {
        char* const end = writeGeneral(to, value, digits);
        if (end - to <= width) return end;
    }
    return writeGeneral(to, value, 3);
}

char* writePlainDecimal(char* to, double value) {
    constexpr int digitsBehindPoint = 11;
    char* end = std::to_chars(to, to + longestNumberForm, withoutMinusZero(value), std::chars_format::fixed,
                              digitsBehindPoint)
                    .ptr;
    bool hasPoint = false;
    for (const char* at = to; at != end; ++at) hasPoint = hasPoint || *at == '.';
    if (!hasPoint) return end;
    while (end[-1] == '0') --end;
    if (end[-1] == '.') --end;
    // What was rounded away to nothing has no sign.
    if (end - to == 2 && to[0] == '-' && to[1] == '0') *to = '0', end = to + 1;
    return end;
}

}  // namespace tarq
