// What the component offers, for people to read, or as a JSON document for programs.
#pragma once

#include <optional>
#include <string>

#include "model/library.h"

namespace tarq::command {

/// All classes, interfaces and enumerations: for people a line each, for programs all that is known of them.
[[nodiscard]] std::string libraryReport(bool json);

/// All that is known of what is named: a class, an interface, an enumeration or one of its values, or the members of
/// that name, alone or with their interface. Nothing when there is no such thing.
[[nodiscard]] std::optional<std::string> libraryReport(const std::string& name, bool json);

}  // namespace tarq::command
