#include "model/library.h"

#include <fmt/format.h>

#include <algorithm>

#include "printing/text.h"
#include "tarq/interfaces/enumerationtables.h"

namespace tarq::command {

namespace {

bool isSameName(std::string_view left, std::string_view right) { return lowerCase(left) == lowerCase(right); }

void addOnce(std::vector<const InterfaceTable*>& list, const InterfaceTable& table) {
    if (std::ranges::find(list, &table) == list.end()) list.push_back(&table);
}

std::string parameterText(const MemberParameter& parameter) {
    std::string text = fmt::format("{} As {}", parameter.name, typeName(parameter.type, parameter.enumeration));
    if (parameter.out) text = "out " + text;
    if (parameter.variadic) return text + " ...";
    return parameter.optional ? fmt::format("[{}]", text) : text;
}

}  // namespace

std::vector<const InterfaceTable*> interfaces() {
    std::vector<const InterfaceTable*> all;
    for (const ClassEntry& entry : classTable()) {
        if (entry.members != nullptr) addOnce(all, entry.members());
        if (entry.events != nullptr) addOnce(all, entry.events());
    }
    return all;
}

std::vector<Member> membersOf(const InterfaceTable& table) {
    std::vector<Member> all;
    for (const MemberInfo& member : table.members()) {
        if (all.empty() || all.back().name() != member.name) all.push_back({&table, {}});
        all.back().forms.push_back(&member);
    }
    return all;
}

const InterfaceTable* findInterface(std::string_view name) {
    for (const InterfaceTable* table : interfaces()) {
        if (isSameName(table->name(), name)) return table;
    }
    return nullptr;
}

const EnumerationTable* findEnumeration(std::string_view name) {
    for (const EnumerationTable* table : publishedEnumerations) {
        if (isSameName(table->name, name)) return table;
    }
    return nullptr;
}

std::vector<EnumerationMember> findEnumerationValues(std::string_view name) {
    std::vector<EnumerationMember> found;
    for (const EnumerationTable* table : publishedEnumerations) {
        for (const EnumerationValue& value : table->values) {
            if (isSameName(value.name, name)) found.push_back({table, value});
        }
    }
    return found;
}

std::vector<Member> findMembers(std::string_view name) {
    const std::size_t dot = name.rfind('.');
    const bool isQualified = dot != std::string_view::npos;
    const std::string_view owner = name.substr(0, isQualified ? dot : 0);
    const std::string_view wanted = isQualified ? name.substr(dot + 1) : name;
    const ClassEntry* entry = isQualified ? findClass(owner) : nullptr;
    std::vector<Member> found;
    for (const InterfaceTable* table : interfaces()) {
        const bool isOwner = isSameName(table->name(), owner) ||
                             (entry != nullptr && entry->members != nullptr && &entry->members() == table);
        if (isQualified && !isOwner) continue;
        for (Member& member : membersOf(*table)) {
            if (isSameName(member.name(), wanted)) found.push_back(std::move(member));
        }
    }
    return found;
}

std::vector<std::string_view> allNames() {
    std::vector<std::string_view> names;
    for (const ClassEntry& entry : classTable()) names.push_back(entry.name);
    for (const InterfaceTable* table : interfaces()) {
        names.push_back(table->name());
        for (const Member& member : membersOf(*table)) {
            if (!member.forms.front()->flags.hidden) names.push_back(member.name());
        }
    }
    for (const EnumerationTable* table : publishedEnumerations) {
        names.push_back(table->name);
        for (const EnumerationValue& value : table->values) names.push_back(value.name);
    }
    return names;
}

std::string_view typeName(ValueType type, const EnumerationTable* enumeration) {
    if (enumeration != nullptr) return enumeration->name;
    constexpr std::string_view names[] = {"nothing", "Long", "Double", "Text", "Variant", "Object"};
    return names[static_cast<std::size_t>(type)];
}

std::string_view resultName(const MemberInfo& member) {
    if (member.resultInterface != nullptr) return member.resultInterface().name();
    return typeName(member.result, member.resultEnumeration);
}

std::string_view kindName(MemberKind kind) {
    return kind == MemberKind::Method ? "method" : kind == MemberKind::Get ? "get" : "put";
}

std::string signatureOf(const MemberInfo& member) {
    std::string text(member.name);
    std::string parameters;
    for (const MemberParameter& parameter : member.parameters) {
        if (member.kind == MemberKind::Put && &parameter == &member.parameters.back()) continue;
        if (!parameters.empty()) parameters += ", ";
        parameters += parameterText(parameter);
    }
    if (member.kind == MemberKind::Method || !parameters.empty()) text += fmt::format("({})", parameters);
    if (member.kind == MemberKind::Put) {
        const MemberParameter& value = member.parameters.back();
        return fmt::format("{} = {}", text, typeName(value.type, value.enumeration));
    }
    if (member.result == ValueType::None) return text;
    return fmt::format("{} As {}", text, resultName(member));
}

}  // namespace tarq::command
