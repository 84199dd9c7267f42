#include "describejson.h"

#include "tarq/frame/guid.h"

namespace tarq::command {

namespace {

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

}  // namespace

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

}  // namespace tarq::command
