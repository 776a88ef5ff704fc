#pragma once

#include <QString>

/// Looks for a crash log that is newer than the last one dealt with, and offers to send it. Called once per pane, by
/// its initialiser.
///
/// The first check ever only remembers its time. In the settings application a log counts that names the pane. Nothing
/// is told of a failure; an NSException is logged.
void QBCrashReporterCheckForCrash();

/// The newest of an application's logs below a folder, where each crash has a file; a null text without one. Of two
/// with the same date it is the one that is met first.
QString QBCrashReporterFindTenFiveCrashReportPath(const QString &applicationName, const QString &folder);
