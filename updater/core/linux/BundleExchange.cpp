#include "updater/core/linux/BundleExchange.h"

#include "updater/core/linux/SystemProblem.h"

#include <QFile>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

FileDescriptor openedFolder(const QString &folder)
{
    return FileDescriptor::opened(QFile::encodeName(folder), O_RDONLY | O_DIRECTORY);
}

} // namespace

FolderLock::FolderLock(const QString &folder) : folder_(openedFolder(folder))
{
    if (folder_ && uninterrupted([&] { return ::flock(folder_.get(), LOCK_EX | LOCK_NB); }) != 0)
        folder_.close();
}

QString newPrivateFolder(const QString &start)
{
    QByteArray path = QFile::encodeName(start) + "XXXXXX";
    return ::mkdtemp(path.data()) ? QFile::decodeName(path) : QString();
}

QString makePrivateFolder(const QString &path)
{
    return ::mkdir(QFile::encodeName(path).constData(), 0700) == 0 ? QString() : systemProblem("mkdir");
}

QString secureFileSystem(const QString &folder)
{
    const FileDescriptor opened = openedFolder(folder);
    if (!opened)
        return systemProblem("open");
    return ::syncfs(opened.get()) == 0 ? QString() : systemProblem("syncfs");
}

QString exchangeFolders(const QString &one, const QString &other)
{
    const QByteArray first = QFile::encodeName(one);
    const QByteArray second = QFile::encodeName(other);
    const bool isDone = ::renameat2(AT_FDCWD, first.constData(), AT_FDCWD, second.constData(), RENAME_EXCHANGE) == 0;
    return isDone ? QString() : systemProblem("renameat2");
}
