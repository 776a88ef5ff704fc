// Checks that nobody has asked for.

#include "ForeignWindow.h"
#include "KeyPress.h"
#include "SystemCallFaults.h"
#include "UpdaterOnScreen.h"
#include "Wait.h"

#include "platform/foundation/preferences/CFPreferences.h"

#include <QScopedValueRollback>

namespace {

constexpr double oneDay = 24 * 60 * 60;

class UpdateBySchedule : public UpdaterOnScreen
{
protected:
    ~UpdateBySchedule() override { systemCalls().realTime = realTime_; }

    /// A check of the test's own comes and goes: whatever had begun by itself would have reached the server before it.
    void expectNoCheck()
    {
        runPendingEvents();
        runPendingEvents();
        check(server.url("/appcast.xml?own"));
        EXPECT_EQ(server.requests(), QStringList("GET /appcast.xml?own"));
        EXPECT_EQ(window(), nullptr);
    }
    bool waitForCheck()
    {
        return waitUntil([this] { return record.lastCheck().isValid(); });
    }
    /// As if a check had been so long ago.
    void lastCheckWas(std::chrono::seconds ago)
    {
        systemCalls().realTime = [this, ago] { return realTime_() - ago; };
        record.noteSuccess();
        systemCalls().realTime = realTime_;
    }

private:
    std::function<std::chrono::nanoseconds()> realTime_ = systemCalls().realTime;
};

using std::chrono::minutes;

} // namespace

TEST_F(UpdateBySchedule, anUpdateIsOfferedAndTheFocusStaysWhereItIs)
{
    tell({publish(101)});
    const ForeignWindow other("Other");
    ASSERT_TRUE(other.takesFocus());
    bool hadFocus = false;
    const QObject watching;
    QObject::connect(qApp, &QGuiApplication::focusWindowChanged, &watching,
        [&](const QWindow *focused) { hadFocus = hadFocus || focused; });
    checkBySchedule();
    ASSERT_TRUE(shows("offer"));
    ASSERT_TRUE(QTest::qWaitForWindowExposed(window()));
    EXPECT_EQ(windowWithKeyboard(), other.id());
    // What the window manager does for this one comes after what it did for the offer.
    const ForeignWindow later("Later");
    ASSERT_TRUE(later.takesFocus());
    runPendingEvents();
    EXPECT_FALSE(hadFocus);
}

TEST_F(UpdateBySchedule, anOfferComesToTheFrontWhenTheUserAsks)
{
    tell({publish(101)});
    const ForeignWindow other("Other");
    ASSERT_TRUE(other.takesFocus());
    checkBySchedule();
    ASSERT_TRUE(shows("offer"));
    checkForUser();
    EXPECT_TRUE(waitUntil([] { return hasKeyboard(window()); }));
    EXPECT_EQ(server.requests(), QStringList("GET /appcast.xml"));
}

TEST_F(UpdateBySchedule, nothingIsCheckedUnlessItIsTurnedOn)
{
    tell({publish(100)});
    updater()->setUpdateCheckInterval(oneDay);
    updater()->resetUpdateCycle();
    expectNoCheck();
}

TEST_F(UpdateBySchedule, nothingIsCheckedOnceItIsTurnedOff)
{
    tell({publish(100)});
    checkBySchedule();
    updater()->setAutomaticallyChecksForUpdates(false);
    expectNoCheck();
}

TEST_F(UpdateBySchedule, aCheckUnderWayEndsWhenItIsTurnedOff)
{
    updater()->setFeedURL(server.url("/hanging").toString());
    checkBySchedule();
    ASSERT_TRUE(wasAsked("GET /hanging"));
    updater()->setAutomaticallyChecksForUpdates(false);
    updater()->setFeedURL(feed().toString());
    updater()->setAutomaticallyChecksForUpdates(true);
    tell({publish(101)});
    EXPECT_TRUE(shows("offer")) << "the next is not held up by the one before";
}

TEST_F(UpdateBySchedule, theUsersCheckTakesThePlaceOfOneThatIsUnderWay)
{
    updater()->setFeedURL(server.url("/hanging").toString());
    checkBySchedule();
    ASSERT_TRUE(wasAsked("GET /hanging"));
    EXPECT_EQ(window(), nullptr);
    tell({publish(100)});
    updater()->setFeedURL(feed().toString());
    checkForUser();
    EXPECT_EQ(page(), "checking");
    EXPECT_TRUE(shows("upToDate"));
}

TEST_F(UpdateBySchedule, noCheckIsDueBeforeTheIntervalIsOver)
{
    tell({publish(100)});
    lastCheckWas(minutes(23 * 60));
    checkBySchedule();
    expectNoCheck();
}

TEST_F(UpdateBySchedule, aCheckIsDueOnceTheIntervalIsOver)
{
    tell({publish(101)});
    lastCheckWas(minutes(25 * 60));
    checkBySchedule();
    EXPECT_TRUE(shows("offer"));
}

TEST_F(UpdateBySchedule, anIntervalBelowAnHourCountsAsAnHour)
{
    tell({publish(101)});
    lastCheckWas(minutes(59));
    checkBySchedule(1);
    expectNoCheck();
    lastCheckWas(minutes(61));
    checkBySchedule(1);
    EXPECT_TRUE(shows("offer"));
}

TEST_F(UpdateBySchedule, anotherIntervalCountsFromTheReset)
{
    tell({publish(101)});
    lastCheckWas(minutes(120));
    checkBySchedule();
    updater()->setUpdateCheckInterval(3600);
    expectNoCheck();
    lastCheckWas(minutes(120));
    updater()->resetUpdateCycle();
    EXPECT_TRUE(shows("offer"));
}

TEST_F(UpdateBySchedule, whatFindsNothingOrFailsShowsNothing)
{
    tell({publish(100)});
    checkBySchedule();
    ASSERT_TRUE(waitForCheck());
    EXPECT_TRUE(record.lastSuccess().isValid());
    EXPECT_EQ(window(), nullptr);
    lastCheckWas(minutes(25 * 60));
    updater()->setFeedURL(server.url("/404").toString());
    updater()->resetUpdateCycle();
    EXPECT_TRUE(waitUntil([this] { return record.lastCheck() > record.lastSuccess(); }));
    EXPECT_EQ(window(), nullptr);
}

TEST_F(UpdateBySchedule, aSkippedVersionIsNotOfferedButALaterOneIs)
{
    tell({publish(101)});
    record.skip("101");
    checkBySchedule();
    ASSERT_TRUE(waitForCheck());
    EXPECT_EQ(window(), nullptr);
    tell({publish(101), publish(102)});
    lastCheckWas(minutes(25 * 60));
    updater()->resetUpdateCycle();
    ASSERT_TRUE(shows("offer"));
    EXPECT_EQ(text("heading"), "There is a new version: Lumaroo 102");
}

TEST_F(UpdateBySchedule, theLastCheckIsOnDisk)
{
    tell({publish(100)});
    checkBySchedule();
    ASSERT_TRUE(waitForCheck());
    const QByteArray stored = contentOf(path("config/lumaroo/com.quorvane.Lumaroo.Updater.plist"));
    EXPECT_TRUE(stored.contains("LastCheck")) << stored.constData();
}

TEST_F(UpdateBySchedule, aVersionThatWaitsAlreadyIsNotOfferedAgain)
{
    prepare(101);
    AppcastItem item = publish(101);
    tell({item});
    checkBySchedule();
    ASSERT_TRUE(waitForCheck());
    EXPECT_EQ(window(), nullptr);
    updater()->setAutomaticallyChecksForUpdates(false);
    checkForUser();
    EXPECT_TRUE(shows("ready"));
}

TEST_F(UpdateBySchedule, nothingIsAskedForABundleThatOthersUpdate)
{
    tell({publish(101)});
    const auto owner = QFile::ReadOwner | QFile::ExeOwner;
    ASSERT_TRUE(QFile::setPermissions(folder(), owner));
    checkBySchedule();
    expectNoCheck();
    ASSERT_TRUE(QFile::setPermissions(folder(), owner | QFile::WriteOwner));
}
