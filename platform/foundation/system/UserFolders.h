#pragma once

#include "platform/foundation/Export.h"

#include <QString>

// Where a user's files lie: the folder that the environment names for them, or the one of that kind in the home folder.
// A relative path in the environment counts as none. Asked for at each use, since the environment may change; nothing
// is made. Main thread only.

/// $XDG_CONFIG_HOME: what the user has set, here and in other programs.
LM_FOUNDATION const QString &userConfigurationFolder();
/// $XDG_DATA_HOME: what the user has installed.
LM_FOUNDATION const QString &userDataFolder();
/// $XDG_CACHE_HOME: what programs can make anew at any time.
LM_FOUNDATION const QString &userCacheFolder();
