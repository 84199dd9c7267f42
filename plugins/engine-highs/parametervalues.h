// ParameterValues: the parameters given to the engine as text assignments.
//
// Every name is taken, also one the engine has no use for. Names are kept in lower case and are compared so. Those that
// the engine reads are listed with their defaults in parametervalues.cpp; a number for one of them is checked here.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace tarq::engine {

class ParameterValues {
public:
    /// Takes "name=value", string values in single quotes. The result is empty, or says what is wrong with the text;
    /// then nothing has changed.
    [[nodiscard]] std::string assign(std::string_view assignment);

    /// Value of a parameter that the engine reads, its default when it was not given.
    [[nodiscard]] double number(std::string_view name) const;
    [[nodiscard]] std::string text(std::string_view name) const;

    /// number() as a whole number within the range of int.
    [[nodiscard]] int integer(std::string_view name) const;

    /// Value as it was given, or the default of one that the engine reads; nothing for any other name.
    [[nodiscard]] std::optional<std::string> shown(std::string_view name) const;

private:
    struct Value {
        std::string text;
        double number = 0.0;
    };
    std::map<std::string, Value, std::less<>> values_;
};

/// Text in lower case, ASCII letters only.
[[nodiscard]] std::string lowerCase(std::string_view text);

/// Text without the blanks and tabs at its ends.
[[nodiscard]] std::string_view trimmed(std::string_view text);

/// A number in the form of the process-independent "C" notation, the whole text; nothing when it is none or not finite.
[[nodiscard]] std::optional<double> parseNumber(std::string_view text);

}  // namespace tarq::engine
