#pragma once

#include "platform/foundation/Export.h"

#include <QString>
#include <functional>

/// Writes one line to the system log, and to standard error unless that already is the journal.
///
/// Called for everything that is noticed and not shown to the user. Line ends inside the text become blanks, so one
/// call is one line. Never fails.
LM_FOUNDATION void NSLog(const QString &line);

/// Where log lines go instead of the system log and standard error.
using LogWriter = std::function<void(const QString &line)>;

/// Sends log lines to `writer` from now on and returns the writer before it; an empty one stands for the system log.
/// For tests.
LM_FOUNDATION LogWriter setLogWriter(LogWriter writer);
