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
/// Gives a window the focus, as a task bar does for its user.
void turnToWindow(quint32 window);
/// Minimises a window, as its frame's button does.
void minimise(quint32 window);
/// Has a window fill the screen, as its frame's button does.
void maximise(quint32 window);
/// What the window manager says of a window, as "_NET_WM_STATE_HIDDEN".
QStringList windowStates(quint32 window);
/// All windows that the window manager has taken over, the oldest first.
QList<quint32> listedWindows();
/// All windows from the lowest to the one in front.
QList<quint32> stackedWindows();

// The desktops that the user may turn to, counted from 0.
quint32 desktops();
void setDesktops(quint32 count);
/// Waits until the window manager has handled all that has happened so far, as a window that has gone with the focus.
void waitForWindowManager();
quint32 desktopOfWindow(quint32 window);
quint32 currentDesktop();
void goToDesktop(quint32 desktop);

/// What the screen shows of a window.
QImage pictureOfWindow(quint32 window);
