#pragma once

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <csignal>
#include <gtest/gtest.h>

/// A program that really crashes (programs/crash.cpp), with a home folder of its own for its logs.
class CrashProgram
{
public:
    enum class Form { OneFile, FileForEach };
    explicit CrashProgram(Form form = Form::OneFile) : form_(form) { }

    static QString built() { return qEnvironmentVariable("LUMAROO_BUILD") + QStringLiteral("/tests/programs/crash"); }

    /// Lets it crash in one of its ways; the signal that ended it, or its exit status as a negative number.
    int crash(const QString &way, const QStringList &plugIns = {}) { return crash(built(), way, plugIns); }
    int crash(const QString &program, const QString &way, const QStringList &plugIns)
    {
        const QString form = form_ == Form::OneFile ? QStringLiteral("one") : QStringLiteral("file");
        QProcess process;
        process.start(program, QStringList{home(), form, way} + plugIns);
        EXPECT_TRUE(process.waitForStarted()) << process.errorString().toStdString();
        processId = process.processId();
        EXPECT_TRUE(process.waitForFinished(60000)) << process.errorString().toStdString();
        // For a process that a signal ended it is the signal.
        return process.exitStatus() == QProcess::CrashExit ? process.exitCode() : -process.exitCode();
    }

    QString home() const { return home_.path(); }
    QString folder() const { return home() + QStringLiteral("/Library/Logs/Here/"); }
    QString oneFile() const { return folder() + QStringLiteral("crash.crash.log"); }
    QStringList files() const { return QDir(folder()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot); }

    static QByteArray contentOf(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    QString log() const { return QString::fromUtf8(contentOf(oneFile())); }
    QStringList lines() const { return log().split(u'\n'); }
    /// What a line says after "<label>:"; null without such a line.
    QString value(const QString &label) const
    {
        for (const QString &line : lines()) {
            if (line.startsWith(label + u':'))
                return line.mid(label.size() + 1).trimmed();
        }
        return {};
    }

    qint64 processId = 0;

private:
    Form form_;
    QTemporaryDir home_;
};
