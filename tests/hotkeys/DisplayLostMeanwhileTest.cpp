// An X server that goes while something is under way. Each test has a server of its own, and loses it.

#include "CapturedLog.h"
#include "KeyPress.h"
#include "OtherClient.h"
#include "SecondDisplay.h"
#include "platform/foundation/hotkeys/HotKeys.h"

#include <csignal>
#include <functional>
#include <gtest/gtest.h>
#include <linux/input-event-codes.h>
#include <thread>

namespace {

constexpr quint32 A = 0, S = 1;

OSStatus status(VirtualKeyCode keyCode, EventHotKeyRef *reference)
{
    return RegisterEventHotKey(keyCode, controlKey, {}, GetApplicationEventTarget(), 0, reference);
}

/// The one that everything connects to from now on.
class OwnDisplay : public SecondDisplay
{
public:
    OwnDisplay() { qputenv("DISPLAY", name()); }
};

/// Hears the presses of hot keys, and does what a test wants done when one is told.
class PressListener
{
public:
    explicit PressListener(std::function<void()> atPress = [] {}) : atPress_(std::move(atPress))
    {
        const EventTypeSpec press{kEventClassKeyboard, kEventHotKeyPressed};
        InstallEventHandler(GetApplicationEventTarget(), hear, 1, &press, nullptr, nullptr);
        current_ = this;
    }
    ~PressListener() { current_ = nullptr; }
    Q_DISABLE_COPY_MOVE(PressListener)

    bool hears(int presses)
    {
        return waitUntil([&] { return presses_ >= presses; });
    }
    int presses() const { return presses_; }

private:
    static OSStatus hear(EventHandlerCallRef, EventRef, void *)
    {
        if (!current_)
            return eventNotHandledErr;
        ++current_->presses_;
        current_->atPress_();
        return noErr;
    }

    static PressListener *current_;
    std::function<void()> atPress_;
    int presses_ = 0;
};

PressListener *PressListener::current_ = nullptr;

bool isToldOnce(const CapturedLog &log)
{
    const bool isTold = waitUntil([&] { return !log.linesContaining("the X server has gone").isEmpty(); });
    return isTold && log.lines().size() == 1;
}

} // namespace

TEST(DisplayLost, withAKeyHeldLeavesNothingDownForTheNextServer)
{
    CapturedLog log;
    PressListener listener;
    EventHotKeyRef reference = nullptr;
    {
        OwnDisplay display;
        ASSERT_EQ(status(A, &reference), noErr);
        keyDown(KEY_LEFTCTRL);
        keyDown(KEY_A);
        ASSERT_TRUE(listener.hears(1));
        display.end();
        EXPECT_TRUE(isToldOnce(log));
        EXPECT_EQ(UnregisterEventHotKey(reference), eventHotKeyInvalidErr);
    }
    OwnDisplay next;
    ASSERT_EQ(status(A, &reference), noErr);
    pressKey(KEY_A, {KEY_LEFTCTRL});
    EXPECT_TRUE(listener.hears(2));
    EXPECT_EQ(listener.presses(), 2);
    next.end();
    EXPECT_TRUE(waitUntil([&] { return log.lines().size() == 2; }));
}

TEST(DisplayLost, insideAHandlerIsNoticedThere)
{
    CapturedLog log;
    OwnDisplay display;
    EventHotKeyRef first = nullptr, second = nullptr;
    PressListener listener([&] {
        display.end();
        EXPECT_EQ(status(S, &second), eventInternalErr);
        EXPECT_TRUE(isToldOnce(log));
        EXPECT_EQ(UnregisterEventHotKey(first), eventHotKeyInvalidErr);
    });
    ASSERT_EQ(status(A, &first), noErr);
    pressKey(KEY_A, {KEY_LEFTCTRL});
    ASSERT_TRUE(listener.hears(1));
    runPendingEvents();
    EXPECT_EQ(listener.presses(), 1);
    EXPECT_EQ(second, nullptr);
    EXPECT_EQ(log.lines().size(), 1);
}

TEST(DisplayLost, duringARegrabEndsEveryRegistration)
{
    constexpr quint32 keys = 10;
    constexpr int mod1 = 3, mod3 = 5; // places in the modifier map
    CapturedLog log;
    OwnDisplay display;
    std::vector<EventHotKeyRef> references(keys);
    for (quint32 key = 0; key < keys; ++key)
        ASSERT_EQ(RegisterEventHotKey(key, optionKey, {}, GetApplicationEventTarget(), 0, &references[key]), noErr);
    OtherClient other;
    QList<QList<int>> modifiers = other.modifierKeys();
    std::swap(modifiers[mod1], modifiers[mod3]);
    // All are given up, then all are grabbed anew: with the first one free, most of that is still to be done.
    std::thread killer([server = pid_t(display.processId())] {
        OtherClient client;
        while (!client.grabKey(KEY_A, XCB_MOD_MASK_1)) { }
        ::kill(server, SIGKILL);
    });
    other.setModifierKeys(modifiers);
    EXPECT_TRUE(isToldOnce(log));
    killer.join();
    for (const EventHotKeyRef reference : references)
        EXPECT_EQ(UnregisterEventHotKey(reference), eventHotKeyInvalidErr);
}
