#pragma once

#include <QDateTime>
#include <QObject>
#include <QTimer>
#include <chrono>

inline constexpr std::chrono::seconds shortestCheckInterval{3600};

/// How long until the next check is due; zero: now.
///
/// `lastCheck` is the last one, whatever came of it; none means that the first one is due. An interval below an hour
/// counts as an hour. A last check in the future means that the clock has been set back since: then one is due.
std::chrono::milliseconds timeUntilCheck(
    const QDateTime &lastCheck, std::chrono::duration<double> interval, const QDateTime &now);

/// Says when the next check is due, by the clock on the wall: neither sleep of the machine nor a changed clock delays
/// one by more than an hour.
class UpdateSchedule : public QObject
{
    Q_OBJECT

public:
    UpdateSchedule();

    /// Starts afresh. Emits due(), never from within this call, when the time has come, and then once for each
    /// interval as the record of checks has it (UpdateRecord.h).
    void start(std::chrono::duration<double> interval);
    void stop() { timer_.stop(); }
    bool isRunning() const { return timer_.isActive(); }

Q_SIGNALS:
    void due();

private:
    void look();
    void waitForNext();

    QTimer timer_;
    std::chrono::duration<double> interval_{};
};
