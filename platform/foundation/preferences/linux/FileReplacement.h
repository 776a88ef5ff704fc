#pragma once

#include "platform/foundation/system/SystemCalls.h"

#include <QString>

/// How far a replacement came.
struct FileReplacement
{
    enum class Outcome {
        Unchanged, ///< the old file stands, whole
        Replaced, ///< the new file stands, whole, but may not survive a power failure yet
        Secured, ///< the new file stands and its folder knows it for good
    };
    Outcome outcome = Outcome::Unchanged;
    QString error; ///< empty when secured
    struct stat status = {}; ///< of the new file
};

/// Puts `bytes` at `path`: temporary file beside it, fsync, rename, fsync of the folder. The caller holds the lock that
/// keeps other writers away.
FileReplacement replaceFile(const QByteArray &path, const QByteArray &bytes);

/// Makes what was renamed in a folder survive a power failure; empty, or what failed.
QString secureFolder(const QByteArray &folder);

/// The folder of a path.
QByteArray folderOf(const QByteArray &path);

/// "write: No space left on device", after errno.
QString systemError(const char *call);
