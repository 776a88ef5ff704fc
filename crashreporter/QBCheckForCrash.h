#pragma once

/// Looks for a crash log that is newer than the last one dealt with, and offers to send it. Called once per pane, by
/// its initialiser.
void QBCrashReporterCheckForCrash();
