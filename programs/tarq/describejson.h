// What the component offers, as JSON.
#pragma once

#include "jsondocument.h"
#include "library.h"

namespace tarq::command {

[[nodiscard]] Json jsonOf(const ClassEntry& entry);
[[nodiscard]] Json jsonOf(const InterfaceTable& table);
[[nodiscard]] Json jsonOf(const EnumerationTable& table);
[[nodiscard]] Json jsonOf(const EnumerationMember& member);
/// One entry for each form of the member: its method, or its get and its put.
[[nodiscard]] Json jsonOf(const Member& member);

}  // namespace tarq::command
