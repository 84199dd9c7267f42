#include "printing/libraryreport.h"

#include <fmt/format.h>

#include "printing/console.h"
#include "printing/json.h"
#include "printing/table.h"
#include "printing/text.h"
#include "tarq/frame/guid.h"
#include "tarq/interfaces/enumerationtables.h"

namespace tarq::command {

namespace {

std::string flagsText(const MemberInfo& form) {
    std::vector<std::string_view> words;
    if (form.isDefault()) words.emplace_back("default member");
    if (form.flags.hidden) words.emplace_back("hidden");
    if (form.flags.restricted) words.emplace_back("restricted");
    if (form.flags.blocking) words.emplace_back("may take long");
    return fmt::format("{}", fmt::join(words, ", "));
}

/// "method", "get, put": the forms of a member.
std::string kindsText(const Member& member) {
    std::vector<std::string_view> words;
    for (const MemberInfo* form : member.forms) words.push_back(kindName(form->kind));
    return fmt::format("{}", fmt::join(words, ", "));
}

std::string parameterFlags(const MemberParameter& parameter) {
    if (parameter.variadic) return "any number of values";
    if (parameter.out) return "handed back";
    return parameter.optional ? "may be left out" : "";
}

std::string parametersText(const MemberInfo& form) {
    Table table({{"", Align::Left}, {"", Align::Left}, {"", Align::Left}});
    for (const MemberParameter& parameter : form.parameters) {
        table.add({std::string(parameter.name), std::string(typeName(parameter.type, parameter.enumeration)),
                   parameterFlags(parameter)});
    }
    // Without the line of titles, which are empty.
    const std::string text = table.text(6);
    return form.parameters.empty() ? std::string() : text.substr(text.find('\n') + 1);
}

std::string overviewText() {
    Table classes({{"Class", Align::Left}, {"ProgID", Align::Left}, {"Interface", Align::Left}});
    for (const ClassEntry& entry : classTable()) {
        classes.add({std::string(entry.name), entry.versionedProgId(), std::string(entry.defaultInterface)});
    }
    Table tables({{"Interface", Align::Left}, {"Members", Align::Right}, {"Meaning", Align::Left}});
    for (const InterfaceTable* table : interfaces()) {
        tables.add({std::string(table->name()), std::to_string(membersOf(*table).size()), std::string(table->help())});
    }
    Table enumerations({{"Enumeration", Align::Left}, {"Values", Align::Right}, {"Meaning", Align::Left}});
    for (const EnumerationTable* table : publishedEnumerations) {
        enumerations.add({std::string(table->name), std::to_string(table->values.size()), std::string(table->help)});
    }
    return fmt::format("{}\n{}\n{}\n'tarq describe NAME' explains any of these, a member or a value.\n", classes.text(),
                       tables.text(), enumerations.text());
}

std::string textOf(const ClassEntry& entry) {
    std::string text = fmt::format("{} (class)\n", entry.name);
    text += fmt::format("  ProgID     {}, {}\n", entry.progId(), entry.versionedProgId());
    text += fmt::format("  Class id   {}\n", guidText(entry.classId));
    if (!entry.defaultInterface.empty()) text += fmt::format("  Interface  {}\n", entry.defaultInterface);
    if (entry.events != nullptr) text += fmt::format("  Events     {}\n", entry.events().name());
    return text;
}

std::string textOf(const InterfaceTable& table) {
    std::string text = fmt::format("{} (interface {})\n\n{}\n\n", table.name(), guidText(table.id()),
                                   wrapped(table.help(), readingWidth(), 2));
    Table members({{"Id", Align::Right}, {"Kind", Align::Left}, {"Member", Align::Left}});
    for (const Member& member : membersOf(table)) {
        const MemberInfo& first = *member.forms.front();
        const std::string_view mark = first.flags.hidden ? ", hidden" : "";
        members.add({std::to_string(first.id), fmt::format("{}{}", kindsText(member), mark), signatureOf(first)});
    }
    return text + members.text(2) + fmt::format("\n'tarq describe {}.MEMBER' tells more.\n", table.name());
}

std::string textOf(const EnumerationTable& table) {
    Table values({{"Value", Align::Right}, {"Name", Align::Left}});
    for (const EnumerationValue& value : table.values)
        values.add({std::to_string(value.value), std::string(value.name)});
    return fmt::format("{} (enumeration)\n\n{}\n\n{}", table.name, wrapped(table.help, readingWidth(), 2),
                       values.text(2));
}

std::string textOf(const EnumerationMember& member) {
    return fmt::format("{} = {} ({})\n", member.value.name, member.value.value, member.enumeration->name);
}

std::string textOf(const Member& member) {
    std::string text =
        fmt::format("{}.{} (member {})\n", member.interface->name(), member.name(), member.forms.front()->id);
    for (const MemberInfo* form : member.forms) {
        text += fmt::format("\n  {:<6}  {}\n", kindName(form->kind), signatureOf(*form));
        if (const std::string flags = flagsText(*form); !flags.empty()) text += fmt::format("          {}\n", flags);
        text += parametersText(*form);
        if (!form->help.empty()) text += fmt::format("\n{}\n", wrapped(form->help, readingWidth(), 4));
    }
    return text;
}

Json jsonOf(const MemberParameter& parameter) {
    return {{"name", parameter.name},
            {"type", typeName(parameter.type, parameter.enumeration)},
            {"optional", parameter.optional},
            {"variadic", parameter.variadic},
            {"out", parameter.out}};
}

Json jsonOf(const MemberInfo& form) {
    Json parameters = Json::array();
    for (const MemberParameter& parameter : form.parameters) parameters.push_back(jsonOf(parameter));
    const Json result = form.result == ValueType::None ? Json() : Json(resultName(form));
    return {{"id", form.id},
            {"name", form.name},
            {"kind", kindName(form.kind)},
            {"default", form.isDefault()},
            {"hidden", form.flags.hidden},
            {"restricted", form.flags.restricted},
            {"blocking", form.flags.blocking},
            {"parameters", parameters},
            {"result", result},
            {"help", form.help}};
}

Json jsonOf(const ClassEntry& entry) {
    return {{"name", entry.name},
            {"classId", guidText(entry.classId)},
            {"progId", entry.progId()},
            {"versionedProgId", entry.versionedProgId()},
            {"description", entry.description()},
            {"available", entry.create != nullptr},
            {"interface", entry.defaultInterface.empty() ? Json() : Json(entry.defaultInterface)},
            {"events", entry.events == nullptr ? Json() : Json(entry.events().name())}};
}

Json jsonOf(const InterfaceTable& table) {
    Json members = Json::array();
    for (const MemberInfo& member : table.members()) members.push_back(jsonOf(member));
    return {{"name", table.name()}, {"id", guidText(table.id())}, {"help", table.help()}, {"members", members}};
}

Json jsonOf(const EnumerationTable& table) {
    Json values = Json::array();
    for (const EnumerationValue& value : table.values) {
        values.push_back({{"name", value.name}, {"value", value.value}});
    }
    return {{"name", table.name}, {"help", table.help}, {"values", values}};
}

Json jsonOf(const EnumerationMember& member) {
    return {{"name", member.value.name}, {"value", member.value.value}, {"enumeration", member.enumeration->name}};
}

Json jsonOf(const Member& member) {
    Json forms = Json::array();
    for (const MemberInfo* form : member.forms) {
        Json described{{"interface", member.interface->name()}};
        described.update(jsonOf(*form));
        forms.push_back(described);
    }
    return forms;
}

std::string overviewDocument() {
    Json all{{"classes", Json::array()}, {"interfaces", Json::array()}, {"enumerations", Json::array()}};
    for (const ClassEntry& entry : classTable()) all["classes"].push_back(jsonOf(entry));
    for (const InterfaceTable* table : interfaces()) all["interfaces"].push_back(jsonOf(*table));
    for (const EnumerationTable* table : publishedEnumerations) all["enumerations"].push_back(jsonOf(*table));
    return documentOf(all);
}

/// Several members of one name: a text for each, or one list of all their forms.
std::string textOf(const std::vector<Member>& members) {
    std::string text;
    for (const Member& member : members) {
        if (!text.empty()) text += '\n';
        text += textOf(member);
    }
    return text;
}

Json jsonOf(const std::vector<Member>& members) {
    Json list = Json::array();
    for (const Member& member : members) {
        for (const Json& form : jsonOf(member)) list.push_back(form);
    }
    return list;
}

template <class Thing>
std::string shown(const Thing& thing, bool json) {
    return json ? documentOf(jsonOf(thing)) : textOf(thing);
}

}  // namespace

std::string libraryReport(bool json) { return json ? overviewDocument() : overviewText(); }

std::optional<std::string> libraryReport(const std::string& name, bool json) {
    if (const ClassEntry* entry = findClass(name); entry != nullptr) return shown(*entry, json);
    if (const InterfaceTable* table = findInterface(name); table != nullptr) return shown(*table, json);
    if (const EnumerationTable* table = findEnumeration(name); table != nullptr) return shown(*table, json);
    if (const auto members = findMembers(name); !members.empty()) return shown(members, json);
    if (const auto values = findEnumerationValues(name); !values.empty()) return shown(values.front(), json);
    return std::nullopt;
}

}  // namespace tarq::command
