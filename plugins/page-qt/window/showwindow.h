// The library that shows the window in the host's own process, on the thread of the host's application.
#pragma once

#include <cstdint>

#include "tarq/page.h"

namespace tarq::page {

inline constexpr const char* windowLibraryName = "tarq-page-window.so";

/// `tarqShowPageWindow`: as ShowTARQPage.
using ShowPageWindow = std::int32_t(const TARQPage* page);

}  // namespace tarq::page
