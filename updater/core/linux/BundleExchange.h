#pragma once

#include "platform/foundation/system/SystemCalls.h"

#include <QString>

/// Keeps other processes from updating the bundles in a folder. The kernel drops the lock with the process, and there
/// is no file for it.
class FolderLock
{
public:
    /// Does not wait.
    explicit FolderLock(const QString &folder);
    explicit operator bool() const { return bool(folder_); }
    void release() { folder_.close(); }

private:
    FileDescriptor folder_;
};

/// Creates a folder that only this user may enter, named `start` and six characters more; empty, with errno, where it
/// cannot.
QString newPrivateFolder(const QString &start);
/// Creates one of exactly this name; empty, or what went wrong.
QString makePrivateFolder(const QString &path);

/// Has everything that was written to a folder's file system survive a power failure; empty, or what went wrong.
QString secureFileSystem(const QString &folder);

/// Has two folders change places in one step, so that at each instant a whole one stands at either path; empty, or what
/// went wrong: then nothing has changed.
QString exchangeFolders(const QString &one, const QString &other);
