#include "description.h"

#include <string_view>

#include "tarq/component/classtable.h"
#include "tarq/frame/guid.h"
#include "tarq/interfaces/enumerationtables.h"

namespace tarq::python {
namespace {

py::str text(std::string_view value) { return {value.data(), value.size()}; }

py::object nameOf(const EnumerationTable* enumeration) {
    return enumeration == nullptr ? py::object(py::none()) : py::object(text(enumeration->name));
}

/// The class that bears an interface, as its Python type is named; None where there is none.
py::object classNameOf(const InterfaceTable& (*interface)()) {
    for (const ClassEntry& entry : classTable()) {
        if (interface != nullptr && entry.members == interface) return text(entry.name);
    }
    return py::none();
}

const char* typeName(ValueType type) {
    switch (type) {
        case ValueType::None:
            return "None";
        case ValueType::Long:
            return "Long";
        case ValueType::Double:
            return "Double";
        case ValueType::Text:
            return "Text";
        case ValueType::Variant:
            return "Variant";
        case ValueType::Object:
            return "Object";
    }
    return "Variant";
}

const char* kindName(MemberKind kind) {
    return kind == MemberKind::Method ? "method" : kind == MemberKind::Get ? "get" : "put";
}

py::dict described(const MemberParameter& parameter) {
    py::dict all;
    all["name"] = text(parameter.name);
    all["type"] = typeName(parameter.type);
    all["enumeration"] = nameOf(parameter.enumeration);
    all["optional"] = parameter.optional;
    all["variadic"] = parameter.variadic;
    all["out"] = parameter.out;
    return all;
}

py::dict described(const MemberInfo& member) {
    py::list parameters;
    for (const MemberParameter& parameter : member.parameters) parameters.append(described(parameter));
    py::dict all;
    all["id"] = member.id;
    all["name"] = text(member.name);
    all["kind"] = kindName(member.kind);
    all["help"] = text(member.help);
    all["hidden"] = member.flags.hidden;
    all["restricted"] = member.flags.restricted;
    all["parameters"] = parameters;
    all["result"] = typeName(member.result);
    all["enumeration"] = nameOf(member.resultEnumeration);
    all["class"] = classNameOf(member.resultInterface);
    return all;
}

py::dict described(const InterfaceTable& table) {
    py::list members;
    for (const MemberInfo& member : table.members()) members.append(described(member));
    py::dict all;
    all["name"] = text(table.name());
    all["id"] = guidText(table.id());
    all["help"] = text(table.help());
    all["members"] = members;
    return all;
}

py::module_ signatures() { return py::module_::import("tarq._signatures"); }

py::object orNone(const MemberInfo* member) {
    return member == nullptr ? py::object(py::none()) : py::object(described(*member));
}

}  // namespace

py::object documentationOf(const MemberInfo* call, const MemberInfo* put) {
    return signatures().attr("documentation")(orNone(call), orNone(put));
}

py::object signatureOf(const MemberInfo& member, bool withSelf) {
    return signatures().attr("signature")(described(member), withSelf);
}

py::list describedClasses() {
    py::list all;
    for (const ClassEntry& entry : classTable()) {
        if (entry.members == nullptr) continue;
        py::dict one;
        one["name"] = text(entry.name);
        one["interface"] = described(entry.members());
        one["events"] = entry.events == nullptr ? py::object(py::none()) : py::object(described(entry.events()));
        all.append(one);
    }
    return all;
}

py::list describedEnumerations() {
    py::list all;
    for (const EnumerationTable* table : publishedEnumerations) {
        py::list values;
        for (const EnumerationValue& value : table->values)
            values.append(py::make_tuple(text(value.name), value.value));
        py::dict one;
        one["name"] = text(table->name);
        one["help"] = text(table->help);
        one["values"] = values;
        all.append(one);
    }
    return all;
}

}  // namespace tarq::python
