#include "platform/appkit/NSWindow.h"

#include <QApplication>
#include <QWidget>

int CGWindowLevelForKey(CGWindowLevelKey key)
{
    constexpr int modalPanelLevel = 8;
    return key == kCGModalPanelWindowLevelKey ? modalPanelLevel : 0;
}

void setLevel(QWidget *window, int level)
{
    if (window)
        window->setWindowFlag(Qt::WindowStaysOnTopHint, level > CGWindowLevelForKey(kCGNormalWindowLevelKey));
}

void makeKeyAndOrderFront(QWidget *window)
{
    if (!window)
        return;
    window->show();
    window->raise();
    window->activateWindow();
}

QWidget *frontWindow()
{
    const auto isAbove = [](const QWidget *window) {
        return window->isVisible() && !window->isMinimized() && window->windowFlags() & Qt::WindowStaysOnTopHint
            && (window->windowType() == Qt::Window || window->windowType() == Qt::Dialog);
    };
    QWidget *active = QApplication::activeWindow();
    if (active && isAbove(active))
        return active;
    const QWidgetList windows = QApplication::topLevelWidgets();
    const auto above = std::find_if(windows.cbegin(), windows.cend(), isAbove);
    return above == windows.cend() ? active : *above;
}
