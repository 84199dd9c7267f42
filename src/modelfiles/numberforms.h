// Numbers as the writers of model files print them, the same on every machine.
//
// Each function writes at `to`, where longestNumberForm bytes must be free, and returns the end of what it wrote. No
// terminating zero is written. Infinities and not-a-number appear as "inf" and "nan" with their sign; minus zero as 0.
#pragma once

#include <cstddef>
#include <cstdint>

namespace tarq {

/// A double in fixed notation has up to 309 digits before its point.
inline constexpr std::size_t longestNumberForm = 352;

/// 16 significant digits as printf's "%.16g" gives them, and a blank behind: "0.1 ", "1e+25 ".
char* writeRealToken(char* to, double value);
/// All digits and a blank behind.
char* writeIntegerToken(char* to, std::int32_t value);
/// The longest of printf's "%.11g" and "%.5g" that has at most 12 characters, else "%.3g".
char* writeFixedFieldNumber(char* to, double value);
/// Fixed notation with at most 11 digits behind the point, without zeros at its end and never with an exponent.
char* writePlainDecimal(char* to, double value);

}  // namespace tarq
