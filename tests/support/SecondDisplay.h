#pragma once

#include "Wait.h"

#include <QProcess>

/// An X server that can be ended, and can have several screens: the session's own carries the test's windows.
class SecondDisplay
{
public:
    explicit SecondDisplay(const QStringList &options = {})
    {
        server_.start(QStringLiteral("Xvfb"), QStringList{"-noreset", "-nolisten", "tcp", "-displayfd", "1"} + options);
        if (!waitUntil([this] { return server_.canReadLine(); }))
            qFatal("no second X server");
        name_ = ':' + server_.readLine().trimmed();
    }
    ~SecondDisplay() { end(); }
    SecondDisplay(const SecondDisplay &) = delete;
    SecondDisplay &operator=(const SecondDisplay &) = delete;

    QByteArray name() const { return name_; }
    void end()
    {
        server_.kill();
        server_.waitForFinished();
    }

private:
    QProcess server_;
    QByteArray name_;
};
