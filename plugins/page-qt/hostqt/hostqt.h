// The small library that asks a host's own Qt about its application. It needs the core of Qt alone, and is loaded only
// into a host that has that.
#pragma once

#include <cstdint>

namespace tarq::page {

inline constexpr const char* hostQtLibraryName = "tarq-page-host.so";

enum HostQtApplication : std::int32_t {
    HostQtNone = 0,
    HostQtWidgets = 1,           ///< an application with widgets, on the calling thread
    HostQtWidgetsElsewhere = 2,  ///< the same on another thread
    HostQtEvents = 3,            ///< one without widgets, on the calling thread
};

using HostQtApplicationKind = std::int32_t();
using HostQtRunEvents = std::int32_t(std::int32_t milliseconds);

}  // namespace tarq::page
