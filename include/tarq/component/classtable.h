// The classes that clients can create, by name and by identifier.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "tarq/frame/membertable.h"
#include "tarq/frame/object.h"

namespace tarq {

struct ClassEntry {
    std::string_view name;
    Guid classId;
    std::string_view defaultInterface;  ///< empty for a class that late-bound clients can't use
    /// Makes an object, as createInstance.
    Status (*create)(IUnknown* outer, const Guid& interfaceId, void** out);
    /// The members of the default interface and of the outgoing one; null where there is none.
    const InterfaceTable& (*members)() = nullptr;
    const InterfaceTable& (*events)() = nullptr;

    /// "tarq.TARQModel", and with the version "tarq.TARQModel.1".
    [[nodiscard]] TARQ_API std::string progId() const;
    [[nodiscard]] TARQ_API std::string versionedProgId() const;
    /// The name with " Class" behind it.
    [[nodiscard]] TARQ_API std::string description() const;
};

[[nodiscard]] TARQ_API std::span<const ClassEntry> classTable();

/// The class of a class name, a ProgID or a versioned ProgID, compared without regard to case; null when there is none.
[[nodiscard]] TARQ_API const ClassEntry* findClass(std::string_view name);

/// The class of an identifier; null when there is none.
[[nodiscard]] TARQ_API const ClassEntry* findClass(const Guid& classId);

/// True for an interface whose functions the component calls directly: an object that can only be called late-bound
/// must not claim to have it.
[[nodiscard]] TARQ_API bool isCalledDirectly(const Guid& interfaceId);

}  // namespace tarq
