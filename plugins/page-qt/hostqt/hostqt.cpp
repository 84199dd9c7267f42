#include "hostqt.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QThread>
#include <QTimer>

using namespace tarq::page;

extern "C" {

/// A HostQtApplication.
Q_DECL_EXPORT std::int32_t tarqHostQtApplication() {
    const QCoreApplication* const application = QCoreApplication::instance();
    if (application == nullptr || QCoreApplication::closingDown()) return HostQtNone;
    const bool isHere = application->thread() == QThread::currentThread();
    if (application->inherits("QApplication")) return isHere ? HostQtWidgets : HostQtWidgetsElsewhere;
    return isHere ? HostQtEvents : HostQtNone;
}

/// Runs the events of the calling thread for so long; 0 when the application wants to end.
Q_DECL_EXPORT std::int32_t tarqHostQtRunEvents(std::int32_t milliseconds) {
    constexpr int timeIsOver = 1;
    QEventLoop loop;
    QTimer::singleShot(milliseconds, Qt::PreciseTimer, &loop, [&loop] { loop.exit(timeIsOver); });
    return loop.exec() == timeIsOver ? 1 : 0;
}
}
