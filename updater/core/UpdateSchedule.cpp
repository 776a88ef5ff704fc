#include "updater/core/UpdateSchedule.h"

#include "updater/core/UpdateRecord.h"

using namespace std::chrono;

namespace {

/// A timer does not count while the machine sleeps, so that the clock is looked at again and again.
constexpr milliseconds longestWait = hours(1);
/// A check that is due and has noted nothing, since the settings cannot be written, is not due again at once.
constexpr milliseconds shortestWait = minutes(1);

constexpr milliseconds wholeInterval(duration<double> interval)
{
    // What no date can count is as good as a hundred years.
    constexpr duration<double> longest = hours(24) * 36525;
    const duration<double> bounded = interval > shortestCheckInterval ? interval : shortestCheckInterval;
    return duration_cast<milliseconds>(bounded < longest ? bounded : longest);
}

} // namespace

milliseconds timeUntilCheck(const QDateTime &lastCheck, duration<double> interval, const QDateTime &now)
{
    if (!lastCheck.isValid() || lastCheck > now)
        return milliseconds::zero();
    return std::max(milliseconds::zero(), wholeInterval(interval) - milliseconds(lastCheck.msecsTo(now)));
}

UpdateSchedule::UpdateSchedule()
{
    timer_.setSingleShot(true);
    timer_.setTimerType(Qt::CoarseTimer);
    timer_.callOnTimeout(this, &UpdateSchedule::look);
}

void UpdateSchedule::start(duration<double> interval)
{
    interval_ = interval;
    const milliseconds wait = timeUntilCheck(UpdateRecord().lastCheck(), interval_, currentTime());
    timer_.start(std::min(longestWait, wait));
}

void UpdateSchedule::look()
{
    const bool isDue = timeUntilCheck(UpdateRecord().lastCheck(), interval_, currentTime()) == milliseconds::zero();
    timer_.start(longestWait);
    if (isDue)
        Q_EMIT due();
    if (timer_.isActive())
        waitForNext();
}

void UpdateSchedule::waitForNext()
{
    const milliseconds wait = timeUntilCheck(UpdateRecord().lastCheck(), interval_, currentTime());
    timer_.start(std::clamp(wait, shortestWait, longestWait));
}
