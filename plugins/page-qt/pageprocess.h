// A page whose window runs in a process of its own.
#pragma once

#include "hostloop.h"
#include "page.h"

namespace tarq::page {

/// Shows the page and returns when it is closed; false when it couldn't be shown or broke off. `origin` is what
/// `page` was read from. While the person is at it, `loop` (may be null) keeps the host's events coming. The program
/// that shows the page is gone when this returns, by force if need be.
[[nodiscard]] bool showInOwnProcess(const TARQPage& origin, const Page& page, HostLoop* loop);

}  // namespace tarq::page
