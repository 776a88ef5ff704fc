#include "TestApplication.h"

#include "RunningPrograms.h"

#include "platform/foundation/processes/LaunchServices.h"

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
