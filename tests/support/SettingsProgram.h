#pragma once

#include "DesktopWindows.h"

#include <QProcess>

/// The real settings program of the build tree, driven through the display as its user would.
class SettingsProgram
{
public:
    /// Starts it with arguments, such as the pane to open.
    explicit SettingsProgram(const QStringList &arguments = {panePath()});
    /// Kills it if it still runs.
    ~SettingsProgram();
    SettingsProgram(const SettingsProgram &) = delete;
    SettingsProgram &operator=(const SettingsProgram &) = delete;

    static QString panePath();
    static QString buildFolder();

    /// Waits until it shows `count` windows and the newest has the focus; false when that does not come about.
    bool waitForWindows(int count);
    /// Waits until the focused window's picture stays the same over several turns of its program, and returns it.
    QImage settledPicture();
    /// Waits until the focused window looks otherwise than `before`, and returns its settled picture; a null image if it never does.
    QImage pictureAfterChangeFrom(const QImage &before);

    QList<DesktopWindow> windows() const;
    bool isRunning() const;
    /// Waits for its end; the exit code, or -1 when it did not end normally.
    int waitForExit();
    qint64 processID() const { return process_.processId(); }
    /// What it has written to standard error so far.
    QString standardError();

private:
    QProcess process_;
    QByteArray errorOutput_;
};
