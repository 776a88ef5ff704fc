#include "HostProgram.h"

#include "Wait.h"

#include <QDir>
#include <csignal>

HostProgram::HostProgram(const QStringList &arguments)
    : HostProgram(builtExecutable(), arguments, QProcessEnvironment::systemEnvironment(), QDir::currentPath())
{
}

HostProgram::HostProgram(const QString &executable, const QStringList &arguments,
    const QProcessEnvironment &environment, const QString &folder)
{
    process_.setProcessChannelMode(QProcess::ForwardedChannels);
    process_.setProcessEnvironment(environment);
    process_.setWorkingDirectory(folder);
    process_.start(executable, arguments);
    if (!process_.waitForStarted())
        qFatal("cannot start %s", qPrintable(executable));
}

HostProgram::~HostProgram()
{
    if (isRunning())
        process_.kill();
    process_.waitForFinished();
}

QString HostProgram::builtExecutable()
{
    return qEnvironmentVariable("LUMAROO_BUILD") + QStringLiteral("/Settings.app/Contents/Linux/lumaroo-settings");
}

void HostProgram::signal(int number) const
{
    ::kill(pid_t(process_.processId()), number);
}

int HostProgram::exitStatus()
{
    const bool ended = waitUntil([this] { return !isRunning(); });
    return ended && process_.exitStatus() == QProcess::NormalExit ? process_.exitCode() : -1;
}
