// The event loop of the host, which is kept going while a call waits for a person.
#pragma once

#include <chrono>
#include <memory>

#include "hostqt/hostqt.h"
#include "platform/dynamiclibrary.h"

namespace tarq::page {

class HostLoop {
public:
    HostLoop() = default;
    HostLoop(const HostLoop&) = delete;
    HostLoop& operator=(const HostLoop&) = delete;
    virtual ~HostLoop() = default;

    /// Lets the host's events come for about so long. False when the host wants to end.
    [[nodiscard]] virtual bool run(std::chrono::milliseconds time) = 0;
};

/// What the host has of Qt 6. Nothing is loaded into a host that has none.
class HostQt {
public:
    HostQt();
    [[nodiscard]] HostQtApplication application() const { return application_; }
    /// For a host whose application belongs to the calling thread.
    [[nodiscard]] std::unique_ptr<HostLoop> loop() const;

private:
    HostQtApplication application_ = HostQtNone;
    HostQtRunEvents* runEvents_ = nullptr;
};

/// The loop of GLib that the calling thread runs in, as in a host with GTK; null when it runs in none.
[[nodiscard]] std::unique_ptr<HostLoop> hostGlibLoop();

}  // namespace tarq::page
