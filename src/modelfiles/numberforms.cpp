#include "modelfiles/numberforms.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstring>
#include <initializer_list>

namespace tarq {
namespace {

/// As many digits as every double that lies next to such a decimal number gives back when it is rounded to them: up to
/// here the shortest form, which is quicker to make, has the digits that printf would print.
constexpr int safeDigits = 15;

/// The shortest decimal number that reads back as the value, by its digits.
struct ShortestForm {
    std::array<char, 24> digits;
    int count = 0;
    int exponent = 0;  ///< of the first digit
    bool negative = false;

    explicit ShortestForm(double value) {
        std::array<char, 32> text;
        const char* const end =
            std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::scientific).ptr;
        const char* at = text.data();
        negative = *at == '-';
        if (negative) ++at;
        for (; *at != 'e'; ++at) {
            if (*at != '.') digits[static_cast<std::size_t>(count++)] = *at;
        }
        ++at;
        if (*at == '+') ++at;
        std::from_chars(at, end, exponent);
    }
};

/// Whether 16 significant digits of a double are its shortest form, of which this is a short one. A double lies up to
/// half of its last bit beside the number that it stands for, which can show in the 16th digit when the first one is
/// large, or when a double that stands for a power of ten lies below it; unless it stands for that number exactly, as
/// 7.25.
bool holdsAtSixteenDigits(const ShortestForm& form) {
    const bool powerOfTen = form.count == 1 && form.digits[0] == '1';
    if (form.digits[0] < '4' && !powerOfTen) return true;
    const int decimals = form.count - 1 - form.exponent;
    constexpr int mostDecimals = 20;
    if (decimals <= 0 || decimals > mostDecimals) return false;
    std::uint64_t digits = 0;
    for (int i = 0; i < form.count; ++i)
        digits = digits * 10 + static_cast<std::uint64_t>(form.digits[static_cast<std::size_t>(i)] - '0');
    // digits / 10^decimals has a finite binary form where the fives go away.
    for (int i = 0; i < decimals; ++i) {
        if (digits % 5 != 0) return false;
        digits /= 5;
    }
    return true;
}

char* writeZeros(char* to, int count) {
    std::memset(to, '0', static_cast<std::size_t>(count));
    return to + count;
}

char* writeDigits(char* to, const char* digits, int count) {
    std::memcpy(to, digits, static_cast<std::size_t>(count));
    return to + count;
}

char* writeFixed(char* to, const ShortestForm& form) {
    const int before = form.exponent + 1;  // digits before the point
    if (before <= 0) {
        *to++ = '0';
        *to++ = '.';
        return writeDigits(writeZeros(to, -before), form.digits.data(), form.count);
    }
    if (before >= form.count) return writeZeros(writeDigits(to, form.digits.data(), form.count), before - form.count);
    to = writeDigits(to, form.digits.data(), before);
    *to++ = '.';
    return writeDigits(to, form.digits.data() + before, form.count - before);
}

char* writeScientific(char* to, const ShortestForm& form) {
    *to++ = form.digits[0];
    if (form.count > 1) *to++ = '.';
    to = writeDigits(to, form.digits.data() + 1, form.count - 1);
    *to++ = 'e';
    *to++ = form.exponent < 0 ? '-' : '+';
    const int size = std::abs(form.exponent);
    if (size < 10) *to++ = '0';
    return std::to_chars(to, to + longestNumberForm, size).ptr;
}

/// Writes a whole number of at most `most` in size; nothing, and a null pointer, for another one.
char* writeWhole(char* to, double value, double most) {
    if (!(std::abs(value) <= most) || value != std::trunc(value)) return nullptr;
    return std::to_chars(to, to + longestNumberForm, static_cast<std::int64_t>(value)).ptr;
}

/// printf's "%.*g" for 3, 5, 11 or 16 digits.
char* writeGeneral(char* to, double value, int digits) {
    const double most = digits == 3 ? 999.0 : digits == 5 ? 99'999.0 : digits == 11 ? 99'999'999'999.0 : 1e15;
    if (char* const end = writeWhole(to, value, most); end != nullptr) return end;
    // Subnormal numbers have fewer digits than printf shows of them.
    if (std::isnormal(value)) {
        const ShortestForm form(value);
        if (form.count <= std::min(digits, safeDigits) && (digits <= safeDigits || holdsAtSixteenDigits(form))) {
            if (form.negative) *to++ = '-';
            return form.exponent < -4 || form.exponent >= digits ? writeScientific(to, form) : writeFixed(to, form);
        }
    }
    return std::to_chars(to, to + longestNumberForm, value, std::chars_format::general, digits).ptr;
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
    constexpr int decimals = 11;
    if (char* const end = writeWhole(to, value, 1e15); end != nullptr) return end;
    if (std::isfinite(value)) {
        const ShortestForm form(value);
        // Digits from the first one to the last that is printed.
        const bool isExact = form.exponent + 1 + decimals <= safeDigits && form.count - 1 - form.exponent <= decimals;
        if (isExact) {
            if (form.negative) *to++ = '-';
            return writeFixed(to, form);
        }
    }
    char* end = std::to_chars(to, to + longestNumberForm, value, std::chars_format::fixed, decimals).ptr;
    if (!std::isfinite(value)) return end;
    while (end[-1] == '0') --end;
    if (end[-1] == '.') --end;
    // What was rounded away to nothing has no sign.
    if (end - to == 2 && to[0] == '-' && to[1] == '0') {
        *to = '0';
        --end;
    }
    return end;
}

}  // namespace tarq
