#pragma once

#include "platform/foundation/Export.h"

#include <QByteArray>
#include <chrono>
#include <functional>
#include <sys/stat.h>
#include <sys/types.h>

/// The file system calls that the settings are kept with. Tests replace single entries to make them fail or to count
/// them.
struct SystemCalls
{
    std::function<int(const char *path, int flags, mode_t mode)> open;
    std::function<int(int descriptor)> close;
    std::function<ssize_t(int descriptor, void *buffer, size_t size, off_t offset)> pread;
    std::function<ssize_t(int descriptor, const void *bytes, size_t size)> write;
    std::function<int(int descriptor)> fsync;
    std::function<int(int descriptor, int operation)> flock;
    std::function<int(int descriptor, struct stat *status)> fstat;
    std::function<int(const char *path, struct stat *status)> stat;
    std::function<ssize_t(const char *path, char *buffer, size_t size)> readlink;
    std::function<int(const char *from, const char *to)> rename;
    std::function<int(const char *from, const char *to)>
        renameWithoutReplacing; ///< fails with EEXIST where `to` is there already
    std::function<int(const char *path)> unlink;
    std::function<int(const char *path, mode_t mode)> mkdir;
    std::function<std::chrono::nanoseconds()> realTime; ///< since 1970, as file times count
    std::function<std::chrono::nanoseconds()> monotonicTime;
    std::function<void(std::chrono::nanoseconds duration)> sleep;
};

/// The table in use; the kernel's own calls unless a test has replaced some.
LM_FOUNDATION SystemCalls &systemCalls();

/// An open file; closed, with whatever result, when it goes.
class LM_FOUNDATION FileDescriptor
{
public:
    FileDescriptor() = default;
    explicit FileDescriptor(int descriptor) : descriptor_(descriptor) { }
    FileDescriptor(FileDescriptor &&other) noexcept : descriptor_(other.release()) { }
    FileDescriptor &operator=(FileDescriptor &&other) noexcept;
    ~FileDescriptor() { close(); }

    /// Opens close-on-exec, again after an interruption.
    static FileDescriptor opened(const QByteArray &path, int flags, mode_t mode = 0);

    int get() const { return descriptor_; }
    explicit operator bool() const { return descriptor_ >= 0; }
    /// False, with errno set, where the kernel reports a failure; the file is closed all the same.
    bool close();

private:
    int release() { return std::exchange(descriptor_, -1); }
    int descriptor_ = -1;
};

/// Repeats a call for as long as a signal interrupts it.
template <typename Call>
auto uninterrupted(Call &&call)
{
    auto result = call();
    while (result < 0 && errno == EINTR)
        result = call();
    return result;
}
