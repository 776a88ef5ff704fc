#include "platform/foundation/system/SystemCalls.h"

#include <cerrno>
#include <cstdio>
#include <ctime>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace {

int renameWithoutReplacing(const char *from, const char *to)
{
    const int result = ::renameat2(AT_FDCWD, from, AT_FDCWD, to, RENAME_NOREPLACE);
    if (result == 0 || errno != EINVAL)
        return result;
    // A file system without that operation: a second name does not replace either.
    return ::link(from, to) == 0 ? ::unlink(from) : -1;
}

std::chrono::nanoseconds realTime()
{
    return std::chrono::system_clock::now().time_since_epoch();
}

std::chrono::nanoseconds monotonicTime()
{
    return std::chrono::steady_clock::now().time_since_epoch();
}

void sleepFor(std::chrono::nanoseconds duration)
{
    const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(duration);
    const timespec span{seconds.count(), (duration - seconds).count()};
    ::nanosleep(&span, nullptr);
}

} // namespace

SystemCalls &systemCalls()
{
    static SystemCalls calls{
        .open = [](const char *path, int flags, mode_t mode) { return ::open(path, flags, mode); },
        .close = ::close,
        .pread = ::pread,
        .write = ::write,
        .fsync = ::fsync,
        .flock = ::flock,
        .fstat = [](int descriptor, struct stat *status) { return ::fstat(descriptor, status); },
        .stat = [](const char *path, struct stat *status) { return ::stat(path, status); },
        .readlink = ::readlink,
        .rename = ::rename,
        .renameWithoutReplacing = renameWithoutReplacing,
        .unlink = ::unlink,
        .mkdir = ::mkdir,
        .realTime = realTime,
        .monotonicTime = monotonicTime,
        .sleep = sleepFor,
    };
    return calls;
}

FileDescriptor &FileDescriptor::operator=(FileDescriptor &&other) noexcept
{
    if (this != &other) {
        close();
        descriptor_ = other.release();
    }
    return *this;
}

FileDescriptor FileDescriptor::opened(const QByteArray &path, int flags, mode_t mode)
{
    return FileDescriptor(uninterrupted([&] { return systemCalls().open(path.constData(), flags | O_CLOEXEC, mode); }));
}

bool FileDescriptor::close()
{
    // Never repeated: on Linux the descriptor is gone even where close reports an interruption.
    return descriptor_ < 0 || systemCalls().close(release()) == 0 || errno == EINTR;
}
