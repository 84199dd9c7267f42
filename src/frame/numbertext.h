// Number text as files and parameters hold it: the point is the decimal mark on every machine.
//
// Plain functions that allocate nothing but results and never look at a locale. parseReal is the inner loop of the
// model file readers: numbers of up to 19 digits with a small exponent are read inline, the rest by std::from_chars.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace tarq {

/// `value` as printf's "%.16g" writes it: 1, 0.1, 1e+25, 1e-05, inf, nan.
std::string realText(double value);

/// Reads a whole text of an optional sign, digits, an optional point among or around them, and an optional exponent.
/// Blanks, infinities, not-a-number and hexadecimal digits are refused. The nearest double is stored: an infinity for
/// what is too large, 0 for what is too small. On failure `value` is unchanged and the result is false.
[[nodiscard]] inline bool parseReal(std::string_view text, double& value);

/// Reads a whole text of an optional sign and digits. A number beyond 32 bits becomes the nearest that fits. On failure
/// `value` is unchanged and the result is false.
[[nodiscard]] bool parseInteger(std::string_view text, std::int32_t& value);

namespace numbertext {

/// The powers of ten that a double holds exactly.
inline constexpr std::array powersOfTen{1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
                                        1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};

/// Value of an unsigned number whose form is known to be right.
double readCheckedReal(std::string_view text);

/// The parts of a number while it is read.
struct Scan {
    const char* at;
    const char* end;

    [[nodiscard]] bool atDigit() const { return at != end && static_cast<unsigned char>(*at - '0') < 10; }
    [[nodiscard]] unsigned digit() const { return static_cast<unsigned char>(*at - '0'); }
    bool takeSign() {
        if (at == end || (*at != '-' && *at != '+')) return false;
        return *at++ == '-';
    }
    /// Skips digits, which are appended to `mantissa`, and returns how many there were.
    std::ptrdiff_t takeDigits(std::uint64_t& mantissa) {
        const char* const first = at;
        for (; atDigit(); ++at) mantissa = mantissa * 10 + digit();
        return at - first;
    }
    /// Reads an exponent behind its letter, held within a billion; false when it has no digits.
    bool takeExponent(std::ptrdiff_t& exponent) {
        const bool negative = takeSign();
        if (!atDigit()) return false;
        std::ptrdiff_t read = 0;
        for (; atDigit(); ++at) {
            if (read < 100'000'000) read = read * 10 + static_cast<std::ptrdiff_t>(digit());
        }
        exponent = negative ? -read : read;
        return true;
    }
    /// Digits with at most one point among them. Returns how many they are; the last one counts ten to the `scale`.
    std::ptrdiff_t takeDecimal(std::uint64_t& mantissa, std::ptrdiff_t& scale) {
        std::ptrdiff_t digitCount = takeDigits(mantissa);
        scale = 0;
        if (at == end || *at != '.') return digitCount;
        ++at;
        scale = -takeDigits(mantissa);
        digitCount -= scale;
        return digitCount;
    }
};

/// Value of the unsigned number `text`, of whose `digitCount` digits `mantissa` is made, ten to the `scale` times that.
inline double magnitudeOf(std::uint64_t mantissa, std::ptrdiff_t digitCount, std::ptrdiff_t scale,
                          std::string_view text) {
    // Both operands are exact, so one operation rounds once and gives the nearest double.
    constexpr std::uint64_t exactLimit = std::uint64_t{1} << 53U;
    constexpr std::ptrdiff_t exactScale = powersOfTen.size() - 1;
    const double magnitude = static_cast<double>(mantissa);
    if (digitCount > 19 || mantissa > exactLimit || scale > exactScale || scale < -exactScale) {
        return readCheckedReal(text);
    }
    if (scale < 0) return magnitude / powersOfTen[static_cast<std::size_t>(-scale)];
    return magnitude * powersOfTen[static_cast<std::size_t>(scale)];
}

/// Reads the digits and the point that a text begins with, at least one digit, and returns where they end: before a
/// second point, a sign or a letter.
inline const char* readPlainReal(std::string_view text, double& value) {
    Scan scan{text.data(), text.data() + text.size()};
    std::uint64_t mantissa = 0;
    std::ptrdiff_t scale = 0;
    const std::ptrdiff_t digitCount = scan.takeDecimal(mantissa, scale);
    value = magnitudeOf(mantissa, digitCount, scale, text.substr(0, static_cast<std::size_t>(scan.at - text.data())));
    return scan.at;
}

}  // namespace numbertext

inline bool parseReal(std::string_view text, double& value) {
    numbertext::Scan scan{text.data(), text.data() + text.size()};
    const bool negative = scan.takeSign();
    const char* const first = scan.at;
    std::uint64_t mantissa = 0;
    std::ptrdiff_t scale = 0;
    const std::ptrdiff_t digitCount = scan.takeDecimal(mantissa, scale);
    if (digitCount == 0) return false;
    if (scan.at != scan.end && (*scan.at == 'e' || *scan.at == 'E')) {
        ++scan.at;
        std::ptrdiff_t exponent = 0;
        if (!scan.takeExponent(exponent)) return false;
        scale += exponent;
    }
    if (scan.at != scan.end) return false;

    const double magnitude =
        numbertext::magnitudeOf(mantissa, digitCount, scale, {first, static_cast<std::size_t>(scan.end - first)});
    value = negative ? -magnitude : magnitude;
    return true;
}

}  // namespace tarq
