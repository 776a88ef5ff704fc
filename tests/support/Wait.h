#pragma once

#include <QElapsedTimer>
#include <QEventLoop>
#include <QTest>
#include <QTimer>
#include <functional>

/// Runs the event loop until `condition` holds; false when it does not within `milliseconds` (generous: sanitizers and
/// busy machines are slow).
inline bool waitUntil(const std::function<bool()> &condition, int milliseconds = 20000)
{
    return QTest::qWaitFor(condition, milliseconds);
}

/// Runs the event loop until everything that is pending now, zero-delay timers included, has been handled.
inline void runPendingEvents()
{
    bool reached = false;
    QTimer::singleShot(0, [&reached] { reached = true; });
    while (!reached)
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}
