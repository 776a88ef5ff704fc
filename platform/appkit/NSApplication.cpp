#include "platform/appkit/NSApplication.h"

#include "platform/appkit/WindowRequests.h"

#include <QApplication>
#include <QTimer>
#include <QWidget>
#include <QWindow>
#include <chrono>

namespace {

constexpr auto timeToGetTheFocus = std::chrono::seconds(1);

/// A minimised window takes the sheet in front of it along, and neither can have the focus.
void bringBack(QWidget *window)
{
    if (QWidget *below = window->parentWidget())
        bringBack(below->window());
    window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
}

void callForAttention(QWidget *window)
{
    if (window->windowHandle()->isExposed())
        QApplication::alert(window);
    else
        askForAttention(window->windowHandle());
}

void bringToFront(QWidget *window)
{
    bringBack(window);
    window->raise();
    window->activateWindow();
    if (!window->windowHandle()->isExposed())
        askForActivation(window->windowHandle());
    // At once, it would also be said of a window that is about to get the focus.
    QTimer::singleShot(timeToGetTheFocus, window, [window] {
        // A sheet of it may have the focus.
        if (window->isVisible() && !QApplication::activeWindow())
            callForAttention(window);
    });
}

} // namespace

NSApplication *NSApplication::sharedApplication()
{
    static NSApplication application;
    return &application;
}

void NSApplication::terminate(QObject *)
{
    if (terminationHandler_)
        terminationHandler_();
    else
        QCoreApplication::quit();
}

void NSApplication::activateIgnoringOtherApps(bool ignoresOthers)
{
    QWidget *question = QApplication::activeModalWidget();
    QWidget *window = question ? question : mainWindow();
    if (!window || !window->isVisible())
        return;
    if (ignoresOthers)
        bringToFront(window);
    else
        callForAttention(window);
}
