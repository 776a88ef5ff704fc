#include "RunningPrograms.h"

#include "Wait.h"

#include "platform/foundation/processes/Processes.h"

#include <QFile>
#include <csignal>
#include <gtest/gtest.h>

QList<pid_t> processesOf(const QString &program)
{
    QList<pid_t> found;
    ProcessSerialNumber process;
    while (GetNextProcess(&process) == noErr) {
        const QVariantMap information =
            ProcessInformationCopyDictionary(process, kProcessDictionaryIncludeAllInformationMask);
        if (information.value(kCFBundleExecutableKey) == program)
            found += pid_t(process.lowLongOfPSN);
    }
    return found;
}

bool processRuns(pid_t process)
{
    QFile status(QStringLiteral("/proc/%1/stat").arg(process));
    if (!status.open(QIODevice::ReadOnly))
        return false;
    const QByteArray text = status.readAll();
    return !text.mid(text.lastIndexOf(')')).startsWith(") Z");
}

void killProcess(pid_t process)
{
    ::kill(process, SIGKILL);
    EXPECT_TRUE(waitUntil([process] { return !processRuns(process); }));
}

void killProcessesOf(const QString &program)
{
    for (const pid_t process : processesOf(program))
        killProcess(process);
}
