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

/// Runs a program to its end.
inline ProgramResult runProgram(const QString &program, const QStringList &arguments, const QByteArray &input = {},
    const QProcessEnvironment &environment = QProcessEnvironment::systemEnvironment())
{
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(program, arguments);
    process.write(input);
    process.closeWriteChannel();
    EXPECT_TRUE(process.waitForFinished(60000)) << process.errorString().toStdString();
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    return {process.exitCode(), process.readAllStandardOutput().toStdString(),
        process.readAllStandardError().toStdString()};
}
