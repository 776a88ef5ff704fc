#include "platform/foundation/preferences/linux/FileReplacement.h"

#include <QFile>
#include <cerrno>
#include <cstring>
#include <fcntl.h>

namespace {

/// One name for all writers: the lock lets in only one at a time, and what a killed one left behind goes with the next
/// write.
QByteArray temporaryPathFor(const QByteArray &path)
{
    const qsizetype name = path.lastIndexOf('/') + 1;
    return path.left(name) + '.' + path.mid(name) + ".new";
}

FileDescriptor createdFile(const QByteArray &path)
{
    constexpr int flags = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW;
    FileDescriptor file = FileDescriptor::opened(path, flags, 0600);
    if (file || errno != EEXIST)
        return file;
    systemCalls().unlink(path.constData());
    return FileDescriptor::opened(path, flags, 0600);
}

bool writeAll(int descriptor, const QByteArray &bytes)
{
    qsizetype written = 0;
    while (written < bytes.size()) {
        const ssize_t result = uninterrupted([&] {
            return systemCalls().write(descriptor, bytes.constData() + written, size_t(bytes.size() - written));
        });
        if (result < 0)
            return false;
        written += result;
    }
    return true;
}

/// None, or what failed.
SystemError writeFile(const QByteArray &path, const QByteArray &bytes, struct stat *status)
{
    FileDescriptor file = createdFile(path);
    if (!file)
        return systemError("open");
    if (!writeAll(file.get(), bytes))
        return systemError("write");
    if (uninterrupted([&] { return systemCalls().fsync(file.get()); }) != 0)
        return systemError("fsync");
    if (systemCalls().fstat(file.get(), status) != 0)
        return systemError("fstat");
    if (!file.close())
        return systemError("close");
    return {};
}

} // namespace

SystemError systemError(const char *call)
{
    const int number = errno;
    return {
        QStringLiteral("%1: %2").arg(QString::fromLatin1(call), QString::fromLocal8Bit(std::strerror(number))), number};
}

QByteArray folderOf(const QByteArray &path)
{
    return path.left(std::max(qsizetype(1), path.lastIndexOf('/')));
}

SystemError secureFolder(const QByteArray &folder)
{
    const FileDescriptor descriptor = FileDescriptor::opened(folder, O_RDONLY | O_DIRECTORY);
    if (!descriptor)
        return systemError("open");
    // Some file systems know no such thing for folders.
    if (uninterrupted([&] { return systemCalls().fsync(descriptor.get()); }) != 0 && errno != EINVAL)
        return systemError("fsync");
    return {};
}

FileReplacement replaceFile(const QByteArray &path, const QByteArray &bytes)
{
    using Outcome = FileReplacement::Outcome;
    FileReplacement replacement;
    const QByteArray temporary = temporaryPathFor(path);
    replacement.error = writeFile(temporary, bytes, &replacement.status);
    if (!replacement.error && systemCalls().rename(temporary.constData(), path.constData()) != 0)
        replacement.error = systemError("rename");
    if (replacement.error) {
        systemCalls().unlink(temporary.constData());
        return replacement;
    }
    replacement.error = secureFolder(folderOf(path));
    replacement.outcome = replacement.error ? Outcome::Replaced : Outcome::Secured;
    return replacement;
}
