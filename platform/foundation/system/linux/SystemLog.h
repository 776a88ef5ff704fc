#pragma once

#include <QString>

/// One line to syslog(3) and, unless standard error is the journal's socket, to standard error.
void writeToSystemLog(const QString &line);
