#pragma once

#include <QString>
#include <sys/types.h>

// The two ways of belonging to this process's session; Processes.h says what that is.

/// Whether a process was started with the session bus in its environment that this one has now.
bool wasStartedInThisSession(pid_t process);

/// Whether a process owns a name on our session bus; false where there is none, or it does not answer within 5 s.
bool ownsNameOnSessionBus(pid_t process, const QString &name);
