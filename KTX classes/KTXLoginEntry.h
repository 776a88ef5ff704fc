#pragma once

#include <QString>

// Starting at login: an entry in the folder from which desktops start programs, $XDG_CONFIG_HOME/autostart.

/// Where the entry stands, or would.
QString loginEntryPath();

/// Whether the desktop starts a program by it at login: it is there, not switched off, and its program is there too.
bool startsAtLogin();

/// Writes the entry for a program, or removes it. Empty on success, else what failed; the old entry then stands as it
/// was.
QString setStartAtLogin(bool on, const QString &program);
