#pragma once

#include "platform/foundation/Export.h"

#include <QByteArray>
#include <QString>
#include <sys/types.h>

/// The path of a process's executable, also after its file was removed or replaced; empty where it cannot be read.
QByteArray executableOf(pid_t process);

/// The path of this process's executable when it was first asked for, also before there is an application object.
LM_FOUNDATION QString runningExecutablePath();
