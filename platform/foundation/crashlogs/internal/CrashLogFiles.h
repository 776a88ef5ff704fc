#pragma once

#include "platform/foundation/Export.h"
#include "platform/foundation/crashlogs/CrashLogPlace.h"

/// Where the logs of this system's programs lie.
CrashLogPlace crashLogPlaceOfSystem();

/// Removes the oldest of a program's logs in a folder, but for the last `count`. One line is logged where one cannot be
/// removed.
LM_FOUNDATION void keepLastLogs(const QString &folder, const QString &program, int count);

/// Replaces a log by its last `count` records, in one go and with its date. What is no file of its own is left alone.
LM_FOUNDATION void keepLastRecords(const QString &path, int count);
