// What the component offers: its classes, interfaces and enumerations, and things in them by name.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "tarq/component/classtable.h"
#include "tarq/frame/membertable.h"

namespace tarq::command {

/// The members of one name in an interface: a method, or a property's get and put.
struct Member {
    const InterfaceTable* interface = nullptr;
    std::vector<const MemberInfo*> forms;

    [[nodiscard]] std::string_view name() const { return forms.front()->name; }
};

struct EnumerationMember {
    const EnumerationTable* enumeration = nullptr;
    EnumerationValue value;
};

/// The interfaces of the classes that this version offers, and their events' ones, each once.
[[nodiscard]] std::vector<const InterfaceTable*> interfaces();
/// The members of an interface in published order.
[[nodiscard]] std::vector<Member> membersOf(const InterfaceTable& table);

// By name, in any case; null or empty when there is none of that name.
[[nodiscard]] const InterfaceTable* findInterface(std::string_view name);
[[nodiscard]] const EnumerationTable* findEnumeration(std::string_view name);
[[nodiscard]] std::vector<EnumerationMember> findEnumerationValues(std::string_view name);
/// "ColLB" in every interface that has it, "ITARQModel.ColLB" and "TARQModel.ColLB" in that one.
[[nodiscard]] std::vector<Member> findMembers(std::string_view name);

/// Every name that can be found.
[[nodiscard]] std::vector<std::string_view> allNames();

/// "Long", or the enumeration's name.
[[nodiscard]] std::string_view typeName(ValueType type, const EnumerationTable* enumeration);
/// The same of what a member hands out, or the interface's name.
[[nodiscard]] std::string_view resultName(const MemberInfo& member);
/// "method", "get" or "put".
[[nodiscard]] std::string_view kindName(MemberKind kind);
/// "AddRow(LB As Double, UB As Double, [Name As Variant])", "ColLB(Col As Variant) As Double".
[[nodiscard]] std::string signatureOf(const MemberInfo& member);

}  // namespace tarq::command
