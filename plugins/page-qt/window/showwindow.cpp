#include "showwindow.h"

#include <QApplication>
#include <QWindow>

#include "pagewindow.h"

using namespace tarq::page;

extern "C" Q_DECL_EXPORT std::int32_t tarqShowPageWindow(const TARQPage* origin) {
    const auto page = readPage(*origin);
    if (!page) return 0;
    PageWindow window(*page, [origin](const std::vector<Edit>& edits) { return applyTo(*origin, edits); });
    // In front of the window from which it was asked for.
    window.winId();  // makes the system's window
    if (const QWidget* const asking = QApplication::activeWindow()) {
        window.windowHandle()->setTransientParent(asking->window()->windowHandle());
    }
    window.exec();
    // A host that ends leaves the window open.
    return window.isVisible() ? 0 : 1;
}
