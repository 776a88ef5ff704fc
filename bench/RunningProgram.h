#pragma once

#include <QProcess>

/// A program that is ended with the object.
class RunningProgram
{
public:
    RunningProgram(const QString &path, const QStringList &arguments)
    {
        process_.start(path, arguments);
        process_.waitForStarted();
    }
    ~RunningProgram()
    {
        process_.kill();
        process_.waitForFinished();
    }
    RunningProgram(const RunningProgram &) = delete;
    RunningProgram &operator=(const RunningProgram &) = delete;

    /// Waits until it has written a line that begins so.
    bool waitForLine(const QByteArray &beginning)
    {
        while (process_.canReadLine() || process_.waitForReadyRead(10000)) {
            if (process_.readLine().startsWith(beginning))
                return true;
        }
        return false;
    }

private:
    QProcess process_;
};
