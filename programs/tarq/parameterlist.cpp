#include "parameterlist.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <iterator>
#include <numeric>
#include <utility>

#include "console.h"

namespace tarq::command {

namespace {

constexpr std::string_view sectionTitles[] = {
    "",           "Optimization Direction",       "Ressource Limits", "LP Parameter", "IP Parameter", "Other Parameter",
    "Tolerances", "File Names and File Switches",
};

std::string lowerCase(std::string_view text) {
    std::string result(text);
    for (char& c : result) c = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    return result;
}

/// How many characters must be put in, taken out or exchanged to make one text of the other.
std::size_t editDistance(std::string_view from, std::string_view to) {
    std::vector<std::size_t> row(to.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 0; i < from.size(); ++i) {
        std::size_t diagonal = std::exchange(row[0], i + 1);
        for (std::size_t j = 0; j < to.size(); ++j) {
            const std::size_t exchanged = diagonal + (from[i] == to[j] ? 0U : 1U);
            diagonal = row[j + 1];
            row[j + 1] = std::min({exchanged, row[j] + 1, row[j + 1] + 1});
        }
    }
    return row.back();
}

Parameter readParameter(ITARQModel& model, std::int32_t id) {
    Parameter row;
    row.id = id;
    std::int32_t type = 0;
    std::int32_t optionCount = 0;
    std::int32_t control = 0;
    const Status status =
        model.GetParameterInfo(id, &type, &row.name, &row.minimum, &row.maximum, &row.defaultValue, &row.value,
                               &row.maxLength, &optionCount, &row.description, &row.category, &control);
    if (status.failed()) return row;
    row.type = static_cast<Parameter::Type>(type);
    for (std::int32_t option = 1; option <= optionCount; ++option) {
        Parameter::Option read{};
        if (model.GetParameterOption(id, option, &read.value, &read.text).isOk())
            row.options.push_back(std::move(read));
    }
    return row;
}

}  // namespace

std::string_view Parameter::typeName() const {
    return type == Type::Long ? "long" : type == Type::Double ? "double" : "text";
}

std::string_view Parameter::section() const {
    const auto title = static_cast<std::size_t>(category);
    return title < std::size(sectionTitles) ? sectionTitles[title] : std::string_view();
}

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

std::vector<std::string_view> similarNames(const std::vector<Parameter>& parameters, std::string_view name) {
    constexpr std::size_t most = 3;
    constexpr std::size_t farthest = 2;
    constexpr std::size_t shortestPart = 3;
    const std::string wanted = lowerCase(name);
    std::vector<std::pair<std::size_t, std::string_view>> near;
    for (const Parameter& row : parameters) {
        const std::size_t distance = editDistance(wanted, row.name);
        const bool isPart = wanted.size() >= shortestPart && row.name.find(wanted) != std::string::npos;
        if (distance <= farthest || isPart) near.emplace_back(isPart ? 0 : distance, row.name);
    }
    std::stable_sort(near.begin(), near.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
    std::vector<std::string_view> names;
    for (std::size_t i = 0; i < std::min(most, near.size()); ++i) names.push_back(near[i].second);
    return names;
}

std::string suggestion(const std::vector<Parameter>& parameters, std::string_view name) {
    const std::vector<std::string_view> names = similarNames(parameters, name);
    if (names.empty()) return "'tarq parameters' lists them all.";
    std::string text = fmt::format("Did you mean {}", names.front());
    for (std::size_t i = 1; i < names.size(); ++i)
        text += fmt::format("{}{}", i + 1 == names.size() ? " or " : ", ", names[i]);
    return text + "?";
}

std::string limitsText(const Parameter& parameter) {
    if (parameter.type == Parameter::Type::Text)
        return fmt::format("at most {}", counted(parameter.maxLength, "character"));
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
