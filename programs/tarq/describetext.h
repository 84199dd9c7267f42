// What the component offers, for people.
#pragma once

#include <string>

#include "library.h"

namespace tarq::command {

/// All classes, interfaces and enumerations, a line each.
[[nodiscard]] std::string overviewText();

[[nodiscard]] std::string textOf(const ClassEntry& entry);
[[nodiscard]] std::string textOf(const InterfaceTable& table);
[[nodiscard]] std::string textOf(const EnumerationTable& table);
[[nodiscard]] std::string textOf(const EnumerationMember& member);
[[nodiscard]] std::string textOf(const Member& member);

}  // namespace tarq::command
