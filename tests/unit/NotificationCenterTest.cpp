#include "CapturedLog.h"
#include "platform/foundation/NSException.h"
#include "platform/foundation/notifications/NSNotificationCenter.h"

#include <gtest/gtest.h>

namespace {

class LocalNotifications : public testing::Test
{
protected:
    /// A handler that records `text` at each call.
    NotificationHandler recording(const QString &text)
    {
        return [this, text](const NSNotification &) { calls += text; };
    }

    NSNotificationCenter center;
    QObject observer;
    QStringList calls;
};

} // namespace

TEST_F(LocalNotifications, reachTheirObserversAtOnceInTheOrderOfRegistration)
{
    center.addObserverSelectorNameObject(&observer, recording("first"), "Name");
    center.addObserverSelectorNameObject(&observer, recording("second"), "Name");
    center.postNotificationNameObject("Name");
    EXPECT_EQ(calls, QStringList({"first", "second"}));
}

TEST_F(LocalNotifications, carryNameObjectAndUserInformation)
{
    NSNotification received;
    center.addObserverSelectorNameObject(
        &observer, [&received](const NSNotification &notification) { received = notification; }, "Name");
    center.postNotificationNameObject("Name", "an object", {{"key", 7}});
    EXPECT_EQ(received.name, "Name");
    EXPECT_EQ(received.object, QVariant("an object"));
    EXPECT_EQ(received.userInfo, QVariantMap({{"key", 7}}));
}

TEST_F(LocalNotifications, ofAnotherNameAreNotHeard)
{
    center.addObserverSelectorNameObject(&observer, recording("called"), "Name");
    center.postNotificationNameObject("name");
    EXPECT_TRUE(calls.isEmpty());
}

TEST_F(LocalNotifications, ofOneObjectReachOnlyThoseWhoAskedForItAndThoseWhoAskedForAny)
{
    center.addObserverSelectorNameObject(&observer, recording("one"), "Name", "one");
    center.addObserverSelectorNameObject(&observer, recording("other"), "Name", "other");
    center.addObserverSelectorNameObject(&observer, recording("any"), "Name");
    center.postNotificationNameObject("Name", "one");
    EXPECT_EQ(calls, QStringList({"one", "any"}));
}

TEST_F(LocalNotifications, aSenderIsTheSameWhateverItsPointersType)
{
    QTimer sender;
    QTimer other;
    center.addObserverSelectorNameObject(
        &observer, recording("called"), "Name", QVariant::fromValue<QObject *>(&sender));
    center.postNotificationNameObject("Name", QVariant::fromValue(&other));
    EXPECT_TRUE(calls.isEmpty());
    center.postNotificationNameObject("Name", QVariant::fromValue(&sender));
    EXPECT_EQ(calls, QStringList("called"));
}

TEST_F(LocalNotifications, aTextIsNoNumber)
{
    center.addObserverSelectorNameObject(&observer, recording("called"), "Name", "1");
    center.postNotificationNameObject("Name", 1);
    EXPECT_TRUE(calls.isEmpty());
}

TEST_F(LocalNotifications, aSecondRegistrationCountsOnItsOwn)
{
    center.addObserverSelectorNameObject(&observer, recording("called"), "Name");
    center.addObserverSelectorNameObject(&observer, recording("called"), "Name");
    center.postNotificationNameObject("Name");
    EXPECT_EQ(calls.size(), 2);
}

TEST_F(LocalNotifications, aRemovedObserverHearsNothing)
{
    QObject other;
    center.addObserverSelectorNameObject(&observer, recording("removed"), "Name");
    center.addObserverSelectorNameObject(&observer, recording("removed"), "Other name", "object");
    center.addObserverSelectorNameObject(&other, recording("kept"), "Name");
    center.removeObserver(&observer);
    center.postNotificationNameObject("Name");
    center.postNotificationNameObject("Other name", "object");
    EXPECT_EQ(calls, QStringList("kept"));
}

TEST_F(LocalNotifications, removingOneNameKeepsTheOthers)
{
    center.addObserverSelectorNameObject(&observer, recording("one"), "One", "object");
    center.addObserverSelectorNameObject(&observer, recording("two"), "Two");
    center.removeObserverNameObject(&observer, "One");
    center.postNotificationNameObject("One", "object");
    center.postNotificationNameObject("Two");
    EXPECT_EQ(calls, QStringList("two"));
}

TEST_F(LocalNotifications, removingOneObjectKeepsTheRegistrationsForOthers)
{
    center.addObserverSelectorNameObject(&observer, recording("a"), "Name", "a");
    center.addObserverSelectorNameObject(&observer, recording("b"), "Name", "b");
    center.addObserverSelectorNameObject(&observer, recording("any"), "Name");
    center.removeObserverNameObject(&observer, "Name", "a");
    center.postNotificationNameObject("Name", "a");
    center.postNotificationNameObject("Name", "b");
    EXPECT_EQ(calls, QStringList({"any", "b", "any"}));
}

TEST_F(LocalNotifications, aDestroyedObserverIsForgotten)
{
    auto shortLived = std::make_unique<QObject>();
    center.addObserverSelectorNameObject(shortLived.get(), recording("called"), "Name");
    shortLived.reset();
    center.postNotificationNameObject("Name");
    EXPECT_TRUE(calls.isEmpty());
}

TEST_F(LocalNotifications, anObserverDestroyedWithItsSignalsBlockedIsForgottenToo)
{
    auto shortLived = std::make_unique<QObject>();
    center.addObserverSelectorNameObject(shortLived.get(), recording("called"), "Name");
    shortLived->blockSignals(true);
    shortLived.reset();
    center.postNotificationNameObject("Name");
    EXPECT_TRUE(calls.isEmpty());
}

TEST_F(LocalNotifications, anObserverRemovedByAnEarlierHandlerIsNotCalled)
{
    QObject later;
    center.addObserverSelectorNameObject(
        &observer, [&](const NSNotification &) { center.removeObserver(&later); }, "Name");
    center.addObserverSelectorNameObject(&later, recording("called"), "Name");
    center.postNotificationNameObject("Name");
    EXPECT_TRUE(calls.isEmpty());
}

TEST_F(LocalNotifications, anObserverDestroyedByAnEarlierHandlerIsNotCalled)
{
    auto later = std::make_unique<QObject>();
    center.addObserverSelectorNameObject(
        &observer, [&later](const NSNotification &) { later.reset(); }, "Name");
    center.addObserverSelectorNameObject(later.get(), recording("called"), "Name");
    center.postNotificationNameObject("Name");
    EXPECT_TRUE(calls.isEmpty());
}

TEST_F(LocalNotifications, aHandlerMayRemoveItsOwnObserver)
{
    center.addObserverSelectorNameObject(
        &observer,
        [this, text = QString("once")](const NSNotification &) {
            center.removeObserver(&observer);
            calls += text; // what the handler holds must outlive the removal
        },
        "Name");
    center.postNotificationNameObject("Name");
    center.postNotificationNameObject("Name");
    EXPECT_EQ(calls, QStringList("once"));
}

TEST_F(LocalNotifications, aHandlerMayDestroyItsOwnObserver)
{
    auto *shortLived = new QObject;
    center.addObserverSelectorNameObject(
        shortLived,
        [this, shortLived](const NSNotification &) {
            delete shortLived;
            calls += "once";
        },
        "Name");
    center.postNotificationNameObject("Name");
    center.postNotificationNameObject("Name");
    EXPECT_EQ(calls, QStringList("once"));
}

TEST_F(LocalNotifications, anObserverAddedWhileDeliveringHearsTheNextOne)
{
    center.addObserverSelectorNameObject(
        &observer,
        [this](const NSNotification &) { center.addObserverSelectorNameObject(&observer, recording("added"), "Name"); },
        "Name");
    center.postNotificationNameObject("Name");
    EXPECT_TRUE(calls.isEmpty());
    center.postNotificationNameObject("Name");
    EXPECT_EQ(calls, QStringList("added"));
}

TEST_F(LocalNotifications, aHandlerMayPostInItsTurn)
{
    center.addObserverSelectorNameObject(
        &observer,
        [this](const NSNotification &) {
            center.postNotificationNameObject("Inner");
            calls += "outer";
        },
        "Outer");
    center.addObserverSelectorNameObject(&observer, recording("inner"), "Inner");
    center.postNotificationNameObject("Outer");
    EXPECT_EQ(calls, QStringList({"inner", "outer"}));
}

TEST_F(LocalNotifications, whatAHandlerThrowsIsLoggedAndTheOthersAreStillCalled)
{
    CapturedLog log;
    center.addObserverSelectorNameObject(
        &observer, [](const NSNotification &) { throw NSException("Broken", "on purpose"); }, "Name");
    center.addObserverSelectorNameObject(&observer, recording("called"), "Name");
    center.postNotificationNameObject("Name");
    EXPECT_EQ(calls, QStringList("called"));
    EXPECT_EQ(log.lines(), QStringList("lumaroo: notification \"Name\": Broken: on purpose"));
}

TEST(LocalNotificationCenter, isOneForTheProcess)
{
    EXPECT_EQ(NSNotificationCenter::defaultCenter(), NSNotificationCenter::defaultCenter());
}
