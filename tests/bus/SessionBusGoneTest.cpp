#include "CapturedLog.h"
#include "Wait.h"
#include "platform/foundation/notifications/NSDistributedNotificationCenter.h"

#include <QDBusConnection>
#include <csignal>
#include <gtest/gtest.h>

TEST(TheSessionBusGoingHalfWay, isLoggedOnceAndEndsNothing)
{
    CapturedLog log;
    QObject observer;
    int calls = 0;
    NSDistributedNotificationCenter *const center = NSDistributedNotificationCenter::defaultCenter();
    center->addObserverSelectorNameObject(
        &observer, [&calls](const NSNotification &) { ++calls; }, "Name");
    center->postNotificationNameObjectUserInfoDeliverImmediately("Name", {}, {}, true);
    ASSERT_TRUE(waitUntil([&calls] { return calls == 1; }));
    ASSERT_TRUE(log.lines().isEmpty());

    ASSERT_EQ(kill(qEnvironmentVariableIntValue("LUMAROO_BUS_PID"), SIGKILL), 0);
    ASSERT_TRUE(waitUntil([&log] { return !log.lines().isEmpty(); }));
    EXPECT_FALSE(QDBusConnection::sessionBus().isConnected());

    center->postNotificationNameObjectUserInfoDeliverImmediately("Name", {}, {}, true);
    center->addObserverSelectorNameObject(
        &observer, [&calls](const NSNotification &) { ++calls; }, "Other", "object");
    center->postNotificationNameObjectUserInfoDeliverImmediately("Other", "object", {{"key", 1}}, true);
    center->removeObserverNameObject(&observer, "Name");
    runPendingEvents();
    center->removeObserver(&observer);
    runPendingEvents();
    EXPECT_EQ(calls, 1);
    EXPECT_EQ(log.lines(),
        QStringList(
            "lumaroo: notifications: the session bus has gone; other programs are neither told nor heard from now on"));
}
