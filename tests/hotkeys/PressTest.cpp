// Which presses reach a hot key's owner, and how often.

#include "HotKeySession.h"
#include "KeyPress.h"
#include "Keyboard.h"
#include "Wait.h"

#include <QScopeGuard>
#include <QTimer>
#include <linux/input-event-codes.h>

namespace {

constexpr quint32 A = 0, S = 1, Z = 6, Left = 123, F13 = 105;

class Press : public HotKeySession
{
};

OtherClient *menuOpener = nullptr;
QList<bool> openedMenus;

/// Has another program take the keyboard, as a menu does that is opened because of the press.
OSStatus openMenu(EventHandlerCallRef, EventRef, void *)
{
    QTimer::singleShot(0, [] {
        if (!menuOpener)
            return;
        openedMenus.append(menuOpener->grabKeyboard());
        menuOpener->ungrabKeyboard();
    });
    return eventNotHandledErr;
}

} // namespace

TEST_F(Press, reachesItsOwnerAndNotTheProgramWithTheFocus)
{
    ASSERT_EQ(add(A, controlKey | optionKey, 7), noErr);
    pressKey(KEY_A, {KEY_LEFTCTRL, KEY_LEFTALT});
    EXPECT_EQ(pressed(), QList<quint32>{7});
    EXPECT_FALSE(other.pressedKeys().contains(KEY_A));
    EXPECT_TRUE(other.pressedKeys().contains(KEY_LEFTALT));
}

TEST_F(Press, withOtherModifiersGoesToTheProgramWithTheFocus)
{
    ASSERT_EQ(add(A, controlKey | optionKey), noErr);
    pressKey(KEY_A);
    pressKey(KEY_A, {KEY_LEFTCTRL});
    pressKey(KEY_A, {KEY_LEFTALT});
    pressKey(KEY_A, {KEY_LEFTCTRL, KEY_LEFTALT, KEY_LEFTSHIFT});
    pressKey(KEY_A, {KEY_LEFTCTRL, KEY_LEFTALT, KEY_LEFTMETA});
    EXPECT_TRUE(pressed().isEmpty());
    EXPECT_EQ(other.pressedKeys().count(KEY_A), 5);
}

TEST_F(Press, namesTheHotKeyThatItIsOf)
{
    ASSERT_EQ(add(A, controlKey, 1), noErr);
    ASSERT_EQ(add(A, controlKey | shiftKey, 2), noErr);
    ASSERT_EQ(add(S, controlKey, 3), noErr);
    pressKey(KEY_S, {KEY_LEFTCTRL});
    pressKey(KEY_A, {KEY_LEFTCTRL, KEY_LEFTSHIFT});
    pressKey(KEY_A, {KEY_LEFTCTRL});
    EXPECT_EQ(pressed(), (QList<quint32>{3, 2, 1}));
}

TEST_F(Press, countsWithTheModifiersOfEitherSide)
{
    ASSERT_EQ(add(A, controlKey | shiftKey, 1), noErr);
    ASSERT_EQ(add(S, optionKey, 2), noErr);
    ASSERT_EQ(add(Left, cmdKey, 3), noErr);
    pressKey(KEY_A, {KEY_RIGHTCTRL, KEY_LEFTSHIFT});
    pressKey(KEY_A, {KEY_LEFTCTRL, KEY_RIGHTSHIFT});
    pressKey(KEY_S, {KEY_RIGHTALT});
    pressKey(KEY_LEFT, {KEY_LEFTMETA});
    pressKey(KEY_LEFT, {KEY_RIGHTMETA});
    EXPECT_EQ(pressed(), (QList<quint32>{1, 1, 2, 3, 3}));
}

TEST_F(Press, countsWhateverTheLockKeysAre)
{
    ASSERT_EQ(add(A, controlKey), noErr);
    for (const int lock : {KEY_CAPSLOCK, KEY_NUMLOCK, KEY_SCROLLLOCK}) {
        pressKey(lock);
        pressKey(KEY_A, {KEY_LEFTCTRL});
        EXPECT_EQ(pressed(), QList<quint32>{1}) << lock;
    }
    // All of them are on now.
    for (const int lock : {KEY_CAPSLOCK, KEY_NUMLOCK, KEY_SCROLLLOCK}) {
        pressKey(lock);
        pressKey(KEY_A, {KEY_LEFTCTRL});
        EXPECT_EQ(pressed(), QList<quint32>{1}) << lock;
    }
}

TEST_F(Press, countsWithScrollLockOnAModifierOfItsOwn)
{
    const auto before = other.modifierKeys();
    const auto restore = qScopeGuard([&] { other.setModifierKeys(before); });
    QList<QList<int>> keys = before;
    constexpr int mod3 = 5; // after Shift, Lock, Control, Mod1 and Mod2
    keys[mod3] = {KEY_SCROLLLOCK + evdevToX11};
    other.setModifierKeys(keys);
    ASSERT_EQ(add(A, controlKey), noErr);
    EXPECT_TRUE(waitUntil([this] { return other.isHeldElsewhere(KEY_A, XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_3); }));
    pressKey(KEY_SCROLLLOCK);
    pressKey(KEY_A, {KEY_LEFTCTRL});
    pressKey(KEY_SCROLLLOCK);
    pressKey(KEY_A, {KEY_LEFTCTRL});
    EXPECT_EQ(pressed(), (QList<quint32>{1, 1}));
}

TEST_F(Press, countsInEveryGroupOfTheLayout)
{
    const auto reset = qScopeGuard([] { setKeyboardLayout("us"); });
    setKeyboardLayout("us,de,ru");
    ASSERT_EQ(add(Z, controlKey | optionKey), noErr);
    for (const int group : {0, 1, 2, 0}) {
        lockKeyboardGroup(group);
        pressKey(KEY_Z, {KEY_LEFTCTRL, KEY_LEFTALT});
        EXPECT_EQ(pressed(), QList<quint32>{1}) << group;
    }
}

TEST_F(Press, thatWaitsWhileAnotherCombinationOfItsKeyIsRegisteredCounts)
{
    ASSERT_EQ(add(A, controlKey, 1), noErr);
    keyDown(KEY_LEFTCTRL);
    keyDown(KEY_A);
    ASSERT_EQ(add(A, shiftKey, 2), noErr);
    ASSERT_EQ(UnregisterEventHotKey(last()), noErr);
    EXPECT_EQ(pressed(), QList<quint32>{1});
    keyUp(KEY_A);
    keyUp(KEY_LEFTCTRL);
    pressKey(KEY_A, {KEY_LEFTCTRL});
    EXPECT_EQ(pressed(), QList<quint32>{1});
}

TEST_F(Press, leavesTheKeyboardFreeForAMenu)
{
    constexpr int presses = 200;
    ASSERT_EQ(add(A, controlKey), noErr);
    const EventTypeSpec press{kEventClassKeyboard, kEventHotKeyPressed};
    InstallEventHandler(GetApplicationEventTarget(), openMenu, 1, &press, nullptr, nullptr);
    menuOpener = &other;
    const auto close = qScopeGuard([] { menuOpener = nullptr; });
    keyDown(KEY_LEFTCTRL);
    for (int count = 1; count <= presses; ++count) {
        keyDown(KEY_A);
        ASSERT_TRUE(waitForPresses(count));
        runPendingEvents();
        keyUp(KEY_A);
    }
    keyUp(KEY_LEFTCTRL);
    EXPECT_EQ(openedMenus, QList<bool>(presses, true));
    EXPECT_EQ(pressed().size(), presses);
}

TEST_F(Press, duringAnotherProgramsGrabIsLostAndTheNextOneCounts)
{
    ASSERT_EQ(add(A, controlKey), noErr);
    ASSERT_TRUE(other.grabKeyboard());
    pressKey(KEY_A, {KEY_LEFTCTRL});
    other.ungrabKeyboard();
    EXPECT_TRUE(pressed().isEmpty());
    pressKey(KEY_A, {KEY_LEFTCTRL});
    EXPECT_EQ(pressed(), QList<quint32>{1});
}

TEST_F(Press, whoseReleaseFallsIntoAnotherProgramsGrabCountsAgain)
{
    ASSERT_EQ(add(A, controlKey), noErr);
    keyDown(KEY_LEFTCTRL);
    keyDown(KEY_A);
    EXPECT_EQ(pressed(), QList<quint32>{1});
    ASSERT_TRUE(other.grabKeyboard());
    keyUp(KEY_A);
    keyUp(KEY_LEFTCTRL);
    other.ungrabKeyboard();
    pressKey(KEY_A, {KEY_LEFTCTRL});
    EXPECT_EQ(pressed(), QList<quint32>{1});
}

TEST_F(Press, ofAHotKeyThatWasGivenUpDoesNotCount)
{
    ASSERT_EQ(add(A, controlKey, 1), noErr);
    const EventHotKeyRef first = last();
    ASSERT_EQ(add(S, controlKey, 2), noErr);
    pressKey(KEY_A, {KEY_LEFTCTRL});
    UnregisterEventHotKey(first);
    pressKey(KEY_S, {KEY_LEFTCTRL});
    EXPECT_EQ(pressed(), QList<quint32>{2});
}

TEST_F(Press, ofAKeyThatCountsAsTheOneRegistered)
{
    ASSERT_EQ(add(F13, controlKey), noErr);
    pressKey(KEY_SYSRQ, {KEY_LEFTCTRL});
    pressKey(KEY_F13, {KEY_LEFTCTRL});
    EXPECT_EQ(pressed(), (QList<quint32>{1, 1}));
}
