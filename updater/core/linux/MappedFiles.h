#pragma once

#include <QString>

/// Whether a process of this user has a file below a folder in its memory: code that runs, or that was loaded.
bool isMappedByAnyProcess(const QString &folder);
