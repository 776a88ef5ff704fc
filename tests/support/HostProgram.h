#pragma once

#include <QProcess>
#include <QStringList>

/// The real settings application of the build tree, or of a prefix, as its own process; killed with the object if it
/// still runs.
class HostProgram
{
public:
    explicit HostProgram(const QStringList &arguments = {});
    HostProgram(const QString &executable, const QStringList &arguments, const QProcessEnvironment &environment,
        const QString &folder);
    ~HostProgram();

    static QString builtExecutable();

    bool isRunning() const { return process_.state() != QProcess::NotRunning; }
    qint64 processId() const { return process_.processId(); }
    void signal(int number) const;
    /// Waits for its end; its exit status, or -1 when it does not end or was ended by a signal.
    int exitStatus();

private:
    QProcess process_;
};
