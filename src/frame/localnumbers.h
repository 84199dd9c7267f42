// Number text as a person writes it: the double gate of text to number, and the display of numbers.
//
// Pure functions of the text and the user's marks. A conversion fails with the result false and leaves its output as it
// was.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/userlocale.h"
#include "tarq/frame/variant.h"

namespace tarq {

/// Reads a number written with `marks`: blanks around it, a sign, digits with group marks anywhere before the decimal
/// mark, the decimal mark, an exponent; nothing else, and at least one digit. Of point and comma the one that is not
/// the decimal mark is a group mark in every locale. Fails when the number is too large for a double.
[[nodiscard]] bool readLocalReal(std::string_view text, const NumberMarks& marks, double& value);

/// The double gate: the text has to be a number under the English marks and under the user's, and its value is the
/// English one.
[[nodiscard]] bool readGatedReal(std::string_view text, const NumberMarks& userMarks, double& value);

/// The same for 32-bit integers: under both marks the number, rounded, has to fit.
[[nodiscard]] bool readGatedInteger(std::string_view text, const NumberMarks& userMarks, std::int32_t& value);

/// Rounds to nearest, ties to even; fails beyond 32 bits and for not-a-number.
[[nodiscard]] bool roundToInteger(double real, std::int32_t& value);

/// `value` with `digits` significant digits: 0.1, 1E+20, 1E-05.
[[nodiscard]] std::string displayReal(double value, int digits, const NumberMarks& marks);
/// All digits that count, without trailing zeros behind the decimal mark.
[[nodiscard]] std::string displayDecimal(const Decimal& value, const NumberMarks& marks);
[[nodiscard]] std::string displayCurrency(Currency value, const NumberMarks& marks);

/// A date as 2024-02-29, 13:45:00 or both: the time is left out at midnight and the date on day 0. Seconds are rounded.
/// Fails outside of the years 100 to 9999.
[[nodiscard]] bool displayDate(double days, std::string& text);

}  // namespace tarq
