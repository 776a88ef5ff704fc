#include "agent/actions/screenshot/NewFile.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr mode_t asTheUserHasIt = 0666;
// Nobody has so many of one second.
constexpr int mostOfOneName = 1000;

} // namespace

NewFile::NewFile(const std::string &folder)
    : folder_(folder), descriptor_(::open(folder.c_str(), O_TMPFILE | O_WRONLY | O_CLOEXEC, asTheUserHasIt))
{
    const bool isUnknown = errno == EOPNOTSUPP || errno == EISDIR || errno == ENOENT || errno == EINVAL;
    if (descriptor_ >= 0 || !isUnknown)
        return;
    hidden_ = folder_ + "/.screenshot-" + std::to_string(::getpid()) + ".part";
    descriptor_ = ::open(hidden_.c_str(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, asTheUserHasIt);
    if (descriptor_ < 0)
        hidden_.clear();
}

NewFile::~NewFile()
{
    // Who asks why something failed asks after this.
    const int failure = errno;
    if (descriptor_ >= 0)
        ::close(descriptor_);
    if (!hidden_.empty())
        ::unlink(hidden_.c_str());
    errno = failure;
}

bool NewFile::write(const void *bytes, size_t size)
{
    const auto *place = static_cast<const char *>(bytes);
    while (size > 0) {
        const ssize_t written = ::write(descriptor_, place, size);
        if (written < 0 && errno != EINTR)
            return false;
        if (written > 0) {
            place += written;
            size -= size_t(written);
        }
    }
    return true;
}

std::string NewFile::publish(const std::string &name, const std::string &extension)
{
    // Some file systems tell only now that there is no room.
    if (::fsync(descriptor_) != 0)
        return {};
    for (int number = 1; number <= mostOfOneName; ++number) {
        const std::string path = folder_ + '/' + name + (number == 1 ? "" : ' ' + std::to_string(number)) + extension;
        if (takePath(path))
            return path;
        if (errno != EEXIST)
            break;
    }
    return {};
}

bool NewFile::takePath(const std::string &path)
{
    if (hidden_.empty()) {
        const std::string self = "/proc/self/fd/" + std::to_string(descriptor_);
        return ::linkat(AT_FDCWD, self.c_str(), AT_FDCWD, path.c_str(), AT_SYMLINK_FOLLOW) == 0;
    }
    if (::renameat2(AT_FDCWD, hidden_.c_str(), AT_FDCWD, path.c_str(), RENAME_NOREPLACE) == 0) {
        hidden_.clear();
        return true;
    }
    // Not every file system can do that; the hidden name goes later.
    return errno == EINVAL && ::link(hidden_.c_str(), path.c_str()) == 0;
}

bool makeFolder(const std::string &path)
{
    for (size_t end = path.find('/', 1);; end = path.find('/', end + 1)) {
        if (::mkdir(path.substr(0, end).c_str(), 0777) != 0 && errno != EEXIST)
            return false;
        if (end == std::string::npos)
            return true;
    }
}
