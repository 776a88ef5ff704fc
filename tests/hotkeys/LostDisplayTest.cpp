// Hot keys where there is no X server, or no longer.

#include "CapturedLog.h"
#include "KTXHotKey.h"
#include "SecondDisplay.h"
#include "platform/foundation/notifications/NSNotificationCenter.h"

#include <gtest/gtest.h>

namespace {

constexpr quint32 A = 0, S = 1;

OSStatus status(quint32 keyCode, EventHotKeyRef *reference)
{
    return RegisterEventHotKey(keyCode, controlKey, {}, GetApplicationEventTarget(), 0, reference);
}

/// An environment variable for the test's time.
class Variable
{
public:
    Variable(const char *name, const QByteArray &value) : name_(name), before_(qgetenv(name)) { qputenv(name, value); }
    ~Variable() { before_.isEmpty() ? qunsetenv(name_) : qputenv(name_, before_); }

private:
    const char *name_;
    QByteArray before_;
};

} // namespace

TEST(LostDisplay, endsEveryRegistrationWithOneLoggedLine)
{
    SecondDisplay display;
    const Variable variable("DISPLAY", display.name());
    QObject observer;
    int told = 0;
    NSNotificationCenter::defaultCenter()->addObserverSelectorNameObject(
        &observer, [&told](const NSNotification &) { ++told; }, LMHotKeysDidGo);
    EventHotKeyRef first = nullptr, second = nullptr;
    ASSERT_EQ(status(A, &first), noErr);
    ASSERT_EQ(status(S, &second), noErr);

    CapturedLog log;
    display.end();
    ASSERT_TRUE(waitUntil([&] { return told > 0; }));
    EXPECT_EQ(told, 1);
    EXPECT_EQ(log.lines(), QStringList{"lumaroo: hot keys: the X server has gone; no hot key is registered any more"});
    EXPECT_EQ(UnregisterEventHotKey(first), eventHotKeyInvalidErr);
    EXPECT_EQ(UnregisterEventHotKey(second), eventHotKeyInvalidErr);

    EXPECT_EQ(status(A, &first), eventInternalErr);
    EXPECT_EQ(status(S, &second), eventInternalErr);
    EXPECT_EQ(log.lines().size(), 2);
    EXPECT_TRUE(log.lines().last().contains("there is no X server"));
}

TEST(LostDisplay, leavesHotKeyObjectsUnregistered)
{
    SecondDisplay display;
    const Variable variable("DISPLAY", display.name());
    const auto hotKey = KTXHotKey::createWithKeyCodeAndModifiers(A, controlKey);
    ASSERT_EQ(hotKey->registerAsHotKey(), noErr);
    CapturedLog log;
    display.end();
    EXPECT_TRUE(waitUntil([&] { return !hotKey->isHotKeyRegistered(); }));
    EXPECT_FALSE(hotKey->setToKeyCodeWithModifiersForceChanges(A, controlKey, false));
    KTXHotKey::unregisterAllHotkeys();
}

TEST(LostDisplay, isNoticedByARegistrationThatComesFirst)
{
    SecondDisplay display;
    const Variable variable("DISPLAY", display.name());
    EventHotKeyRef first = nullptr, second = nullptr;
    ASSERT_EQ(status(A, &first), noErr);
    CapturedLog log;
    display.end();
    EXPECT_EQ(status(S, &second), eventInternalErr);
    EXPECT_TRUE(waitUntil([&] { return !log.linesContaining("the X server has gone").isEmpty(); }));
    EXPECT_EQ(log.lines().size(), 1);
    EXPECT_EQ(UnregisterEventHotKey(first), eventHotKeyInvalidErr);
}

TEST(LostDisplay, isNoticedByGivingUpThatComesFirst)
{
    SecondDisplay display;
    const Variable variable("DISPLAY", display.name());
    EventHotKeyRef reference = nullptr;
    ASSERT_EQ(status(A, &reference), noErr);
    CapturedLog log;
    display.end();
    EXPECT_EQ(UnregisterEventHotKey(reference), noErr);
    EXPECT_TRUE(waitUntil([&] { return !log.linesContaining("the X server has gone").isEmpty(); }));
    EXPECT_EQ(log.lines().size(), 1);
}

TEST(LostDisplay, isForgottenWhereAnotherServerIs)
{
    CapturedLog log;
    {
        SecondDisplay display;
        const Variable variable("DISPLAY", display.name());
        EventHotKeyRef reference = nullptr;
        ASSERT_EQ(status(A, &reference), noErr);
        display.end();
        ASSERT_TRUE(waitUntil([&] { return !log.linesContaining("the X server has gone").isEmpty(); }));
    }
    EventHotKeyRef reference = nullptr;
    EXPECT_EQ(status(A, &reference), noErr);
    EXPECT_EQ(UnregisterEventHotKey(reference), noErr);
}

TEST(LostDisplay, andAWaylandSessionRefuseHotKeysAndOneLineSaysWhy)
{
    const Variable variable("WAYLAND_DISPLAY", "wayland-0");
    CapturedLog log;
    EventHotKeyRef reference = nullptr;
    EXPECT_EQ(status(A, &reference), eventInternalErr);
    EXPECT_EQ(status(S, &reference), eventInternalErr);
    EXPECT_EQ(reference, nullptr);
    EXPECT_EQ(log.linesContaining("Wayland").size(), 1);
    const auto hotKey = KTXHotKey::createWithKeyCodeAndModifiers(A, controlKey);
    EXPECT_EQ(hotKey->registerAsHotKey(), eventInternalErr);
    EXPECT_FALSE(hotKey->isHotKeyRegistered());
}
