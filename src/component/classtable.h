// The classes that clients can create, by name and by identifier.
#pragma once

#include <span>
#include <string_view>

#include "frame/object.h"

namespace tarq {

struct ClassEntry {
    std::string_view name;  ///< class name; the ProgID is "tarq." and the name, the versioned one adds ".1"
    Guid classId;
    Ref<IUnknown> (*create)();
};

std::span<const ClassEntry> classTable();

/// The class of a class name, a ProgID or a versioned ProgID, compared without regard to case; null when there is none.
[[nodiscard]] const ClassEntry* findClass(std::string_view name);

}  // namespace tarq
