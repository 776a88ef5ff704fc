#include "PrivateSettings.h"
#include "Wait.h"
#include "updater/core/UpdateRecord.h"
#include "updater/core/UpdateSchedule.h"

// When checks are due, and what is remembered of them.

using namespace std::chrono;

namespace {

const QDateTime noon(QDate(2026, 11, 21), QTime(12, 0), Qt::UTC);
constexpr seconds oneDay = hours(24);

milliseconds untilCheck(const QDateTime &last, duration<double> interval = oneDay)
{
    return timeUntilCheck(last, interval, noon);
}

/// With a clock of its own.
class Schedule : public PrivateSettings
{
protected:
    void SetUp() override
    {
        systemCalls().realTime = [this] { return nanoseconds(milliseconds(now.toMSecsSinceEpoch())); };
    }
    /// Whether a schedule that starts now says at once that a check is due.
    bool isDueAtStart()
    {
        UpdateSchedule schedule;
        bool isDue = false;
        QObject::connect(&schedule, &UpdateSchedule::due, [&] { isDue = true; });
        schedule.start(oneDay);
        EXPECT_FALSE(isDue) << "never from within the call";
        runPendingEvents();
        return isDue;
    }

    void failDaily(int firstDay, int lastDay)
    {
        for (int day = firstDay; day <= lastDay; ++day) {
            now = noon.addDays(day);
            record.noteFailure();
        }
    }

    QDateTime now = noon;
    UpdateRecord record;
};

} // namespace

TEST_F(Schedule, theFirstCheckIsDueAtOnce)
{
    EXPECT_EQ(untilCheck({}), 0ms);
    EXPECT_TRUE(isDueAtStart());
}

TEST_F(Schedule, theNextCheckIsDueAnIntervalAfterTheLast)
{
    EXPECT_EQ(untilCheck(noon.addSecs(-3600)), hours(23));
    EXPECT_EQ(untilCheck(noon.addDays(-1)), 0ms);
    EXPECT_EQ(untilCheck(noon.addYears(-5)), 0ms);
    EXPECT_EQ(untilCheck(noon), oneDay);
}

TEST_F(Schedule, anIntervalBelowAnHourCountsAsAnHour)
{
    for (const double interval : {3599.0, 1.0, 0.0, -5.0, std::nan("")})
        EXPECT_EQ(untilCheck(noon, duration<double>(interval)), hours(1)) << interval;
    EXPECT_EQ(untilCheck(noon, duration<double>(3600.5)), 3600500ms);
    EXPECT_GT(untilCheck(noon, duration<double>(1e300)), hours(24) * 36000);
}

TEST_F(Schedule, aCheckIsDueWhenTheClockHasBeenSetBack)
{
    EXPECT_EQ(untilCheck(noon.addSecs(1)), 0ms);
    record.noteSuccess();
    EXPECT_FALSE(isDueAtStart());
    now = noon.addYears(-1);
    EXPECT_TRUE(isDueAtStart());
}

TEST_F(Schedule, theLastCheckIsRememberedOverARestart)
{
    record.noteFailure();
    const QVariantMap stored = NSUserDefaults::standardUserDefaults()->persistentDomainForName(updaterDomain);
    EXPECT_EQ(stored.value("LastCheck").toDateTime(), noon);
    EXPECT_FALSE(isDueAtStart());
    now = noon.addDays(1);
    EXPECT_TRUE(isDueAtStart());
}

TEST_F(Schedule, aCheckThatIsNotedIsNotDueAgain)
{
    UpdateSchedule schedule;
    int times = 0;
    QObject::connect(&schedule, &UpdateSchedule::due, [&] {
        ++times;
        record.noteSuccess();
    });
    schedule.start(oneDay);
    ASSERT_TRUE(waitUntil([&] { return times > 0; }));
    runPendingEvents();
    runPendingEvents();
    EXPECT_EQ(times, 1);
    EXPECT_TRUE(schedule.isRunning());
}

TEST_F(Schedule, aStoppedOneSaysNothing)
{
    UpdateSchedule schedule;
    QObject::connect(&schedule, &UpdateSchedule::due, [] { ADD_FAILURE(); });
    schedule.start(oneDay);
    schedule.stop();
    runPendingEvents();
    UpdateSchedule stoppedWhenDue;
    QObject::connect(&stoppedWhenDue, &UpdateSchedule::due, &stoppedWhenDue, &UpdateSchedule::stop);
    stoppedWhenDue.start(oneDay);
    ASSERT_TRUE(waitUntil([&] { return !stoppedWhenDue.isRunning(); }));
}

TEST_F(Schedule, tellsTheLastCheckAndTheLastThatSucceeded)
{
    EXPECT_FALSE(record.lastCheck().isValid());
    record.noteSuccess();
    now = noon.addDays(1);
    record.noteFailure();
    EXPECT_EQ(record.lastCheck(), now);
    EXPECT_EQ(record.lastSuccess(), noon);
}

TEST_F(Schedule, aFeedIsLostWhenEveryCheckOfThirtyDaysFails)
{
    EXPECT_FALSE(record.isFeedLost());
    failDaily(0, 29);
    EXPECT_FALSE(record.isFeedLost());
    failDaily(30, 30);
    EXPECT_TRUE(record.isFeedLost());
    record.noteSuccess();
    EXPECT_FALSE(record.isFeedLost());
}

TEST_F(Schedule, timeWithoutChecksIsNoFailureOfTheFeed)
{
    record.noteFailure();
    now = noon.addDays(40);
    EXPECT_FALSE(record.isFeedLost()) << "nobody has looked";
    record.noteFailure();
    EXPECT_FALSE(record.isFeedLost()) << "one check after a long pause";
    failDaily(41, 69);
    EXPECT_FALSE(record.isFeedLost());
    failDaily(70, 70);
    EXPECT_TRUE(record.isFeedLost());
}

TEST_F(Schedule, aWeekBetweenTwoChecksIsNoPause)
{
    for (int day = 0; day <= 35; day += 7) {
        EXPECT_FALSE(record.isFeedLost());
        failDaily(day, day);
    }
    EXPECT_TRUE(record.isFeedLost());
}

TEST_F(Schedule, failuresCountFromNowWhenTheClockHasBeenSetBack)
{
    record.noteFailure();
    for (int day = 0; day <= 30; ++day) {
        EXPECT_FALSE(record.isFeedLost());
        now = noon.addYears(-1).addDays(day);
        record.noteFailure();
    }
    EXPECT_TRUE(record.isFeedLost());
}

TEST_F(Schedule, theHighestVersionSeenNeverGoesDown)
{
    record.noteHighestVersion("102");
    record.noteHighestVersion("101");
    record.noteHighestVersion({});
    EXPECT_EQ(record.highestVersionSeen(), "102");
}

TEST_F(Schedule, valuesOfAnotherTypeCountAsAbsent)
{
    for (const char *key : {"LastCheck", "LastSuccessfulCheck", "FailingSince"})
        CFPreferencesSetAppValue(key, "yesterday", updaterDomain);
    CFPreferencesSetAppValue("HighestVersionSeen", 7, updaterDomain);
    EXPECT_FALSE(record.lastCheck().isValid());
    EXPECT_FALSE(record.isFeedLost());
    EXPECT_EQ(record.highestVersionSeen(), QString());
    CFPreferencesAppSynchronize(updaterDomain);
}
