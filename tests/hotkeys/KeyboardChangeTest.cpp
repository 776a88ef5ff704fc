// Hot keys while the user changes the keyboard.

#include "HotKeySession.h"
#include "KeyPress.h"
#include "Keyboard.h"
#include "Wait.h"
#include "platform/foundation/notifications/NSNotificationCenter.h"

#include <QProcess>
#include <QScopeGuard>
#include <linux/input-event-codes.h>

namespace {

constexpr quint32 A = 0, S = 1, Z = 6, Up = 126;
constexpr int mod1 = 3, mod3 = 5; // places in the modifier map, after Shift, Lock and Control

class KeyboardChange : public HotKeySession
{
public:
    ~KeyboardChange() override { setxkbmap({"-keycodes", "evdev", "-layout", "us", "-option", ""}); }

    static void setxkbmap(const QStringList &arguments) { ASSERT_EQ(QProcess::execute("setxkbmap", arguments), 0); }

    /// Waits until pressing a key reaches its hot key, which is pressed again and again for that.
    bool works(int evdev, const QList<int> &held, quint32 id)
    {
        const auto pressOnce = [&] {
            pressKey(evdev, held);
            return pressed() == QList<quint32>{id};
        };
        // Once it works, each press counts.
        return waitUntil(pressOnce) && pressOnce() && pressOnce();
    }
    /// Waits until another program can have a key.
    bool isFree(int evdev, quint16 modifiers)
    {
        return waitUntil([&] { return other.grabKey(evdev, modifiers); });
    }
    void moveAltToMod3()
    {
        QList<QList<int>> keys = other.modifierKeys();
        std::swap(keys[mod1], keys[mod3]);
        other.setModifierKeys(keys);
    }
};

} // namespace

TEST_F(KeyboardChange, ofTheLayoutLeavesAKeyWhereItIs)
{
    ASSERT_EQ(add(Z, controlKey | optionKey), noErr);
    for (const char *layout : {"de", "ru", "fr", "us"}) {
        setKeyboardLayout(layout);
        pressKey(KEY_Z, {KEY_LEFTCTRL, KEY_LEFTALT});
        EXPECT_EQ(pressed(), QList<quint32>{1}) << layout;
    }
}

TEST_F(KeyboardChange, ofModifiersIsFollowed)
{
    ASSERT_EQ(add(A, optionKey, 5), noErr);
    moveAltToMod3();
    EXPECT_TRUE(isFree(KEY_A, XCB_MOD_MASK_1));
    EXPECT_FALSE(other.grabKey(KEY_A, XCB_MOD_MASK_3));
    EXPECT_TRUE(works(KEY_A, {KEY_LEFTALT}, 5));
}

TEST_F(KeyboardChange, ofKeyCodesIsFollowed)
{
    ASSERT_EQ(add(Up, controlKey, 5), noErr);
    setxkbmap({"-keycodes", "xfree86"});
    // There the key called UP has another code.
    constexpr int upOfXFree86 = 98 - evdevToX11;
    EXPECT_TRUE(works(upOfXFree86, {KEY_LEFTCTRL}, 5));
    EXPECT_TRUE(isFree(KEY_UP, XCB_MOD_MASK_CONTROL));
}

TEST_F(KeyboardChange, isKnownToWhatIsRegisteredRightAfterIt)
{
    ASSERT_EQ(add(S, optionKey, 4), noErr);
    moveAltToMod3();
    ASSERT_EQ(add(A, optionKey, 5), noErr);
    EXPECT_TRUE(works(KEY_A, {KEY_LEFTALT}, 5));
    EXPECT_TRUE(works(KEY_S, {KEY_LEFTALT}, 4));
}

TEST_F(KeyboardChange, isToldAndNotWhereNothingHasChanged)
{
    ASSERT_EQ(add(S, optionKey, 4), noErr);
    QObject observer;
    int told = 0;
    NSNotificationCenter::defaultCenter()->addObserverSelectorNameObject(
        &observer, [&told](const NSNotification &) { ++told; }, LMHotKeysDidChange);
    // What other tests have changed back has been told by then.
    EXPECT_TRUE(works(KEY_S, {KEY_LEFTALT}, 4));
    told = 0;
    other.setModifierKeys(other.modifierKeys());
    EXPECT_TRUE(works(KEY_S, {KEY_LEFTALT}, 4));
    EXPECT_EQ(told, 0);
    moveAltToMod3();
    EXPECT_TRUE(waitUntil([&told] { return told > 0; }));
    EXPECT_TRUE(works(KEY_S, {KEY_LEFTALT}, 4));
}

TEST_F(KeyboardChange, swapsAltAndSuper)
{
    ASSERT_EQ(add(A, optionKey, 1), noErr);
    ASSERT_EQ(add(A, cmdKey, 2), noErr);
    setxkbmap({"-option", "altwin:swap_alt_win"});
    EXPECT_TRUE(works(KEY_A, {KEY_LEFTMETA}, 1));
    EXPECT_TRUE(works(KEY_A, {KEY_LEFTALT}, 2));
}

TEST_F(KeyboardChange, thatTakesAModifierAwayIsToldAndItsReturnFollowed)
{
    ASSERT_EQ(add(A, optionKey, 5), noErr);
    const QList<QList<int>> before = other.modifierKeys();
    QList<QList<int>> keys = before;
    keys[mod1].clear();
    other.setModifierKeys(keys);
    EXPECT_TRUE(waitUntil([this] { return LMHotKeyStatus(last()) == paramErr; }));
    EventHotKeyRef reference = nullptr;
    EXPECT_EQ(RegisterEventHotKey(S, optionKey, {}, GetApplicationEventTarget(), 0, &reference), paramErr);
    EXPECT_EQ(RegisterEventHotKey(A, optionKey, {}, GetApplicationEventTarget(), 0, &reference), eventHotKeyExistsErr);
    other.setModifierKeys(before);
    EXPECT_TRUE(works(KEY_A, {KEY_LEFTALT}, 5));
}

TEST_F(KeyboardChange, ofTwoThatBecomeTheSameLeavesTheKeyToTheOlder)
{
    ASSERT_EQ(add(A, optionKey, 1), noErr);
    const EventHotKeyRef older = last();
    ASSERT_EQ(add(A, cmdKey, 2), noErr);
    const auto before = other.modifierKeys();
    const auto restore = qScopeGuard([&] { other.setModifierKeys(before); });
    QList<QList<int>> keys = before;
    constexpr int mod4 = 6;
    keys[mod1] += keys[mod4];
    keys[mod4].clear();
    other.setModifierKeys(keys);
    EXPECT_TRUE(waitUntil([this] { return LMHotKeyStatus(last()) != noErr; }));
    EXPECT_TRUE(works(KEY_A, {KEY_LEFTMETA}, 1));
    EXPECT_EQ(LMHotKeyStatus(older), noErr);
    EXPECT_EQ(LMHotKeyStatus(last()), eventHotKeyExistsErr);
    // The younger one has it as soon as it is free.
    EXPECT_EQ(UnregisterEventHotKey(older), noErr);
    EXPECT_TRUE(works(KEY_A, {KEY_LEFTALT}, 2));
    EXPECT_EQ(LMHotKeyStatus(last()), noErr);
    EXPECT_EQ(LMHotKeyStatus(older), eventHotKeyInvalidErr);
}

TEST_F(KeyboardChange, toAKeyThatAnotherProgramHoldsIsToldAndTriedAgain)
{
    ASSERT_EQ(add(A, optionKey, 5), noErr);
    ASSERT_TRUE(other.grabKey(KEY_A, XCB_MOD_MASK_3));
    const auto before = other.modifierKeys();
    const auto restore = qScopeGuard([&] { other.setModifierKeys(before); });
    moveAltToMod3();
    EXPECT_TRUE(waitUntil([this] { return LMHotKeyStatus(last()) == eventHotKeyExistsErr; }));
    other.setModifierKeys(before);
    EXPECT_TRUE(works(KEY_A, {KEY_LEFTALT}, 5));
}

TEST_F(KeyboardChange, ofKeyCodesLeavesAnotherKeyToItsOwnName)
{
    // f13 may also be Print Screen; where that has another code, its usual one is Delete.
    constexpr quint32 f13 = 105;
    setxkbmap({"-keycodes", "xfree86"});
    ASSERT_EQ(add(f13, controlKey, 5), noErr);
    EXPECT_TRUE(waitUntil([this] { return other.isHeldElsewhere(111 - evdevToX11, XCB_MOD_MASK_CONTROL); }));
    EXPECT_FALSE(other.isHeldElsewhere(107 - evdevToX11, XCB_MOD_MASK_CONTROL));
}
