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

#include "frame/result.h"
#include "parameters/parametertable.h"
#include "tarq/frame/status.h"
#include "tarq/frame/variant.h"

namespace tarq {

/// A row's default, of the row's kind; Empty for a row of no known kind.
[[nodiscard]] Variant defaultOf(const ParameterRow& row);
/// A row's limits, of the row's kind; Empty for a text.
[[nodiscard]] Variant minimumOf(const ParameterRow& row);
[[nodiscard]] Variant maximumOf(const ParameterRow& row);

/// The value of a parameter or a result, of its kind, by name; else unknownParameter.
[[nodiscard]] Result<Variant> readParameter(const ParameterTable& table, std::string_view name);

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

/// Describes the row with the 1-based `parameterId`; invalidArgument when there is none.
[[nodiscard]] Result<ParameterInfo> parameterInfo(const ParameterTable& table, std::int32_t parameterId);

/// The option `optionId` of the row `parameterId`, both 1-based; invalidArgument when there is no such row or option.
[[nodiscard]] Result<ParameterOption> parameterOption(std::int32_t parameterId, std::int32_t optionId);

}  // namespace tarq
