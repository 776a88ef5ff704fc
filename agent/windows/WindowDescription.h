#pragma once

#include <QRect>
#include <QString>
#include <QtGlobal>

/// Why a window cannot be selected.
enum class WindowIgnored : quint8 {
    No,
    OtherDesktop,
    Type, ///< a desktop, a panel, a menu, a tooltip and the like
    NotInTaskbar, ///< it asks pagers and task bars to leave it out
    Minimised, ///< and hidden windows are not asked for
    Program ///< its program is excluded
};

/// A window as one reading found it. Rectangles are in pixels from the upper left corner of all monitors together.
struct WindowDescription
{
    quint32 windowID = 0; ///< never 0 for a window
    qint64 windowPID = 0; ///< 0 where the window does not tell
    QString windowName; ///< its title, of at most 1,024 characters; may be empty
    QString appName; ///< its program's class; may be empty
    QRect windowRect; ///< what is seen of its frame, without shadows, within the monitors; empty where nothing is
    QRect frameRect; ///< the same, but also beyond the monitors
    int windowOrder = 0; ///< its place in the stack, 0 on top
    WindowIgnored windowIsIgnored = WindowIgnored::No;
    bool isMinimised = false; ///< then it covers nothing, and its rectangle is where it would come up

    bool operator==(const WindowDescription &) const = default;

    bool isCandidate() const { return windowIsIgnored == WindowIgnored::No; }
    /// Whether it hides what lies below it: what is on another desktop or minimised does not.
    bool covers() const
    {
        return !isMinimised && windowIsIgnored != WindowIgnored::OtherDesktop && !windowRect.isEmpty();
    }
};
