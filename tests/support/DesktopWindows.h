#pragma once

#include <QImage>
#include <QList>
#include <QPoint>
#include <QStringList>

/// A top-level window as the window manager lists it.
struct DesktopWindow
{
    quint32 id = 0;
    qint64 processID = 0;
    QString title;
    QPoint position; ///< of its content, on the screen
};

/// All windows that the window manager shows, in the order in which it took them over.
QList<DesktopWindow> desktopWindows();
QList<DesktopWindow> desktopWindowsOfProcess(qint64 processID);
/// The window that has the keyboard focus, 0 for none.
quint32 activeWindow();
/// The titles of all windows, and that of the one with the focus.
QStringList openWindowTitles();
QString activeWindowTitle();
/// Asks a window to close, as its frame's close button does.
void askToClose(quint32 window);
/// What the screen shows of a window.
QImage pictureOfWindow(quint32 window);
