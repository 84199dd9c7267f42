// libtarqpage.so: finds the way in which a page can be shown without harm to its host.
//
// Qt ends a process that can't reach its display, so the window gets a process of its own, unless the host has a Qt
// application with widgets. This library itself needs no Qt.
#include <atomic>
#include <cstdlib>

#include "hostloop.h"
#include "page.h"
#include "pageprocess.h"
#include "platform/exceptionbarrier.h"
#include "platform/programsearch.h"
#include "platform/thread.h"
#include "window/showwindow.h"

namespace tarq::page {
namespace {

/// One page at a time in a process: the host's loop, which goes on behind it, may well ask for another.
class OnlyPage {
public:
    OnlyPage() : isOnly_(!isOpen().exchange(true)) {}
    OnlyPage(const OnlyPage&) = delete;
    OnlyPage& operator=(const OnlyPage&) = delete;
    ~OnlyPage() {
        if (isOnly_) isOpen() = false;
    }
    [[nodiscard]] explicit operator bool() const { return isOnly_; }

private:
    static std::atomic<bool>& isOpen() {
        static std::atomic<bool> open{false};
        return open;
    }
    bool isOnly_;
};

bool isDisplayNamed() {
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
        const char* const value = std::getenv(name);
        if (value != nullptr && *value != '\0') return true;
    }
    return false;
}

/// Null when the host's Qt is too old for the window.
ShowPageWindow* loadWindow() {
    const DynamicLibrary library = DynamicLibrary::load(findOwnProgram(windowLibraryName));
    return reinterpret_cast<ShowPageWindow*>(library.symbol("tarqShowPageWindow"));
}

std::int32_t showPage(const TARQPage& origin) {
    const OnlyPage only;
    const auto page = readPage(origin);
    if (!only || !page) return 0;
    const HostQt qt;
    if (qt.application() == HostQtWidgetsElsewhere) return 0;
    if (qt.application() == HostQtWidgets) {
        if (ShowPageWindow* const show = loadWindow()) return show(&origin);
    }
    if (!isFirstThread() || !isDisplayNamed()) return 0;
    const auto loop = qt.application() == HostQtNone ? hostGlibLoop() : qt.loop();
    return showInOwnProcess(origin, *page, loop.get()) ? 1 : 0;
}

}  // namespace
}  // namespace tarq::page

int32_t ShowTARQPage(const TARQPage* page) {
    if (page == nullptr) return 0;
    return tarq::withoutException([&] { return tarq::page::showPage(*page); }, [] { return int32_t{0}; });
}
