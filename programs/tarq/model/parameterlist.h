// The solver parameters as the component describes them.
#pragma once

#include <tarq/tarq.h>

#include <string>
#include <string_view>
#include <vector>

#include "tarq/interfaces/parametersections.h"

namespace tarq::command {

/// What the component tells of a parameter.
struct Parameter {
    struct Option {
        std::int32_t value;
        std::string text;
    };

    std::int32_t id = 0;
    Kind type = Kind::Long;  ///< or Double or Text
    std::string name;
    Variant minimum;  ///< Empty for a text
    Variant maximum;
    Variant defaultValue;
    Variant value;
    std::int32_t maxLength = 0;  ///< of a text
    std::string description;
    ParameterSection section = ParameterSection::None;
    std::vector<Option> options;
};

/// The direction of the optimization, the one text that takes two words only.
inline constexpr std::string_view directionName = "xminmx";

/// All parameters in the order of the component.
[[nodiscard]] std::vector<Parameter> readParameters(ITARQModel& model);

/// The parameter of this name, in any case; null when there is none.
[[nodiscard]] const Parameter* findParameter(const std::vector<Parameter>& parameters, std::string_view name);

/// Those whose name or description contains a word, in any case.
[[nodiscard]] std::vector<Parameter> parametersWith(const std::vector<Parameter>& parameters, std::string_view word);

/// "did you mean xmxnod or xmxnen?", or where to find the list.
[[nodiscard]] std::string suggestion(const std::vector<Parameter>& parameters, std::string_view name);

/// What values a parameter takes, in words: "0 to 2000", "text of at most 32 characters".
[[nodiscard]] std::string limitsText(const Parameter& parameter);

/// A parameter's value as text; an empty text shows as two quotes.
[[nodiscard]] std::string valueText(const Variant& value);

}  // namespace tarq::command
