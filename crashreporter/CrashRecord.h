#pragma once

#include <QByteArray>
#include <QString>

/// The newest record of a crash log, which is what follows the last separator; the whole log where there is none.
///
/// The log is Unicode in the form that its byte order mark tells, or else UTF-8, or where it is not that, Latin-1.
QString lastCrashRecord(const QByteArray &log);
/// The end of a log, which may begin within a character of UTF-8, without that one.
QByteArray fromWholeCharacter(const QByteArray &endOfLog);
/// A record as a window can show it: of a longer one the first `most` characters and a line that tells what is left
/// out.
QString shortenedCrashRecord(const QString &record, qsizetype most);
