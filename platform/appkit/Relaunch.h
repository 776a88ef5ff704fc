#pragma once

#include "platform/appkit/Export.h"

class QString;

/// What the launcher writes to the system's log beside failures.
enum class LauncherLog { Quiet, Verbose };

/// Has this application end, as its user would end it, and come back with a pane, by the `launcher` that lies in the
/// pane's bundle. Returns before it has ended. Where it stays, the launcher waits on, and brings it back after the next
/// end. Throws an NSException when the launcher cannot be run; then the application goes on.
LM_APPKIT void relaunchWithPane(const QString &paneBundlePath, const QString &launcher, LauncherLog log);
