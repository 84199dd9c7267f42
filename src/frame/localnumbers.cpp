#include "frame/localnumbers.h"

#include <fmt/format.h>

#include <array>
#include <chrono>
#include <cmath>
#include <cstddef>
#include <limits>

#include "frame/numbertext.h"

namespace tarq {
namespace {

const NumberMarks& englishMarks() {
    static const NumberMarks marks{".", ","};
    return marks;
}

std::string_view withoutBlanks(std::string_view text) {
    constexpr std::string_view blanks = " \t";
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

/// Bytes of the group mark that `text` starts with, 0 when there is none.
std::size_t groupMarkLength(std::string_view text, const NumberMarks& marks) {
    if (!marks.group.empty() && text.starts_with(marks.group)) return marks.group.size();
    return text.starts_with('.') || text.starts_with(',') ? 1 : 0;
}

/// Rewrites a number with `marks` as one without group marks and with the point; what is left to check is its form.
bool toPlainNumber(std::string_view text, const NumberMarks& marks, std::string& plain) {
    text = withoutBlanks(text);
    plain.reserve(text.size());
    bool inWholePart = true;
    while (!text.empty()) {
        std::size_t taken = 1;
        if (inWholePart && text.starts_with(marks.decimal)) {
            plain += '.';
            taken = marks.decimal.size();
            inWholePart = false;
        } else if (inWholePart && groupMarkLength(text, marks) != 0) {
            taken = groupMarkLength(text, marks);
        } else if (text.front() == '.') {
            return false;
        } else {
            inWholePart = inWholePart && text.front() != 'e' && text.front() != 'E';
            plain += text.front();
        }
        text.remove_prefix(taken);
    }
    return true;
}

/// Decimal digits of a 96-bit integer.
std::string digitsOf(const Decimal& value) {
    constexpr std::uint64_t chunk = 1'000'000'000;
    std::array<std::uint64_t, 3> words{value.high, value.middle, value.low};
    std::string digits;
    while (words[0] != 0 || words[1] != 0 || words[2] != 0) {
        std::uint64_t remainder = 0;
        for (std::uint64_t& word : words) {
            const std::uint64_t dividend = (remainder << 32U) | word;
            word = dividend / chunk;
            remainder = dividend % chunk;
        }
        digits.insert(0, fmt::format("{:09}", remainder));
    }
    digits.erase(0, std::min(digits.find_first_not_of('0'), digits.size()));
    return digits;
}

/// Places the decimal mark before the last `scale` digits and drops zeros that don't count.
std::string withDecimalMark(std::string digits, std::size_t scale, bool negative, const NumberMarks& marks) {
    if (digits.size() <= scale) digits.insert(0, scale + 1 - digits.size(), '0');
    std::string_view fraction = digits;
    fraction.remove_prefix(digits.size() - scale);
    while (fraction.ends_with('0')) fraction.remove_suffix(1);
    const std::string_view whole(digits.data(), digits.size() - scale);
    const bool isZero = whole == "0" && fraction.empty();
    return fmt::format("{}{}{}{}", negative && !isZero ? "-" : "", whole, fraction.empty() ? "" : marks.decimal,
                       fraction);
}

}  // namespace

bool readLocalReal(std::string_view text, const NumberMarks& marks, double& value) {
    std::string plain;
    double read = 0;
    if (!toPlainNumber(text, marks, plain) || !parseReal(plain, read) || std::isinf(read)) return false;
    value = read;
    return true;
}

bool readGatedReal(std::string_view text, const NumberMarks& userMarks, double& value) {
    double english = 0;
    double users = 0;
    if (!readLocalReal(text, englishMarks(), english) || !readLocalReal(text, userMarks, users)) return false;
    value = english;
    return true;
}

bool readGatedInteger(std::string_view text, const NumberMarks& userMarks, std::int32_t& value) {
    double english = 0;
    double users = 0;
    std::int32_t usersInteger = 0;
    if (!readLocalReal(text, englishMarks(), english) || !readLocalReal(text, userMarks, users)) return false;
    return roundToInteger(users, usersInteger) && roundToInteger(english, value);
}

bool roundToInteger(double real, std::int32_t& value) {
    const double rounded = std::nearbyint(real);
    const bool fits =
        rounded >= std::numeric_limits<std::int32_t>::min() && rounded <= std::numeric_limits<std::int32_t>::max();
    if (fits) value = static_cast<std::int32_t>(rounded);
    return fits;
}

std::string displayReal(double value, int digits, const NumberMarks& marks) {
    std::string text = fmt::format("{:.{}G}", value == 0 ? 0.0 : value, digits);
    if (const std::size_t point = text.find('.'); point != std::string::npos) text.replace(point, 1, marks.decimal);
    return text;
}

std::string displayDecimal(const Decimal& value, const NumberMarks& marks) {
    return withDecimalMark(digitsOf(value), value.scale, value.negative, marks);
}

std::string displayCurrency(Currency value, const NumberMarks& marks) {
    const bool negative = value.tenThousandths < 0;
    const auto bits = static_cast<std::uint64_t>(value.tenThousandths);
    return withDecimalMark(fmt::format("{}", negative ? 0 - bits : bits), 4, negative, marks);
}

bool displayDate(double days, std::string& text) {
    using std::chrono::sys_days;
    constexpr double firstDay = -657434;  // 0100-01-01
    constexpr double endDay = 2958466;    // 10000-01-01
    if (!(days > firstDay - 1 && days < endDay)) return false;
    constexpr std::int64_t secondsOfDay = 86400;
    double wholeDays = std::trunc(days);
    auto second = std::llround(std::abs(days - wholeDays) * secondsOfDay);
    if (second == secondsOfDay) {
        wholeDays += 1;
        second = 0;
        if (wholeDays >= endDay) return false;
    }
    const sys_days origin{std::chrono::year{1899} / 12 / 30};
    const std::chrono::year_month_day day{origin + std::chrono::days{static_cast<int>(wholeDays)}};
    const std::string date =
        fmt::format("{:04}-{:02}-{:02}", int{day.year()}, unsigned{day.month()}, unsigned{day.day()});
    const std::string time = fmt::format("{:02}:{:02}:{:02}", second / 3600, second / 60 % 60, second % 60);
    if (second == 0 && wholeDays != 0) {
        text = date;
    } else {
        text = wholeDays == 0 ? time : date + ' ' + time;
    }
    return true;
}

}  // namespace tarq
