// What the solver parameters are: their names, kinds, limits, defaults, texts and options, as constant data.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace tarq {

/// Published kind of a row, the code of the Variant that carries its value.
enum class ParameterType : std::int32_t { Long = 3, Double = 5, String = 8 };

struct ParameterOption {
    std::int32_t value;
    std::string_view text;
};

struct ParameterRow {
    std::string_view name;  ///< lower case, at most 6 characters
    ParameterType type;
    // ...
};

inline constexpr int parameterCount = 121;
inline constexpr int resultCount = 14;

/// The 121 rows in their published order; ParameterID is the position plus 1.
std::span<const ParameterRow> parameterRows();

/// 0-based row of a lower-case name, -1 when there is none.
[[nodiscard]] int parameterIndex(std::string_view name);
/// Slot of a lower-case result name, -1 when there is none.
[[nodiscard]] int resultIndex(std::string_view name);

}  // namespace tarq
