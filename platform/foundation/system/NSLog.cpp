#include "platform/foundation/system/NSLog.h"

#include "platform/foundation/system/linux/SystemLog.h"

namespace {

LogWriter &currentWriter()
{
    static LogWriter writer;
    return writer;
}

QString asOneLine(QString text)
{
    return text.replace(u'\n', u' ').replace(u'\r', u' ');
}

} // namespace

void NSLog(const QString &line)
{
    const QString text = asOneLine(line);
    if (currentWriter())
        currentWriter()(text);
    else
        writeToSystemLog(text);
}

LogWriter setLogWriter(LogWriter writer)
{
    return std::exchange(currentWriter(), std::move(writer));
}
