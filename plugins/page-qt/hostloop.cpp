#include "hostloop.h"

#include <cstdint>

#include "platform/programsearch.h"
#include "platform/slottable.h"

namespace tarq::page {
namespace {

class QtLoop final : public HostLoop {
public:
    explicit QtLoop(HostQtRunEvents* runEvents) : runEvents_(runEvents) {}
    bool run(std::chrono::milliseconds time) override {
        return runEvents_(static_cast<std::int32_t>(time.count())) != 0;
    }

private:
    HostQtRunEvents* runEvents_;
};

/// The few operations of GLib that are needed, with its types as they are on every platform.
using GlibContext = void;
using GlibTimer = int(void* data);
using Glib = SlotTable<Slot<"g_main_context_default", GlibContext*(), nullptr>,
                       Slot<"g_main_context_is_owner", int(GlibContext*), 0>,
                       Slot<"g_main_context_iteration", int(GlibContext*, int mayBlock), 0>,
                       Slot<"g_timeout_add", unsigned(unsigned milliseconds, GlibTimer*, void* data), 0U>>;

class GlibLoop final : public HostLoop {
public:
    explicit GlibLoop(const Glib& glib) : glib_(glib) {}
    bool run(std::chrono::milliseconds time) override {
        bool isOver = false;
        const auto end = [](void* data) {
            *static_cast<bool*>(data) = true;
            return 0;  // once is enough
        };
        if (glib_.slot<"g_timeout_add">()(static_cast<unsigned>(time.count()), +end, &isOver) == 0U) return false;
        while (!isOver) (void)glib_.slot<"g_main_context_iteration">()(nullptr, 1);
        return true;
    }

private:
    Glib glib_;
};

}  // namespace

HostQt::HostQt() {
    // Whatever the host calls its copy, libraries ask for it by this name.
    if (!DynamicLibrary::alreadyLoaded("libQt6Core.so.6")) return;
    // One that doesn't fit to the host's Qt isn't loaded.
    const DynamicLibrary library = DynamicLibrary::load(findOwnProgram(hostQtLibraryName));
    auto* const kind = reinterpret_cast<HostQtApplicationKind*>(library.symbol("tarqHostQtApplication"));
    runEvents_ = reinterpret_cast<HostQtRunEvents*>(library.symbol("tarqHostQtRunEvents"));
    if (kind != nullptr && runEvents_ != nullptr) application_ = static_cast<HostQtApplication>(kind());
}

std::unique_ptr<HostLoop> HostQt::loop() const { return std::make_unique<QtLoop>(runEvents_); }

std::unique_ptr<HostLoop> hostGlibLoop() {
    Glib glib;
    const DynamicLibrary library = DynamicLibrary::alreadyLoaded("libglib-2.0.so.0");
    if (!library) return nullptr;
    glib.bind(library);
    if (!glib.isBoundBut<>()) return nullptr;
    GlibContext* const context = glib.slot<"g_main_context_default">()();
    // A thread owns the context while it runs it, and also within what that calls.
    if (glib.slot<"g_main_context_is_owner">()(context) == 0) return nullptr;
    return std::make_unique<GlibLoop>(glib);
}

}  // namespace tarq::page
