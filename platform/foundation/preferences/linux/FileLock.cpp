#include "platform/foundation/preferences/linux/FileLock.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>

using namespace std::chrono_literals;

namespace {

constexpr auto longestWait = 2s;
// Short, since the holder releases the lock for moments only where it writes again and again.
constexpr auto pauseBetweenTries = 200us;

} // namespace

FileLock::FileLock(const QByteArray &path) : file_(FileDescriptor::opened(path, O_RDWR | O_CREAT | O_NOFOLLOW, 0600))
{
    if (!file_)
        return;
    const int error = waitForLock(file_.get());
    if (error == 0)
        return;
    file_.close();
    errno = error;
}

/// 0 or the reason. The kernel's own waiting has no bound short of a signal, so we ask again and again.
int FileLock::waitForLock(int descriptor)
{
    const auto end = systemCalls().monotonicTime() + longestWait;
    while (uninterrupted([&] { return systemCalls().flock(descriptor, LOCK_EX | LOCK_NB); }) != 0) {
        if (errno != EWOULDBLOCK)
            return errno;
        if (systemCalls().monotonicTime() >= end)
            return ETIMEDOUT;
        systemCalls().sleep(pauseBetweenTries);
    }
    return 0;
}
