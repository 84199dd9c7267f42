#include "describecommand.h"

#include <fmt/format.h>

#include <optional>
#include <string>

#include "console.h"
#include "describejson.h"
#include "describetext.h"
#include "library.h"
#include "suggestion.h"
#include "tarq/interfaces/enumerationtables.h"

namespace tarq::command {

namespace {

std::string overviewDocument() {
    Json all{{"classes", Json::array()}, {"interfaces", Json::array()}, {"enumerations", Json::array()}};
    for (const ClassEntry& entry : classTable()) all["classes"].push_back(jsonOf(entry));
    for (const InterfaceTable* table : interfaces()) all["interfaces"].push_back(jsonOf(*table));
    for (const EnumerationTable* table : publishedEnumerations) all["enumerations"].push_back(jsonOf(*table));
    return documentOf(all);
}

template <class Thing>
std::string shown(const Thing& thing, bool json) {
    return json ? documentOf(jsonOf(thing)) : textOf(thing);
}

std::string shown(const std::vector<Member>& members, bool json) {
    Json list = Json::array();
    std::string text;
    for (const Member& member : members) {
        for (const Json& form : jsonOf(member)) list.push_back(form);
        if (!text.empty()) text += '\n';
        text += textOf(member);
    }
    return json ? documentOf(list) : text;
}

/// What is to be shown of a name; nothing when there is no such thing.
std::optional<std::string> described(const std::string& name, bool json) {
    if (const ClassEntry* entry = findClass(name); entry != nullptr) return shown(*entry, json);
    if (const InterfaceTable* table = findInterface(name); table != nullptr) return shown(*table, json);
    if (const EnumerationTable* table = findEnumeration(name); table != nullptr) return shown(*table, json);
    if (const auto members = findMembers(name); !members.empty()) return shown(members, json);
    if (const auto values = findEnumerationValues(name); !values.empty()) return shown(values.front(), json);
    return std::nullopt;
}

}  // namespace

ExitCode describe(const DescribeOptions& options) {
    if (options.name.empty()) {
        return writeResult(options.json ? overviewDocument() : overviewText(), ExitCode::Success);
    }
    if (const std::optional<std::string> text = described(options.name, options.json); text) {
        return writeResult(*text, ExitCode::Success);
    }
    const std::string wanted = options.name.substr(options.name.rfind('.') + 1);
    showMessage(
        fmt::format("there is nothing named '{}'. {}", printable(options.name),
                    suggestion(allNames(), wanted, "'tarq describe' lists classes, interfaces and enumerations.")));
    return ExitCode::WrongUsage;
}

}  // namespace tarq::command
