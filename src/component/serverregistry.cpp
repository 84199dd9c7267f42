#include "tarq/component/serverregistry.h"

#include <algorithm>
#include <map>
#include <memory>
#include <mutex>
#include <string>

#include "frame/text.h"
#include "platform/exceptionbarrier.h"

namespace tarq {
namespace {

/// Factories are called, and let go, outside of the lock: they may come back here.
struct Registry {
    std::mutex mutex;
    std::map<std::string, std::shared_ptr<ServerFactory>, std::less<>> factories;
};

Registry& registry() {
    static Registry all;
    return all;
}

std::string keyOf(std::string_view progId) {
    std::string key(progId);
    std::ranges::transform(key, key.begin(), lowerCased);
    return key;
}

std::shared_ptr<ServerFactory> findFactory(std::string_view progId) {
    const std::string key = keyOf(progId);
    const std::lock_guard lock(registry().mutex);
    const auto found = registry().factories.find(key);
    return found != registry().factories.end() ? found->second : nullptr;
}

}  // namespace

void registerServer(std::string_view progId, ServerFactory factory) {
    std::string key = keyOf(progId);
    auto entered = factory ? std::make_shared<ServerFactory>(std::move(factory)) : nullptr;
    const std::lock_guard lock(registry().mutex);
    registry().factories[std::move(key)].swap(entered);  // the one before goes behind the lock
}

void unregisterServer(std::string_view progId) {
    const std::string key = keyOf(progId);
    decltype(Registry::factories)::node_type removed;
    const std::lock_guard lock(registry().mutex);
    removed = registry().factories.extract(key);
}

Ref<IUnknown> createServer(std::string_view progId) {
    const auto create = [progId] {
        const std::shared_ptr<ServerFactory> factory = findFactory(progId);
        return factory ? (*factory)() : Ref<IUnknown>();
    };
    return withoutException(create, [] { return Ref<IUnknown>(); });
}

}  // namespace tarq
