#pragma once

#include "platform/foundation/Export.h"

#include <QString>

/// What a user calls the file or folder at a path: its name there, with its extension.
LM_FOUNDATION QString displayNameAtPath(const QString &path);

/// A file's name without its extension, if it has one.
LM_FOUNDATION QString stringByDeletingPathExtension(const QString &name);
