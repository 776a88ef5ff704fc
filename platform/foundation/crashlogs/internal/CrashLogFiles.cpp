#include "platform/foundation/crashlogs/internal/CrashLogFiles.h"

#include "platform/foundation/crashlogs/CrashRecordSeparator.h"
#include "platform/foundation/machine/Gestalt.h"
#include "platform/foundation/system/NSLog.h"

#include <QDir>
#include <QFile>
#include <QSaveFile>
#include <sys/stat.h>

namespace {

constexpr qint64 pieceSize = 65536;
const QByteArray separator = crashRecordSeparator;

quint32 answerOr0(OSType selector)
{
    qintptr response = 0;
    return Gestalt(selector, &response) == noErr ? quint32(response) : 0;
}

/// Where the last `count` records begin; 0 where there are no more.
qint64 beginningOfLastRecords(QFile &log, int count)
{
    qint64 begin = log.size();
    QByteArray found; // from `begin` on, as far as a separator may reach into it
    while (begin > 0) {
        const qint64 size = qMin(begin, pieceSize);
        if (!log.seek(begin - size))
            return 0;
        const QByteArray piece = log.read(size) + found.left(separator.size() - 1);
        begin -= size;
        for (qsizetype end = piece.size(), at = 0; (at = piece.first(end).lastIndexOf(separator)) >= 0; end = at) {
            if (--count == 0)
                return begin + at + separator.size();
        }
        found = piece;
    }
    return 0;
}

bool copyRest(QFile &from, QSaveFile &to)
{
    while (!from.atEnd()) {
        const QByteArray piece = from.read(pieceSize);
        if (piece.isEmpty() || to.write(piece) != piece.size())
            return false;
    }
    return to.flush();
}

bool replaceByRest(QFile &log, const struct stat &status)
{
    QSaveFile shorter(log.fileName());
    const timespec dates[] = {status.st_atim, status.st_mtim};
    return shorter.open(QIODevice::WriteOnly) && copyRest(log, shorter)
        && ::fchmod(shorter.handle(), S_IRUSR | S_IWUSR) == 0 && ::futimens(shorter.handle(), dates) == 0
        && shorter.commit();
}

void tellFailure(const QString &path, const QString &reason)
{
    NSLog(QStringLiteral("lumaroo: crash logs: %1 stays as it is: %2").arg(path, reason));
}

} // namespace

CrashLogPlace crashLogPlaceOfSystem()
{
    return crashLogPlace(answerOr0(gestaltSystemVersionMajor), answerOr0(gestaltSystemVersionMinor));
}

void keepLastLogs(const QString &folder, const QString &program, int count)
{
    // Another program's name may differ by the case of a letter alone.
    const QStringList logs = QDir(folder).entryList(
        {program + QStringLiteral("_*.crash")}, QDir::Files | QDir::Hidden | QDir::CaseSensitive, QDir::Time);
    for (const QString &log : logs.mid(count)) {
        QFile file(folder + log);
        if (!file.remove()) {
            tellFailure(file.fileName(), file.errorString());
            return;
        }
    }
}

void keepLastRecords(const QString &path, int count)
{
    struct stat status = {};
    if (::lstat(QFile::encodeName(path).constData(), &status) != 0 || !S_ISREG(status.st_mode))
        return;
    QFile log(path);
    if (!log.open(QIODevice::ReadOnly)) {
        tellFailure(path, log.errorString());
        return;
    }
    const qint64 begin = beginningOfLastRecords(log, count);
    if (begin > 0 && (!log.seek(begin) || !replaceByRest(log, status)))
        tellFailure(path, QStringLiteral("it cannot be replaced"));
}
