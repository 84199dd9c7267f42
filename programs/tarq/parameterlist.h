// The solver parameters as the component describes them.
#pragma once

#include <tarq/tarq.h>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarq::command {

/// What the component tells of a parameter.
struct Parameter {
    struct Option {
        std::int32_t value;
        std::string text;
    };
    enum class Type : std::int32_t { Long = 3, Double = 5, Text = 8 };

    std::int32_t id = 0;
    Type type = Type::Long;
    std::string name;
    Variant minimum;  ///< Empty for a text
    Variant maximum;
    Variant defaultValue;
    Variant value;
    std::int32_t maxLength = 0;  ///< of a text
    std::string description;
    std::int32_t category = 0;
    std::vector<Option> options;

    [[nodiscard]] std::string_view typeName() const;
    /// Title of the section that the parameter stands in; empty for none.
    [[nodiscard]] std::string_view section() const;
};

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
