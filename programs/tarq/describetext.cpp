#include "describetext.h"

#include <fmt/format.h>

#include <algorithm>
#include <cstdio>

#include "console.h"
#include "table.h"
#include "tarq/frame/guid.h"
#include "tarq/interfaces/enumerationtables.h"
#include "terminal.h"

namespace tarq::command {

namespace {

std::size_t lineWidth() {
    constexpr std::size_t widest = 100;
    return std::min(terminalWidth(stdout), widest);
}

std::string flagsText(const MemberInfo& form) {
    std::string text;
    const auto add = [&](bool flag, std::string_view name) {
        if (flag) text += fmt::format("{}{}", text.empty() ? "" : ", ", name);
    };
    add(form.isDefault(), "default member");
    add(form.flags.hidden, "hidden");
    add(form.flags.restricted, "restricted");
    add(form.flags.blocking, "may take long");
    return text;
}

/// "method", "get, put": the forms of a member.
std::string kindsText(const Member& member) {
    std::string text;
    for (const MemberInfo* form : member.forms) {
        text += fmt::format("{}{}", text.empty() ? "" : ", ", kindName(form->kind));
    }
    return text;
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

}  // namespace

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
                                   wrapped(table.help(), lineWidth(), 2));
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
    return fmt::format("{} (enumeration)\n\n{}\n\n{}", table.name, wrapped(table.help, lineWidth(), 2), values.text(2));
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
        if (!form->help.empty()) text += fmt::format("\n{}\n", wrapped(form->help, lineWidth(), 4));
    }
    return text;
}

}  // namespace tarq::command
