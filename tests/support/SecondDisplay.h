#pragma once

#include "Wait.h"

#include <QProcess>
#include <QRandomGenerator>

/// An X server that can be ended, and can have several screens: the session's own carries the test's windows.
class SecondDisplay
{
public:
    explicit SecondDisplay(const QStringList &options = {}) : options_(options) { begin(); }
    ~SecondDisplay() { end(); }
    SecondDisplay(const SecondDisplay &) = delete;
    SecondDisplay &operator=(const SecondDisplay &) = delete;

    QByteArray name() const { return name_.toLatin1(); }
    qint64 processId() const { return server_.processId(); }
    /// Anew under the same name, where it has ended.
    void begin()
    {
        server_.start(
            QStringLiteral("Xvfb"), QStringList{name_, "-noreset", "-nolisten", "tcp", "-displayfd", "1"} + options_);
        if (!waitUntil([this] { return server_.canReadLine(); }))
            qFatal("no second X server");
    }
    void end()
    {
        server_.kill();
        server_.waitForFinished();
    }

private:
    const QStringList options_;
    QProcess server_;
    // A number that no server takes by itself: when this one has ended, nobody answers there.
    const QString name_ = u':' + QString::number(QRandomGenerator::global()->bounded(1000, 50000));
};
