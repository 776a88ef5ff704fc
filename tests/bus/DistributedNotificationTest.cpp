#include "BusRecorder.h"
#include "CapturedLog.h"
#include "Wait.h"
#include "platform/foundation/NSException.h"
#include "platform/foundation/notifications/CFNotificationCenter.h"

#include <gtest/gtest.h>

namespace {

const QString pane = "com.quorvane.Lumaroo";
const QString agent = "com.quorvane.LumarooAgent";

class DistributedNotifications : public testing::Test
{
protected:
    ~DistributedNotifications() override { center->removeObserver(&observer); }

    /// Observes with a handler that records `text` at each call.
    void observe(const QString &text, const QString &name, const QString &object = {})
    {
        center->addObserverSelectorNameObject(&observer, recording(text), name, object);
    }

    NotificationHandler recording(const QString &text)
    {
        return [this, text](const NSNotification &) { calls += text; };
    }

    /// What was called once everything posted so far has been delivered: a notification of our own comes last.
    QStringList callsAfterAll()
    {
        QObject lastObserver;
        bool reached = false;
        const auto reach = [&reached](const NSNotification &) { reached = true; };
        center->addObserverSelectorNameObject(&lastObserver, reach, "The last one");
        others.post("The last one", {});
        EXPECT_TRUE(waitUntil([&reached] { return reached; }));
        return calls;
    }

    NSDistributedNotificationCenter *const center = NSDistributedNotificationCenter::defaultCenter();
    BusRecorder others;
    QObject observer;
    QStringList calls;
};

} // namespace

TEST_F(DistributedNotifications, ofAnotherProgramArriveWithObjectAndUserInformation)
{
    NSNotification received;
    center->addObserverSelectorNameObject(
        &observer, [&received](const NSNotification &notification) { received = notification; }, "Name");
    others.post("Name", "an object", {{"KTXLMAgentVersion", "121"}});
    EXPECT_TRUE(waitUntil([&received] { return !received.name.isEmpty(); }));
    EXPECT_EQ(received.object, QVariant("an object"));
    EXPECT_EQ(received.userInfo, QVariantMap({{"KTXLMAgentVersion", "121"}}));
}

TEST_F(DistributedNotifications, withoutAnObjectHaveNone)
{
    NSNotification received{{}, "not yet", {{"not", "yet"}}};
    center->addObserverSelectorNameObject(
        &observer, [&received](const NSNotification &notification) { received = notification; }, "Name");
    others.post("Name", {});
    EXPECT_TRUE(waitUntil([&received] { return !received.name.isEmpty(); }));
    EXPECT_FALSE(received.object.isValid());
    EXPECT_TRUE(received.userInfo.isEmpty());
}

TEST_F(DistributedNotifications, arePutOnTheBusAsTheyArePosted)
{
    CFNotificationCenterPostNotification(CFNotificationCenterGetDistributedCenter(), "Name", pane, {}, true);
    CFNotificationCenterPostNotification(
        CFNotificationCenterGetDistributedCenter(), "Other", {}, {{"key", true}}, false);
    const QList<BusNotification> expected{{"Name", pane, {}, true}, {"Other", "", {{"key", true}}, false}};
    EXPECT_EQ(others.notifications(), expected);
}

TEST_F(DistributedNotifications, arriveThroughTheRunLoopAndNotWithinThePosting)
{
    observe("called", "Name");
    center->postNotificationNameObjectUserInfoDeliverImmediately("Name", {}, {}, true);
    EXPECT_TRUE(calls.isEmpty());
    EXPECT_EQ(callsAfterAll(), QStringList("called"));
}

TEST_F(DistributedNotifications, arriveOnTheMainThread)
{
    QThread *thread = nullptr;
    center->addObserverSelectorNameObject(
        &observer, [&thread](const NSNotification &) { thread = QThread::currentThread(); }, "Name");
    others.post("Name", {});
    EXPECT_TRUE(waitUntil([&thread] { return thread; }));
    EXPECT_EQ(thread, QCoreApplication::instance()->thread());
}

TEST_F(DistributedNotifications, ofOtherNamesAreNotHeard)
{
    observe("called", "Lumaroo Preferences Changed");
    others.post("Lumaroo Preferences", {});
    others.post("Lumaroo Preferences Changed too", {});
    others.post("lumaroo preferences changed", {});
    EXPECT_TRUE(callsAfterAll().isEmpty());
}

TEST_F(DistributedNotifications, thatThePanePostsWithItsOwnObjectDoNotComeBackToIt)
{
    observe("re-read", "Lumaroo Preferences Changed", agent);
    center->postNotificationNameObjectUserInfoDeliverImmediately("Lumaroo Preferences Changed", pane, {}, true);
    EXPECT_TRUE(callsAfterAll().isEmpty());
    others.post("Lumaroo Preferences Changed", agent);
    EXPECT_EQ(callsAfterAll(), QStringList("re-read"));
}

TEST_F(DistributedNotifications, withAnApostropheInTheNameArrive)
{
    observe("called", "Lumaroo Agent shouldn't auto-launch");
    others.post("Lumaroo Agent should auto-launch", {});
    others.post("Lumaroo Agent shouldn't auto-launch", {});
    EXPECT_EQ(callsAfterAll(), QStringList("called"));
}

TEST_F(DistributedNotifications, withAnApostropheInTheObjectArrive)
{
    observe("called", "Name", "someone's");
    others.post("Name", "someone");
    others.post("Name", "someone else's");
    others.post("Name", "someone's");
    EXPECT_EQ(callsAfterAll(), QStringList("called"));
}

TEST_F(DistributedNotifications, withAVeryLongNameArrive)
{
    const QString longName(5000, u'x');
    observe("called", longName);
    others.post(longName.chopped(1), {});
    others.post(longName, {});
    EXPECT_EQ(callsAfterAll(), QStringList("called"));
}

TEST_F(DistributedNotifications, withSignsThatMatchRulesKnowArrive)
{
    observe("quoted", "type='signal',\\%1%2=\"");
    observe("plain", "arg0=x,\\%1%2=\"");
    others.post("type='signal',\\%1%2=\"", {});
    others.post("arg0=x,\\%1%2=\"", {});
    EXPECT_EQ(callsAfterAll(), QStringList({"quoted", "plain"}));
}

TEST_F(DistributedNotifications, withLettersOutsideAsciiArrive)
{
    observe("umlaut", "Ger\u00e4t ge\u00e4ndert", "M\u00fcnchen");
    observe("glyph", "\u2318 pressed");
    others.post("Ger\u00e4t ge\u00e4ndert", "M\u00fcnchen");
    others.post("? pressed", {});
    others.post("\u2318 pressed", {});
    EXPECT_EQ(callsAfterAll(), QStringList({"umlaut", "glyph"}));
}

TEST_F(DistributedNotifications, whoseTextsAreNoUnicodeHarmNobody)
{
    const QString halfOfAPair(QChar(0xd800));
    observe("called", halfOfAPair);
    center->postNotificationNameObjectUserInfoDeliverImmediately(
        halfOfAPair, halfOfAPair, {{halfOfAPair, halfOfAPair}}, true);
    observe("still there", "Name");
    others.post("Name", {});
    EXPECT_EQ(callsAfterAll().last(), "still there");
}

TEST_F(DistributedNotifications, reachEachRegistrationOnceThoughSeveralFiltersPassThem)
{
    observe("any object", "Agent's");
    observe("one object", "Agent's", "object");
    observe("one object again", "Agent's", "object");
    observe("other name", "Pane's");
    observe("plain", "Plain");
    observe("plain with object", "Plain", "object");
    others.post("Agent's", "object");
    others.post("Plain", "object");
    calls = callsAfterAll();
    calls.sort();
    EXPECT_EQ(calls, QStringList({"any object", "one object", "one object again", "plain", "plain with object"}));
}

TEST_F(DistributedNotifications, arriveInTheOrderOfTheBus)
{
    QStringList expected;
    observe("a", "Name", "a");
    observe("b", "Name", "b");
    observe("c", "It's c");
    for (int round = 0; round < 100; ++round) {
        others.post("Name", "b");
        others.post("It's c", "b");
        others.post("Name", "a");
        expected << "b"
                 << "c"
                 << "a";
    }
    EXPECT_EQ(callsAfterAll(), expected);
}

TEST_F(DistributedNotifications, ofOneProgramKeepTheirOrderOnTheBus)
{
    QStringList expected;
    for (int number = 0; number < 200; ++number) {
        center->postNotificationNameObjectUserInfoDeliverImmediately(QString::number(number), pane, {}, true);
        expected += QString::number(number);
    }
    EXPECT_EQ(others.names(), expected);
}

TEST_F(DistributedNotifications, aRemovedObserverHearsNothing)
{
    QObject other;
    observe("removed", "Name");
    observe("removed", "Name", "object");
    center->addObserverSelectorNameObject(&other, recording("kept"), "Name");
    center->removeObserver(&observer);
    others.post("Name", "object");
    EXPECT_EQ(callsAfterAll(), QStringList("kept"));
}

TEST_F(DistributedNotifications, anObserverRemovedForOneObjectKeepsTheOthers)
{
    observe("a", "Name", "a");
    observe("b", "Name", "b");
    observe("other name", "Other", "a");
    center->removeObserverNameObject(&observer, "Name", "a");
    others.post("Name", "a");
    others.post("Name", "b");
    others.post("Other", "a");
    EXPECT_EQ(callsAfterAll(), QStringList({"b", "other name"}));
}

TEST_F(DistributedNotifications, anObserverRemovedWhileOneIsOnItsWayDoesNotHearIt)
{
    observe("called", "Name");
    center->postNotificationNameObjectUserInfoDeliverImmediately("Name", {}, {}, true);
    center->removeObserver(&observer);
    EXPECT_TRUE(callsAfterAll().isEmpty());
}

TEST_F(DistributedNotifications, aDestroyedObserverIsForgotten)
{
    auto shortLived = std::make_unique<QObject>();
    center->addObserverSelectorNameObject(shortLived.get(), recording("called"), "Name");
    others.post("Name", {});
    shortLived.reset();
    EXPECT_TRUE(callsAfterAll().isEmpty());
}

TEST_F(DistributedNotifications, aHandlerMayRemoveItsOwnObserverAndComeBack)
{
    center->addObserverSelectorNameObject(
        &observer,
        [this](const NSNotification &) {
            center->removeObserver(&observer);
            calls += "first";
            observe("second", "Name");
        },
        "Name");
    others.post("Name", {});
    EXPECT_EQ(callsAfterAll(), QStringList("first"));
    others.post("Name", {});
    EXPECT_EQ(callsAfterAll(), QStringList({"first", "second"}));
}

TEST_F(DistributedNotifications, anObserverRemovedByAnEarlierHandlerIsNotCalled)
{
    QObject later;
    center->addObserverSelectorNameObject(
        &observer, [&](const NSNotification &) { center->removeObserver(&later); }, "Name");
    center->addObserverSelectorNameObject(&later, recording("called"), "Name");
    others.post("Name", {});
    EXPECT_TRUE(callsAfterAll().isEmpty());
}

TEST_F(DistributedNotifications, whatAHandlerThrowsIsLoggedAndTheOthersAreStillCalled)
{
    CapturedLog log;
    center->addObserverSelectorNameObject(
        &observer, [](const NSNotification &) { throw NSException("Broken", "on purpose"); }, "Name");
    observe("called", "Name");
    others.post("Name", {});
    others.post("Name", {});
    EXPECT_EQ(callsAfterAll(), QStringList({"called", "called"}));
    EXPECT_EQ(log.lines().count("lumaroo: notification \"Name\": Broken: on purpose"), 2);
}
