#include "platform/foundation/linux/RunningExecutable.h"

#include <QByteArray>
#include <QFile>
#include <climits>
#include <unistd.h>

QString runningExecutablePath()
{
    QByteArray path(PATH_MAX, '\0');
    const ssize_t length = readlink("/proc/self/exe", path.data(), size_t(path.size()));
    path.truncate(std::max<ssize_t>(length, 0));
    // What the kernel appends when the file has been removed or replaced since it was started.
    static const QByteArray removedMark(" (deleted)");
    if (path.endsWith(removedMark))
        path.chop(removedMark.size());
    return QFile::decodeName(path);
}
