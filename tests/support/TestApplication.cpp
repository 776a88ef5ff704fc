#include "TestApplication.h"

#include "Wait.h"

#include "platform/foundation/LaunchServices.h"

#include <QFile>
#include <csignal>
#include <gtest/gtest.h>

TestApplication::TestApplication(const QString &identifier) : bundle_(QStringLiteral("Sample.app"))
{
    bundle_.writeInfo({{QStringLiteral("CFBundleIdentifier"), identifier},
        {QStringLiteral("CFBundleExecutable"), QStringLiteral("idle")}});
    bundle_.copyProgram(QStringLiteral("Contents/Linux/idle"), idleProgram());
}

TestApplication::~TestApplication()
{
    for (const pid_t process : launched_)
        killProcess(process);
}

QString TestApplication::idleProgram()
{
    return qEnvironmentVariable("LUMAROO_BUILD") + QStringLiteral("/tests/programs/idle");
}

ProcessSerialNumber TestApplication::launch()
{
    const FSRef reference{path()};
    const LSApplicationParameters parameters{0, kLSLaunchDontSwitch | kLSLaunchAsync, &reference};
    ProcessSerialNumber process;
    EXPECT_EQ(LSOpenApplication(&parameters, &process), noErr);
    if (process != kNoProcess)
        launched_ += pid_t(process.lowLongOfPSN);
    return process;
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
