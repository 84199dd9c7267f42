// Automation servers of other parties, under their ProgIDs.
//
// There is no registry of the system to find them in, so a host enters the servers that it has, for the whole process.
// Callable from any thread; a factory is called on the thread that needs a server.
#pragma once

#include <concepts>
#include <functional>
#include <string_view>
#include <type_traits>
#include <utility>

#include "tarq/frame/export.h"
#include "tarq/frame/object.h"

namespace tarq {

/// Makes one server object. A null reference, or an exception, is a failed creation.
using ServerFactory = std::function<Ref<IUnknown>()>;

/// Enters a server under a ProgID such as "MPLLib.OptiMax.1", compared without regard to case, in place of the one that
/// has it. An empty factory never creates one.
TARQ_API void registerServer(std::string_view progId, ServerFactory factory);

/// The same for a factory that returns a reference to any interface.
template <class Factory>
requires(!std::convertible_to<Factory, ServerFactory> &&
         std::is_invocable_v<Factory&>) void registerServer(std::string_view progId, Factory factory) {
    registerServer(progId,
                   ServerFactory([make = std::move(factory)]() mutable { return make().template query<IUnknown>(); }));
}

/// Takes a server away. An unknown ProgID does nothing, and objects that were made live on.
TARQ_API void unregisterServer(std::string_view progId);

/// A new object of the server entered under `progId`; null when there is none or it can't be created. Throws nothing,
/// whatever the factory does.
[[nodiscard]] TARQ_API Ref<IUnknown> createServer(std::string_view progId);

}  // namespace tarq
