#include "crashreporter/CrashRecord.h"

#include "platform/foundation/crashlogs/CrashRecordSeparator.h"

#include <QStringDecoder>

namespace {

/// What follows the last separator of `text`, taken from the beginning: of two that overlap the first one counts.
template <typename Text>
Text lastPiece(const Text &text, const Text &separator)
{
    qsizetype begin = 0;
    for (qsizetype at = 0; (at = text.indexOf(separator, begin)) >= 0;)
        begin = at + separator.size();
    return text.sliced(begin);
}

QString decoded(const QByteArray &text, QStringConverter::Encoding encoding)
{
    return QStringDecoder(encoding).decode(text);
}

} // namespace

QString lastCrashRecord(const QByteArray &log)
{
    static const QByteArray utf8Mark = "\xef\xbb\xbf";
    const auto marked = QStringConverter::encodingForData(log);
    if (marked && *marked != QStringConverter::Utf8)
        return lastPiece(decoded(log, *marked), QString::fromLatin1(crashRecordSeparator));
    // Only the last of what may be a large log is decoded.
    if (!log.isValidUtf8())
        return QString::fromLatin1(lastPiece(log, QByteArray(crashRecordSeparator)));
    const QByteArray unmarked = log.startsWith(utf8Mark) ? log.sliced(utf8Mark.size()) : log;
    QStringDecoder decoder(QStringConverter::Utf8, QStringConverter::Flag::ConvertInitialBom);
    return decoder.decode(lastPiece(unmarked, QByteArray(crashRecordSeparator)));
}

QByteArray fromWholeCharacter(const QByteArray &endOfLog)
{
    constexpr qsizetype mostBytesInside = 3;
    constexpr auto isInside = [](char byte) { return (quint8(byte) & 0xc0) == 0x80; };
    qsizetype begin = 0;
    while (begin < mostBytesInside && begin < endOfLog.size() && isInside(endOfLog[begin]))
        ++begin;
    return endOfLog.sliced(begin);
}

QString shortenedCrashRecord(const QString &record, qsizetype most)
{
    if (record.size() <= most)
        return record;
    const qsizetype length = record[most - 1].isHighSurrogate() ? most - 1 : most;
    return record.first(length)
        + QStringLiteral("\n*** %1 more characters are left out ***").arg(record.size() - length);
}
