#include "model/parameterlist.h"

#include <fmt/format.h>

#include <algorithm>
#include <iterator>

#include "printing/text.h"

namespace tarq::command {

namespace {

Parameter readParameter(ITARQModel& model, std::int32_t id) {
    Parameter row;
    row.id = id;
    std::int32_t type = 0;
    std::int32_t optionCount = 0;
    std::int32_t category = 0;
    std::int32_t control = 0;
    const Status status =
        model.GetParameterInfo(id, &type, &row.name, &row.minimum, &row.maximum, &row.defaultValue, &row.value,
                               &row.maxLength, &optionCount, &row.description, &category, &control);
    if (status.failed()) return row;
    row.type = static_cast<Kind>(type);
    row.section = static_cast<ParameterSection>(category);
    for (std::int32_t option = 1; option <= optionCount; ++option) {
        Parameter::Option read{};
        if (model.GetParameterOption(id, option, &read.value, &read.text).isOk())
            row.options.push_back(std::move(read));
    }
    return row;
}

}  // namespace

std::vector<Parameter> readParameters(ITARQModel& model) {
    std::vector<Parameter> parameters;
    std::int32_t count = 0;
    if (model.get_NumberOfParameters(&count).failed()) return parameters;
    for (std::int32_t id = 1; id <= count; ++id) parameters.push_back(readParameter(model, id));
    return parameters;
}

const Parameter* findParameter(const std::vector<Parameter>& parameters, std::string_view name) {
    const std::string wanted = lowerCase(name);
    const auto found =
        std::find_if(parameters.begin(), parameters.end(), [&](const Parameter& row) { return row.name == wanted; });
    return found == parameters.end() ? nullptr : &*found;
}

std::vector<Parameter> parametersWith(const std::vector<Parameter>& parameters, std::string_view word) {
    const std::string wanted = lowerCase(word);
    const auto holds = [&](std::string_view text) { return lowerCase(text).find(wanted) != std::string::npos; };
    std::vector<Parameter> found;
    std::copy_if(parameters.begin(), parameters.end(), std::back_inserter(found),
                 [&](const Parameter& row) { return holds(row.name) || holds(row.description); });
    return found;
}

std::string suggestion(const std::vector<Parameter>& parameters, std::string_view name) {
    std::vector<std::string_view> names;
    names.reserve(parameters.size());
    for (const Parameter& row : parameters) names.emplace_back(row.name);
    return suggestion(names, name, "'tarq parameters' lists them all.");
}

std::string limitsText(const Parameter& parameter) {
    if (parameter.type == Kind::Text) return fmt::format("at most {}", counted(parameter.maxLength, "character"));
    return fmt::format("{} to {}", valueText(parameter.minimum), valueText(parameter.maximum));
}

std::string valueText(const Variant& value) {
    switch (value.kind()) {
        case Kind::Long:
            return fmt::format("{}", value.integer());
        case Kind::Double:
            return numberText(value.real());
        case Kind::Text:
            return value.text().empty() ? "''" : value.text();
        default:
            return {};
    }
}

}  // namespace tarq::command
