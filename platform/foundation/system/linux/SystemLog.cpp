#include "platform/foundation/system/linux/SystemLog.h"

#include <cstdio>
#include <sys/stat.h>
#include <syslog.h>

namespace {

/// The journal names the socket it reads standard error from in JOURNAL_STREAM, as "device:inode".
bool standardErrorIsTheJournal()
{
    struct stat status;
    if (fstat(STDERR_FILENO, &status) != 0)
        return false;
    const QByteArray stream =
        QByteArray::number(quint64(status.st_dev)) + ':' + QByteArray::number(quint64(status.st_ino));
    return qgetenv("JOURNAL_STREAM") == stream;
}

} // namespace

void writeToSystemLog(const QString &line)
{
    const QByteArray bytes = line.toUtf8();
    syslog(LOG_USER | LOG_NOTICE, "%s", bytes.constData());
    if (!standardErrorIsTheJournal())
        std::fprintf(stderr, "%s\n", bytes.constData());
}
