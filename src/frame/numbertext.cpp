#include "frame/numbertext.h"

#include <charconv>
#include <limits>
#include <system_error>

namespace tarq {

std::string realText(double value) {
    std::array<char, 32> buffer;
    char* const end = buffer.data() + buffer.size();
    const auto [stop, error] = std::to_chars(buffer.data(), end, value, std::chars_format::general, 16);
    return {buffer.data(), error == std::errc{} ? stop : buffer.data()};
}

bool parseInteger(std::string_view text, std::int32_t& value) {
    const bool plus = text.starts_with('+');
    const char* const first = text.data() + (plus ? 1 : 0);
    const char* const end = text.data() + text.size();
    if (plus && first != end && *first == '-') return false;
    std::int32_t read = 0;
    const auto [stop, error] = std::from_chars(first, end, read);
    if (stop != end || error == std::errc::invalid_argument) return false;
    if (error == std::errc::result_out_of_range) {
        using Limits = std::numeric_limits<std::int32_t>;
        read = *first == '-' ? Limits::min() : Limits::max();
    }
    value = read;
    return true;
}

double numbertext::readCheckedReal(std::string_view text) {
    double value = 0;
    const char* const end = text.data() + text.size();
    if (std::from_chars(text.data(), end, value).ec != std::errc::result_out_of_range) return value;

    // from_chars doesn't say on which side the number lies, so its decimal exponent has to.
    Scan scan{text.data(), end};
    std::uint64_t ignored = 0;
    while (scan.at != end && *scan.at == '0') ++scan.at;
    std::ptrdiff_t magnitude = scan.takeDigits(ignored);
    if (scan.at != end && *scan.at == '.') {
        ++scan.at;
        if (magnitude == 0) {
            for (; scan.at != end && *scan.at == '0'; ++scan.at) --magnitude;
        }
        scan.takeDigits(ignored);
    }
    std::ptrdiff_t exponent = 0;
    if (scan.at != end) {
        ++scan.at;
        (void)scan.takeExponent(exponent);
    }
    return magnitude + exponent > 0 ? std::numeric_limits<double>::infinity() : 0.0;
}

}  // namespace tarq
