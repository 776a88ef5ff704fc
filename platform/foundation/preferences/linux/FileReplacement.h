#pragma once

#include "platform/foundation/system/SystemCalls.h"

#include <QString>

/// What the system refused: "write: No space left on device", and the number of that.
struct SystemError
{
    QString text; ///< empty where nothing was refused
    int number = 0;

    explicit operator bool() const { return !text.isEmpty(); }
};

/// How far a replacement came.
struct FileReplacement
{
    enum class Outcome {
        Unchanged, ///< the old file stands, whole
        Replaced, ///< the new file stands, whole, but may not survive a power failure yet
        Secured, ///< the new file stands and its folder knows it for good
    };
    Outcome outcome = Outcome::Unchanged;
    SystemError error; ///< none when secured
    struct stat status = {}; ///< of the new file
};

/// Puts `bytes` at `path`: temporary file beside it, fsync, rename, fsync of the folder. The caller holds the lock that
/// keeps other writers away.
FileReplacement replaceFile(const QByteArray &path, const QByteArray &bytes);

/// Makes what was renamed in a folder survive a power failure; or what failed.
SystemError secureFolder(const QByteArray &folder);

/// The folder of a path.
QByteArray folderOf(const QByteArray &path);

/// What a call has just left in errno.
SystemError systemError(const char *call);
