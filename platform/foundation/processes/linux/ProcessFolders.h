#pragma once

#include <QByteArray>
#include <sys/types.h>
#include <vector>

/// The processes of this user, as they are now.
std::vector<pid_t> processesOfThisUser();

/// A variable of the environment that a process was started with, or empty.
QByteArray environmentVariableOf(pid_t process, const QByteArray &name);
