// createObject: how a client makes the component's objects by name.
#pragma once

#include <string_view>

#include "tarq/frame/export.h"
#include "tarq/frame/object.h"

namespace tarq {

/// A new object of the class `name`: a class name ("TARQModel") or a ProgID ("tarq.TARQModel", "tarq.TARQModel.1").
/// Empty when there is no such class or no memory; the calling thread's ObjectError tells which.
[[nodiscard]] TARQ_API Ref<IUnknown> createObject(std::string_view name);

/// The same, asked for one of the object's interfaces: `createObject<ITARQModel>("TARQModel")`.
template <class Interface>
[[nodiscard]] Ref<Interface> createObject(std::string_view name) {
    return createObject(name).template query<Interface>();
}

}  // namespace tarq
