#include "crashreporter/CrashRecord.h"

#include <QStringDecoder>
#include <QStringList>
#include <cstdlib>

// Whatever a crash log holds: its newest record is the last piece of the whole text.

namespace {

QString wholeText(const QByteArray &log)
{
    const auto marked = QStringConverter::encodingForData(log);
    const bool isUnicode = (marked && *marked != QStringConverter::Utf8) || log.isValidUtf8();
    return isUnicode ? QString(QStringDecoder(marked.value_or(QStringConverter::Utf8)).decode(log))
                     : QString::fromLatin1(log);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t size)
{
    const QByteArray log(reinterpret_cast<const char *>(bytes), qsizetype(size));
    if (lastCrashRecord(log) != wholeText(log).split(QStringLiteral("\n\n**********\n\n")).last())
        std::abort();
    return 0;
}
