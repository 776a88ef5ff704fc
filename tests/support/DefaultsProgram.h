#pragma once

#include <QProcess>
#include <gtest/gtest.h>

/// What a program left behind.
struct ProgramResult
{
    int status = -1;
    std::string output;
    std::string errors;
};

/// Runs lumaroo-defaults of this build to its end.
inline ProgramResult runDefaults(const QStringList &arguments, const QByteArray &input = {})
{
    QProcess process;
    process.start(qEnvironmentVariable("LUMAROO_BUILD") + QStringLiteral("/bin/lumaroo-defaults"), arguments);
    process.write(input);
    process.closeWriteChannel();
    EXPECT_TRUE(process.waitForFinished(60000)) << process.errorString().toStdString();
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    return {process.exitCode(), process.readAllStandardOutput().toStdString(),
        process.readAllStandardError().toStdString()};
}
