#pragma once

#include "platform/foundation/system/SystemCalls.h"

/// A kernel lock on a side file. The kernel drops it with the process, so none is ever left behind; the empty side file
/// stays.
class FileLock
{
public:
    /// Creates the side file where it is missing. Waits 2 s at most; then, and on failure, the lock is not held and
    /// errno tells why (ETIMEDOUT).
    explicit FileLock(const QByteArray &path);

    explicit operator bool() const { return bool(file_); }

private:
    static int waitForLock(int descriptor);
    FileDescriptor file_;
};
