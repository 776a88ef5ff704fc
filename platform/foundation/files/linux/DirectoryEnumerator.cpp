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
    return name[0] == '.' && (name[1] == '\0' || (name[1] == '.' && name[2] == '\0'));
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
    const QByteArray &pathOfEntry();

    std::vector<Level> levels;
    QByteArray path; // of the entry once that has been asked for; else it begins with the folder's
    bool isPathOfEntry = false;
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
    pathOfEntry();
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
            isPathOfEntry = false;
            isToBeEntered = isFolder(::dirfd(level.folder.get()), *entry);
            return true;
        }
    }
    return false;
}

const QByteArray &NSDirectoryEnumerator::Private::pathOfEntry()
{
    if (!std::exchange(isPathOfEntry, true)) {
        path.truncate(levels.back().prefix);
        path += entry->d_name;
    }
    return path;
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
    return d->pathOfEntry();
}

bool NSDirectoryEnumerator::pathStartsWith(const QByteArray &prefix) const
{
    const bool isInFolderItself = d->levels.back().prefix == 0;
    return isInFolderItself ? qstrncmp(d->entry->d_name, prefix.constData(), size_t(prefix.size())) == 0
                            : path().startsWith(prefix);
}

Date NSDirectoryEnumerator::modificationDate() const
{
    return dateOf(::dirfd(d->levels.back().folder.get()), d->entry->d_name);
}

void NSDirectoryEnumerator::skipDescendants()
{
    d->isToBeEntered = false;
}
