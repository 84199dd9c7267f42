// Guid: identifier of an interface or a class, and its text form.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "tarq/frame/export.h"

namespace tarq {

/// Identifier of an interface or a class, as in "{00020846-0000-0000-C000-000000000046}".
struct Guid {
    std::uint32_t data1 = 0;
    std::uint16_t data2 = 0;
    std::uint16_t data3 = 0;
    std::array<std::uint8_t, 8> data4{};

    friend constexpr bool operator==(const Guid&, const Guid&) = default;
};

/// The text form: upper-case hexadecimal digits in braces.
TARQ_API std::string guidText(const Guid& guid);

/// Reads the text form, digits in either case, braces required. On failure `guid` is unchanged and the result is false.
[[nodiscard]] TARQ_API bool parseGuid(std::string_view text, Guid& guid);

}  // namespace tarq
