// What the solver parameters are: their names, kinds, limits, defaults, texts and options, as constant data.
//
// Everything here lives as long as the program and may be read on any thread. Names are lower case and searched exactly
// as they stand; whoever takes a name from a client lower-cases it first. Rows, slots and options are 0-based here;
// ParameterID and option ID of the clients are the position plus 1.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "tarq/interfaces/parametersections.h"

namespace tarq {

/// Published kind of a row, the code of the Variant that carries its value.
enum class ParameterType : std::int32_t { Long = 3, Double = 5, String = 8 };

/// How a row is edited on a page; the published lpControl.
enum class ParameterControl : std::int32_t {
    None = 0,
    RadioGroup = 1,  ///< a button for each option
    CheckBox = 2,    ///< checked means the first option, which also carries the label; unchecked the second
    ComboBox = 3,    ///< an entry for each option
    EditField = 4,   ///< with a file button for a text of the section Files
};

/// A value of a row that has a name. The text is empty where the value has none, as for an unchecked box.
struct ParameterOption {
    std::int32_t value = 0;
    std::string_view text;
};

/// One parameter. Limits and default of the kinds other than its own are 0 or empty.
struct ParameterRow {
    std::string_view name;  ///< lower case, at most 6 characters
    ParameterType type = ParameterType::Long;
    ParameterSection section = ParameterSection::None;
    ParameterControl control = ParameterControl::None;
    bool onPage = true;

    std::int32_t longMinimum = 0;  ///< limits are inclusive
    std::int32_t longMaximum = 0;
    std::int32_t longDefault = 0;

    double doubleMinimum = 0.0;
    double doubleMaximum = 0.0;
    double doubleDefault = 0.0;

    std::string_view stringDefault;
    std::int32_t stringMaxLength = 0;  ///< in UTF-16 code units

    std::string_view description;              ///< may be empty
    std::span<const ParameterOption> options;  ///< at most 8, in the order in which they are shown
};

/// A value that the engine reports during a run, Long or Double.
struct ResultSlot {
    std::string_view name;
    ParameterType type = ParameterType::Double;
};

inline constexpr int parameterCount = 121;
inline constexpr int resultCount = 14;
inline constexpr int maximumOptionCount = 8;
inline constexpr int maximumParameterNameLength = 6;

/// The upper limit of most double rows, which stands for "no limit".
inline constexpr double tableInfinity = 1e20;

/// The 121 rows in their published order, in which profiles are written and the engine is told; ParameterID is the
/// position plus 1. Nearly alphabetical, not entirely.
[[nodiscard]] std::span<const ParameterRow> parameterRows();

/// The 14 results in their published order.
[[nodiscard]] std::span<const ResultSlot> resultSlots();

/// 0-based row of a lower-case name, -1 when there is none. Seven comparisons of integers, no allocation.
[[nodiscard]] int parameterIndex(std::string_view name);
/// Slot of a lower-case result name, -1 when there is none.
[[nodiscard]] int resultIndex(std::string_view name);

/// "long", "double" or "string".
[[nodiscard]] std::string_view typeName(ParameterType type);

}  // namespace tarq
