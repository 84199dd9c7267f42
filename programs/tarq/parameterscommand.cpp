#include "parameterscommand.h"

#include <fmt/format.h>

#include <cstdio>

#include "console.h"
#include "jsondocument.h"
#include "modelobject.h"
#include "parameterlist.h"
#include "parametersetting.h"
#include "profilepage.h"
#include "table.h"
#include "terminal.h"

namespace tarq::command {

namespace {

Json jsonOf(const Parameter& parameter) {
    Json row{{"id", parameter.id}, {"name", parameter.name}, {"type", parameter.typeName()}};
    if (parameter.type == Parameter::Type::Text) {
        row["maxLength"] = parameter.maxLength;
    } else {
        row["min"] = jsonValue(parameter.minimum);
        row["max"] = jsonValue(parameter.maximum);
    }
    row["default"] = jsonValue(parameter.defaultValue);
    row["value"] = jsonValue(parameter.value);
    row["section"] = parameter.section().empty() ? Json() : Json(parameter.section());
    row["description"] = parameter.description;
    row["options"] = Json::array();
    for (const Parameter::Option& option : parameter.options) {
        row["options"].push_back({{"value", option.value}, {"text", option.text}});
    }
    return row;
}

/// The list, a table for each section; descriptions are cut at the terminal's edge, and whole where there is none.
std::string listText(const std::vector<Parameter>& parameters) {
    constexpr std::size_t narrowDescription = 20;
    constexpr std::int32_t sectionCount = 8;
    const std::size_t width = isTerminal(stdout) ? terminalWidth(stdout) : 0;
    constexpr std::size_t beforeDescription = 50;
    const std::size_t room =
        width > beforeDescription + narrowDescription ? width - beforeDescription : narrowDescription;

    std::string text;
    for (std::int32_t category = 1; category <= sectionCount; ++category) {
        Table table(
            {{"Name", Align::Left}, {"Default", Align::Left}, {"Limits", Align::Left}, {"Meaning", Align::Left}});
        std::string_view title = "Not in a section";
        bool any = false;
        for (const Parameter& row : parameters) {
            if (row.category != category % sectionCount) continue;
            if (!row.section().empty()) title = row.section();
            any = true;
            table.add({row.name, fmt::format("{:<11}", valueText(row.defaultValue)),
                       fmt::format("{:<24}", limitsText(row)),
                       width == 0 ? row.description : shortened(row.description, room)});
        }
        if (any) text += fmt::format("{}\n{}\n", title, table.text(2));
    }
    return text + "'tarq parameters NAME' explains a parameter in full.\n";
}

std::string listDocument(const std::vector<Parameter>& parameters) {
    Json list = Json::array();
    for (const Parameter& parameter : parameters) list.push_back(jsonOf(parameter));
    return documentOf(list);
}

std::string fullText(const Parameter& parameter) {
    constexpr std::size_t widest = 100;
    const std::size_t width = std::min(terminalWidth(stdout), widest);
    std::string text = fmt::format("{} (parameter {})\n", parameter.name, parameter.id);
    text += fmt::format("  Section  {}\n", parameter.section().empty() ? "none" : parameter.section());
    text += fmt::format("  Type     {}\n", parameter.typeName());
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

}  // namespace

ExitCode explainParameters(const ParametersOptions& options) {
    const Ref<ITARQModel> model = makeModel();
    if (!model) return ExitCode::EngineFailed;
    if (options.page) return editProfile(*model, options.pageProfile);
    if (!options.profile.empty()) {
        const auto failure = writeProfile(*model, options.profile);
        return failure ? show(*failure) : ExitCode::Success;
    }
    const std::vector<Parameter> all = readParameters(*model);
    if (const Parameter* parameter = findParameter(all, options.name); parameter != nullptr) {
        return writeResult(options.json ? documentOf(jsonOf(*parameter)) : fullText(*parameter), ExitCode::Success);
    }
    const std::vector<Parameter> found = options.name.empty() ? all : parametersWith(all, options.name);
    if (!found.empty()) return writeResult(options.json ? listDocument(found) : listText(found), ExitCode::Success);
    showMessage(fmt::format("there is no parameter '{}', and no description speaks of it. {}", printable(options.name),
                            suggestion(all, options.name)));
    return ExitCode::WrongUsage;
}

}  // namespace tarq::command
