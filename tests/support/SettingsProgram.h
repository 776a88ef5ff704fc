#pragma once

#include "DesktopWindows.h"
#include "HostProgram.h"

/// The real settings application as its user sees and drives it through the display.
class SettingsProgram : public HostProgram
{
public:
    /// Starts it with arguments; unless told, with the pane of the build tree.
    explicit SettingsProgram(const QStringList &arguments = {builtPane()});

    static QString builtPane();
    /// From now on they open as ones that were never used: with the first page, of the usual size.
    static void forgetWhatWasSeen();

    QList<DesktopWindow> windows() const { return desktopWindowsOfProcess(processId()); }
    /// Waits until it shows `count` windows and the newest has the focus; false when that does not come about.
    bool waitForWindows(int count) const;
    /// Waits until the focused window's picture stays as it is, and returns it.
    QImage settledPicture() const;
    /// Waits until the focused window looks otherwise than `before`, and returns its settled picture; a null image if
    /// it never does.
    QImage pictureAfterChangeFrom(const QImage &before) const;
};
