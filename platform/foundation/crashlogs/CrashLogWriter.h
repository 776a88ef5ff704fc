#pragma once

#include "platform/foundation/Export.h"

#include <QString>

/// From now on a crash of this process leaves a log: a signal by which the program itself fails (SIGSEGV, SIGABRT ...),
/// or an exception that nobody catches. Afterwards the process ends as it would have without.
///
/// Called once by a program's main, first of all. Where the logs go follows from the home folder and the system's
/// version at this time (CrashLogPlace.h); nothing is written before a crash. A signal that something else handles
/// already, a sanitizer for one, is left to it. A log that takes more than ten seconds is given up. A stack that
/// overflows is told of the calling thread alone.
LM_FOUNDATION void installCrashLogWriter();

/// Names a plug-in in the log of a crash from now on. Called before its code is loaded, which may crash already. What
/// comes after many names (2 KiB) is left out. Returns whether it was not named before.
LM_FOUNDATION bool nameInCrashLogs(const QString &plugInIdentifier);
/// Names it no longer. Called when its code could not be loaded after all.
LM_FOUNDATION void doNotNameInCrashLogs(const QString &plugInIdentifier);

/// Removes this program's oldest logs, or records of its one file, so that the last 20 stay. The one file keeps its
/// date. Called when the program starts; what cannot be removed stays, and one line is logged.
LM_FOUNDATION void trimCrashLogs();
