#include "AgentProgram.h"

#include "Wait.h"

#include <QJsonDocument>
#include <csignal>

AgentProgram::AgentProgram(
    const QStringList &arguments, const QString &executable, const QProcessEnvironment &environment)
{
    process_.setProcessEnvironment(environment);
    process_.start(executable, arguments);
    if (!process_.waitForStarted())
        qFatal("cannot start %s", qPrintable(executable));
}

AgentProgram::~AgentProgram()
{
    if (isRunning())
        process_.kill();
    process_.waitForFinished();
}

QString AgentProgram::builtBundle()
{
    return qEnvironmentVariable("LUMAROO_BUILD")
        + QStringLiteral("/Lumaroo.prefPane/Contents/Resources/LumarooAgent.app");
}

QString AgentProgram::builtExecutable()
{
    return builtBundle() + QStringLiteral("/Contents/Linux/LumarooAgent");
}

void AgentProgram::signal(int number) const
{
    ::kill(pid_t(process_.processId()), number);
}

int AgentProgram::exitStatus()
{
    const bool ended = waitUntil([this] { return !isRunning(); });
    return ended && process_.exitStatus() == QProcess::NormalExit ? process_.exitCode() : -1;
}

QStringList AgentProgram::lines()
{
    output_ += process_.readAllStandardOutput();
    return QString::fromUtf8(output_).split(u'\n', Qt::SkipEmptyParts);
}

QString AgentProgram::errors()
{
    errors_ += process_.readAllStandardError();
    return QString::fromUtf8(errors_);
}

bool AgentProgram::waitForLine(const QString &line, qsizetype times)
{
    return waitUntil([&] { return lines().count(line) >= times; });
}

bool AgentProgram::waitForLaunch()
{
    return waitUntil([this] { return !lines().filter(QStringLiteral("launched (version")).isEmpty(); });
}

ProgramResult runAgent(const QStringList &arguments, const QString &executable)
{
    return runProgram(executable, arguments);
}

QJsonObject runningAgent()
{
    const ProgramResult result = runAgent({QStringLiteral("--print-settings")});
    return QJsonDocument::fromJson(QByteArray::fromStdString(result.output)).object();
}

QJsonValue runningAgentsSetting(const QString &key)
{
    return runningAgent().value(QStringLiteral("settings")).toObject().value(key);
}
