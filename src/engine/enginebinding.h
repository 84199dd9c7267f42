// EngineBinding: where a model's engine library is, and the engine that is bound from it.
//
// Each binding loads the library once more and nothing gives these loads back but a change of the location, so a
// library stays in memory from its first use on. The binding may be used from any thread: a run binds on its own thread
// while the client asks for the version or moves the location. No call into an engine is made under the lock.
#pragma once

#include <cstddef>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>

#include "engine/engineinterface.h"
#include "platform/dynamiclibrary.h"
#include "tarq/frame/status.h"

namespace tarq {

class EngineBinding {
public:
    EngineBinding() = default;
    EngineBinding(const EngineBinding&) = delete;
    EngineBinding& operator=(const EngineBinding&) = delete;
    virtual ~EngineBinding() = default;

    /// A path or a plain name, "tarq.dll" at first. What it leads to is told at DynamicLibrary::load.
    [[nodiscard]] std::string location() const;

    /// Stores a new location and gives back one load of a bound library. A location that is too long changes nothing.
    /// When the platform refuses to release the library it stays bound until the next run. A run in progress keeps its
    /// engine.
    [[nodiscard]] Outcome setLocation(std::string_view location);

    /// Loads the library anew and looks up its operations. libraryNotFound, with nothing bound any more, when it can't
    /// be loaded. Missing operations are no failure here; a binder that insists on some may return entryPointsMissing.
    [[nodiscard]] virtual Status bindEngine();

    /// The bound engine, null when there is none. Whoever holds it keeps its library in memory.
    [[nodiscard]] std::shared_ptr<EngineInterface> engine() const;

    /// The engine's version; binds if nothing is bound yet. "unknown" when there is no engine or it doesn't tell.
    [[nodiscard]] std::string versionText();

protected:
    /// Replaces what is bound. The load of the module before is not given back.
    void bind(DynamicLibrary module, std::shared_ptr<EngineInterface> engine);

private:
    mutable std::mutex mutex_;
    std::string location_ = "tarq.dll";
    DynamicLibrary engineModule_;
    std::shared_ptr<EngineInterface> engine_;
};

}  // namespace tarq
