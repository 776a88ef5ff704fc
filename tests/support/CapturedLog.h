#pragma once

#include "platform/foundation/system/NSLog.h"

#include <QStringList>

/// Collects log lines for its lifetime instead of writing them.
class CapturedLog
{
public:
    CapturedLog() : previous_(setLogWriter([this](const QString &line) { lines_ += line; })) { }
    ~CapturedLog() { setLogWriter(previous_); }
    CapturedLog(const CapturedLog &) = delete;
    CapturedLog &operator=(const CapturedLog &) = delete;

    const QStringList &lines() const { return lines_; }
    QStringList linesContaining(const QString &text) const { return lines_.filter(text); }
    void clear() { lines_.clear(); }

private:
    QStringList lines_;
    LogWriter previous_;
};
