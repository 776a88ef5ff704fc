#include "platform/foundation/system/RunningExecutable.h"

#include <QFile>
#include <array>
#include <climits>
#include <unistd.h>

QByteArray executableOf(pid_t process)
{
    std::array<char, PATH_MAX> buffer;
    const ssize_t length = ::readlink(
        QByteArray("/proc/" + QByteArray::number(process) + "/exe").constData(), buffer.data(), buffer.size());
    QByteArray path(buffer.data(), std::max<ssize_t>(length, 0));
    // What the kernel appends when the file has been removed or replaced since it was started.
    static const QByteArray removedMark(" (deleted)");
    if (path.endsWith(removedMark))
        path.chop(removedMark.size());
    return path;
}

QString runningExecutablePath()
{
    // Where it stood at first: a program that is replaced later may be moved out of the way for that.
    static const QString path = QFile::decodeName(executableOf(getpid()));
    return path;
}
