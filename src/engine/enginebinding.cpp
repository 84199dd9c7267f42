#include "engine/enginebinding.h"

#include <utility>

#include "engine/enginelibrary.h"
#include "engine/enginetext.h"
#include "tarq/interfaces/failuretexts.h"
#include "tarq/interfaces/limits.h"

namespace tarq {

std::string EngineBinding::location() const {
    const std::lock_guard lock(mutex_);
    return location_;
}

Outcome EngineBinding::setLocation(std::string_view location) {
    if (location.size() > longestPath) return {status::textTooLong, "Passed string is to long."};
    std::string text(location);
    std::shared_ptr<EngineInterface> dropped;  // ends behind the lock, and with it perhaps the library
    const std::lock_guard lock(mutex_);
    DynamicLibrary released = engineModule_;
    if (!released || released.release()) {
        engineModule_ = {};
        dropped.swap(engine_);
    }
    location_.swap(text);
    return {};
}

Status EngineBinding::bindEngine() {
    const std::string name = location();
    const DynamicLibrary module = DynamicLibrary::load(name);
    // The second load is the engine's own, for as long as anyone uses it.
    const DynamicLibrary engineLoad = module ? DynamicLibrary::load(name) : DynamicLibrary{};
    if (!engineLoad) {
        bind({}, nullptr);
        return status::libraryNotFound;
    }
    bind(module, std::make_shared<EngineLibrary>(engineLoad));
    return status::ok;
}

std::shared_ptr<EngineInterface> EngineBinding::engine() const {
    const std::lock_guard lock(mutex_);
    return engine_;
}

std::string EngineBinding::versionText() {
    std::shared_ptr<EngineInterface> bound = engine();
    if (!bound && bindEngine().isOk()) bound = engine();
    EngineText text;
    if (!bound || !text.read(*bound, "xversn")) return std::string(unknownEngineVersion);
    return std::string(text.view());
}

void EngineBinding::bind(DynamicLibrary module, std::shared_ptr<EngineInterface> engine) {
    const std::lock_guard lock(mutex_);
    engineModule_ = module;
    engine_.swap(engine);  // the engine before ends behind the lock, with the argument
}

}  // namespace tarq
