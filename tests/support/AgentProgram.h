#pragma once

#include "ProgramResult.h"

#include <QJsonObject>
#include <QProcess>
#include <QStringList>

/// The real agent of the build tree, or of another bundle, as its own process; killed with the object if it still runs.
class AgentProgram
{
public:
    explicit AgentProgram(const QStringList &arguments = {QStringLiteral("--foreground")},
        const QString &executable = builtExecutable(),
        const QProcessEnvironment &environment = QProcessEnvironment::systemEnvironment());
    ~AgentProgram();

    static QString builtBundle(); ///< .../LumarooAgent.app
    static QString builtExecutable();

    bool isRunning() const { return process_.state() != QProcess::NotRunning; }
    qint64 processId() const { return process_.processId(); }
    void signal(int number) const;
    /// Waits for its end; its exit status, or -1 when it does not end or was ended by a signal.
    int exitStatus();

    /// What it has written so far.
    QStringList lines();
    QString errors();
    /// Waits until it has written a line at least so often; false when that does not come about.
    bool waitForLine(const QString &line, qsizetype times = 1);
    /// Waits until it has announced itself, with whatever version.
    bool waitForLaunch();

private:
    QProcess process_;
    QByteArray output_;
    QByteArray errors_;
};

/// All that an agent has to say on standard error where there is no display.
inline constexpr char noDisplayForHotKeys[] = "lumaroo: hot keys: none can be registered: there is no X server\n";

/// Runs the agent's program to its end, as with --print-settings.
ProgramResult runAgent(const QStringList &arguments, const QString &executable = AgentProgram::builtExecutable());

/// What --print-settings says of the agent that runs; empty where none does.
QJsonObject runningAgent();
/// One setting as the running agent has read it.
QJsonValue runningAgentsSetting(const QString &key);
