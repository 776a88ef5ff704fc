#include "CapturedLog.h"
#include "Wait.h"
#include "platform/foundation/notifications/CFNotificationCenter.h"

#include <gtest/gtest.h>

TEST(WithoutASessionBus, postingAndObservingDoNothingAndOneLineIsLogged)
{
    CapturedLog log;
    QObject observer;
    int calls = 0;
    CFNotificationCenterRef center = CFNotificationCenterGetDistributedCenter();
    center->addObserverSelectorNameObject(
        &observer, [&calls](const NSNotification &) { ++calls; }, "Name");
    center->addObserverSelectorNameObject(
        &observer, [&calls](const NSNotification &) { ++calls; }, "Name", "object");
    CFNotificationCenterPostNotification(center, "Name", "object", {{"key", 1}}, true);
    CFNotificationCenterPostNotification(center, "Name", {}, {}, true);
    center->removeObserverNameObject(&observer, "Name", "object");
    runPendingEvents();
    center->removeObserver(&observer);
    EXPECT_EQ(calls, 0);
    EXPECT_EQ(log.lines(),
        QStringList("lumaroo: notifications: there is no session bus; other programs are neither told nor heard"));
}
