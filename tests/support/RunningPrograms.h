#pragma once

#include <QList>
#include <QString>
#include <sys/types.h>

// Processes that tests did not start themselves, found as the system lists them.

/// The processes that run a program, by the path of its file (also of one that has been replaced since).
QList<pid_t> processesOf(const QString &program);
/// Whether a process exists that has not ended; one that waits to be collected has.
bool processRuns(pid_t process);
/// Kills a process, and returns once it is gone.
void killProcess(pid_t process);
void killProcessesOf(const QString &program);
