#include "printing/parameterreport.h"

#include <fmt/format.h>

#include <cstdio>

#include "printing/console.h"
#include "printing/json.h"
#include "printing/table.h"
#include "printing/text.h"

namespace tarq::command {

namespace {

std::string_view typeName(Kind type) { return type == Kind::Long ? "long" : type == Kind::Double ? "double" : "text"; }

Json jsonOf(const Parameter& parameter) {
    Json row{{"id", parameter.id}, {"name", parameter.name}, {"type", typeName(parameter.type)}};
    if (parameter.type == Kind::Text) {
        row["maxLength"] = parameter.maxLength;
    } else {
        row["min"] = jsonValue(parameter.minimum);
        row["max"] = jsonValue(parameter.maximum);
    }
    row["default"] = jsonValue(parameter.defaultValue);
    row["value"] = jsonValue(parameter.value);
    const std::string_view section = sectionTitle(parameter.section);
    row["section"] = section.empty() ? Json() : Json(section);
    row["description"] = parameter.description;
    row["options"] = Json::array();
    for (const Parameter::Option& option : parameter.options) {
        row["options"].push_back({{"value", option.value}, {"text", option.text}});
    }
    return row;
}

/// How many characters a description may have in the list; all of them where there is no terminal's edge.
std::size_t roomForDescription() {
    constexpr std::size_t beforeDescription = 50;
    constexpr std::size_t narrowest = 20;
    if (!isTerminal(stdout)) return std::string::npos;
    const std::size_t width = terminalWidth(stdout);
    return width > beforeDescription + narrowest ? width - beforeDescription : narrowest;
}

/// A section's title and its parameters as a table; empty for a section without any.
std::string sectionText(const std::vector<Parameter>& parameters, ParameterSection section, std::size_t room) {
    Table table({{"Name", Align::Left}, {"Default", Align::Left}, {"Limits", Align::Left}, {"Meaning", Align::Left}});
    bool any = false;
    for (const Parameter& row : parameters) {
        if (row.section != section) continue;
        any = true;
        table.add({row.name, fmt::format("{:<11}", valueText(row.defaultValue)), fmt::format("{:<24}", limitsText(row)),
                   shortened(row.description, room)});
    }
    const std::string_view title = section == ParameterSection::None ? "Not in a section" : sectionTitle(section);
    return any ? fmt::format("{}\n{}\n", title, table.text(2)) : std::string();
}

std::string textOf(const Parameter& parameter) {
    const std::size_t width = readingWidth();
    const std::string_view section = sectionTitle(parameter.section);
    std::string text = fmt::format("{} (parameter {})\n", parameter.name, parameter.id);
    text += fmt::format("  Section  {}\n", section.empty() ? "none" : section);
    text += fmt::format("  Type     {}\n", typeName(parameter.type));
    text += fmt::format("  Limits   {}\n", limitsText(parameter));
    text += fmt::format("  Default  {}\n", valueText(parameter.defaultValue));
    if (!parameter.description.empty()) text += fmt::format("\n{}\n", wrapped(parameter.description, width, 2));
    if (parameter.options.empty()) return text;
    text += "\n  Values\n";
    for (const Parameter::Option& option : parameter.options) {
        const std::string meaning = wrapped(option.text.empty() ? "(off)" : option.text, width, 9);
        text += fmt::format("  {:>5}  {}\n", option.value, meaning.substr(9));
    }
    return text;
}

std::string textOf(const std::vector<Parameter>& parameters) {
    const std::size_t room = roomForDescription();
    std::string text;
    for (const ParameterSection section : sectionsInOrder) text += sectionText(parameters, section, room);
    return text + sectionText(parameters, ParameterSection::None, room) +
           "'tarq parameters NAME' explains a parameter in full.\n";
}

}  // namespace

std::string parameterReport(const Parameter& parameter, bool json) {
    return json ? documentOf(jsonOf(parameter)) : textOf(parameter);
}

std::string parameterReport(const std::vector<Parameter>& parameters, bool json) {
    if (!json) return textOf(parameters);
    Json list = Json::array();
    for (const Parameter& parameter : parameters) list.push_back(jsonOf(parameter));
    return documentOf(list);
}

}  // namespace tarq::command
