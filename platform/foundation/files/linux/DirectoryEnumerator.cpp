#include "platform/foundation/files/NSDirectoryEnumerator.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <vector>

namespace {

constexpr size_t mostLevels = 64;

using Date = std::optional<std::chrono::nanoseconds>;

Date dateOf(int folder, const char *name)
{
    struct stat status = {};
    if (::fstatat(folder, name, &status, AT_SYMLINK_NOFOLLOW) != 0)
        return std::nullopt;
    return std::chrono::seconds(status.st_mtim.tv_sec) + std::chrono::nanoseconds(status.st_mtim.tv_nsec);
}

struct Closer
{
    void operator()(DIR *folder) const { ::closedir(folder); }
};

/// A folder that is being read.
struct Level
{
    std::unique_ptr<DIR, Closer> folder;
    qsizetype prefix; ///< how much of an entry's path leads to the folder
};

bool isSelfOrParent(const char *name)
{
    return qstrcmp(name, ".") == 0 || qstrcmp(name, "..") == 0;
}

bool isFolder(int parent, const dirent &entry)
{
    if (entry.d_type != DT_UNKNOWN)
        return entry.d_type == DT_DIR;
    struct stat status = {};
    return ::fstatat(parent, entry.d_name, &status, AT_SYMLINK_NOFOLLOW) == 0 && S_ISDIR(status.st_mode);
}

} // namespace

Date fileModificationDate(const QByteArray &path)
{
    return dateOf(AT_FDCWD, path.constData());
}

class NSDirectoryEnumerator::Private
{
public:
    void enter(int descriptor, qsizetype prefix);
    void enterPending();
    bool next();

    std::vector<Level> levels;
    QByteArray path;
    const dirent *entry = nullptr;
    bool isToBeEntered = false;
};

void NSDirectoryEnumerator::Private::enter(int descriptor, qsizetype prefix)
{
    if (DIR *folder = descriptor >= 0 ? ::fdopendir(descriptor) : nullptr)
        levels.push_back({std::unique_ptr<DIR, Closer>(folder), prefix});
}

void NSDirectoryEnumerator::Private::enterPending()
{
    if (!std::exchange(isToBeEntered, false) || levels.size() >= mostLevels)
        return;
    const int parent = ::dirfd(levels.back().folder.get());
    const int descriptor =
        ::openat(parent, entry->d_name, O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC | O_NONBLOCK);
    path += '/';
    enter(descriptor, path.size());
}

bool NSDirectoryEnumerator::Private::next()
{
    enterPending();
    while (!levels.empty()) {
        const Level &level = levels.back();
        entry = ::readdir(level.folder.get());
        if (!entry) {
            levels.pop_back();
        } else if (!isSelfOrParent(entry->d_name)) {
            path.truncate(level.prefix);
            path += entry->d_name;
            isToBeEntered = isFolder(::dirfd(level.folder.get()), *entry);
            return true;
        }
    }
    return false;
}

NSDirectoryEnumerator::NSDirectoryEnumerator(const QByteArray &folder) : d(std::make_unique<Private>())
{
    d->enter(::open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC | O_NONBLOCK), 0);
}

NSDirectoryEnumerator::~NSDirectoryEnumerator() = default;

bool NSDirectoryEnumerator::next()
{
    return d->next();
}

const QByteArray &NSDirectoryEnumerator::path() const
{
    return d->path;
}

Date NSDirectoryEnumerator::modificationDate() const
{
    return dateOf(::dirfd(d->levels.back().folder.get()), d->entry->d_name);
}

void NSDirectoryEnumerator::skipDescendants()
{
    d->isToBeEntered = false;
}
