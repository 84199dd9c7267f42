// Checked access to a ParameterTable by the names and values of late-bound clients.
//
// Every change of a parameter that a client asks for goes through writeParameter, so all checks and their words are
// here and in the stores of the table. Names are found without regard to case. No operation looks at the user's locale:
// text becomes a number under the English conventions on every machine.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "parameters/parametertable.h"
#include "tarq/frame/status.h"
#include "tarq/frame/variant.h"

namespace tarq {

/// Reads a parameter or a result by name into a Variant of its kind. unknownParameter "Parameter name does not exist."
/// leaves `value` as it was.
[[nodiscard]] Outcome readParameter(const ParameterTable& table, std::string_view name, Variant& value);

/// Checks and stores a parameter by name; a reference is resolved first. Results can't be written: like unknown names
/// they give unknownParameter. wrongKind when the value can't become the row's kind, else the failures of the table's
/// stores; a failure leaves the table unchanged.
/// "xminmx" is stored in lower case, whatever the text. If the bound "xipbnd" then reaches `infinity`, the model's own,
/// it is set to the infinity that is open to the new direction.
[[nodiscard]] Outcome writeParameter(ParameterTable& table, std::string_view name, const Variant& value,
                                     double infinity);

/// All that GetParameterInfo tells. What a row of its kind doesn't tell is empty, and the caller's variable behind it
/// stays as it was.
struct ParameterInfo {
    ParameterType type = ParameterType::Long;
    std::string_view name;
    std::optional<Variant> minimum;  ///< empty for a string row
    std::optional<Variant> maximum;  ///< empty for a string row
    Variant defaultValue;
    Variant value;
    std::int32_t stringLength = 0;            ///< longest text of a string row, else 0
    std::optional<std::int32_t> optionCount;  ///< empty for a string row, 0 for a double row
    std::string_view description;
    ParameterSection section = ParameterSection::None;
    ParameterControl control = ParameterControl::None;
};

/// Describes the row with the 1-based `parameterId`. invalidArgument "Bad parameter ID." leaves `info` as it was.
[[nodiscard]] Outcome parameterInfo(const ParameterTable& table, std::int32_t parameterId, ParameterInfo& info);

/// The option `optionId` of the row `parameterId`, both 1-based. invalidArgument "Bad parameter ID." or "Bad option
/// ID." leaves `option` as it was.
[[nodiscard]] Outcome parameterOption(std::int32_t parameterId, std::int32_t optionId, ParameterOption& option);

}  // namespace tarq
