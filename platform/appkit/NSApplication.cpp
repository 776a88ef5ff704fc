#include "platform/appkit/NSApplication.h"

#include <QApplication>
#include <QWidget>

namespace {

/// The question on screen, if there is one, else the first window that stands on its own.
QWidget *mainWindow()
{
    if (QWidget *question = QApplication::activeModalWidget())
        return question;
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && window->windowType() == Qt::Window)
            return window;
    }
    return nullptr;
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
    QWidget *window = mainWindow();
    if (!window)
        return;
    if (ignoresOthers) {
        window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
        window->raise();
        window->activateWindow();
    }
    QApplication::alert(window);
}
