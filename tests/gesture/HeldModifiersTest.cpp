// The press that begins a gesture, and the release of the modifiers that ends it.

#include "GestureSession.h"
#include "Keyboard.h"

namespace {

const QString pressedRight = QStringLiteral("pressed moveRightHotKey");
const QStringList released{QStringLiteral("released")};

class HeldModifiers : public GestureSession
{
protected:
    /// Handles the presses so far, and nothing else. They and the modifiers come on two connections: of the one of the
    /// presses all is read here, and its handling posted; the other is not read before the event loop runs.
    void handlePressesFirst()
    {
        LMFreeHotKeyModifiers({VirtualKeyCode(0)}, {controlKey});
        // What is posted meanwhile has its turn the next time.
        constexpr int most = 10;
        for (int turn = 0; turn < most && count(pressedRight) == 0; ++turn)
            QCoreApplication::sendPostedEvents();
    }
    /// As programs press; false where the server took longer, and all is as before.
    bool pressWithinAMillisecond()
    {
        const quint32 start = other.serverTime();
        holdModifiers();
        pressKey(KEY_RIGHT);
        if (other.serverTime() == start)
            return true;
        releaseModifiers();
        settle();
        keys.end();
        heard();
        return false;
    }
};

} // namespace

TEST_F(HeldModifiers, aPressTellsItsActionAndTheServersTime)
{
    const quint32 before = other.serverTime();
    pressKey(KEY_RIGHT, {KEY_LEFTCTRL, KEY_LEFTALT});
    const quint32 after = other.serverTime();
    ASSERT_TRUE(waitFor(pressedRight));
    EXPECT_LE(before, timeOf(pressedRight));
    EXPECT_LE(timeOf(pressedRight), after);
    EXPECT_EQ(heard(), QStringList(pressedRight));
}

TEST_F(HeldModifiers, areToldToBeReleasedOnceByTheFirstThatGoesUp)
{
    beginHeld();
    EXPECT_TRUE(keys.areModifiersDown());
    const quint32 before = other.serverTime();
    keyUp(KEY_LEFTALT);
    const quint32 after = other.serverTime();
    ASSERT_TRUE(waitFor("released"));
    EXPECT_LE(before, timeOf("released"));
    EXPECT_LE(timeOf("released"), after);
    EXPECT_FALSE(keys.areModifiersDown());
    keyUp(KEY_LEFTCTRL);
    EXPECT_EQ(heard(), released);
}

TEST_F(HeldModifiers, areNobodysBusinessWithoutAGesture)
{
    holdModifiers();
    pressKey(KEY_RIGHT);
    releaseModifiers();
    EXPECT_EQ(heard(), QStringList(pressedRight));

    beginHeld();
    keys.end();
    releaseModifiers();
    EXPECT_EQ(heard(), QStringList());
}

TEST_F(HeldModifiers, areUpAlreadyWhenAQuickPressIsHandled)
{
    bool areDown = true;
    QObject::connect(&keys, &GestureKeys::pressed, &keys, [&] { areDown = keys.areModifiersDown(); });
    pressKey(KEY_RIGHT, {KEY_LEFTCTRL, KEY_LEFTALT});
    ASSERT_TRUE(waitFor(pressedRight));
    EXPECT_FALSE(areDown);
}

TEST_F(HeldModifiers, thatWentUpBeforeThePressAreNoRelease)
{
    beginsHeld = true;
    settle();
    holdModifiers();
    releaseModifiers();
    for (const quint32 start = other.serverTime(); other.serverTime() == start;) { }
    holdModifiers();
    pressKey(KEY_RIGHT);
    handlePressesFirst();
    ASSERT_EQ(count(pressedRight), 1);
    EXPECT_EQ(count("released"), 0);
    settle();
    EXPECT_EQ(count("released"), 0);
    releaseModifiers();
    settle();
    EXPECT_EQ(count("released"), 1);
}

TEST_F(HeldModifiers, thatGoDownAtTheVeryTimeOfThePressAreNoRelease)
{
    beginsHeld = true;
    settle();
    ASSERT_TRUE(waitUntil([this] { return pressWithinAMillisecond(); }));
    handlePressesFirst();
    ASSERT_EQ(count(pressedRight), 1);
    settle();
    EXPECT_EQ(count("released"), 0);
    releaseModifiers();
    settle();
    EXPECT_EQ(count("released"), 1);
}

TEST_F(HeldModifiers, thatWentUpBeforeTheyWereWatchedAreToldAll)
{
    const quint32 start = other.serverTime();
    keys.beginHeld();
    ASSERT_TRUE(waitFor("released"));
    // Whoever begins asks first; this is for what nobody tells.
    EXPECT_GE(other.serverTime() - start, 900U);
}

TEST_F(HeldModifiers, areStillHeldAfterASecondWithoutAnyKey)
{
    beginHeld();
    waitForServer(2100);
    EXPECT_EQ(heard(), QStringList());
    releaseModifiers();
    EXPECT_EQ(heard(), released);
}

TEST_F(HeldModifiers, areHeldByTheRightKeyAloneToo)
{
    beginHeld();
    keyDown(KEY_RIGHTCTRL);
    keyUp(KEY_LEFTCTRL);
    EXPECT_TRUE(keys.areModifiersDown());
    EXPECT_EQ(heard(), QStringList());
    keyUp(KEY_RIGHTCTRL);
    EXPECT_FALSE(keys.areModifiersDown());
    EXPECT_EQ(heard(), released);
    keyUp(KEY_LEFTALT);
}

TEST_F(HeldModifiers, areReleasedWhileAnotherProgramHasTheKeyboard)
{
    beginHeld();
    ASSERT_TRUE(other.grabKeyboard());
    keyUp(KEY_LEFTALT);
    EXPECT_EQ(heard(), released);
    other.ungrabKeyboard();
    keyUp(KEY_LEFTCTRL);
}

TEST_F(HeldModifiers, areReleasedWhileAnotherProgramHoldsUpAllKeys)
{
    beginHeld();
    ASSERT_TRUE(other.grabKeyboardHoldingUpKeys());
    keyUp(KEY_LEFTALT);
    EXPECT_EQ(heard(), released);
    EXPECT_FALSE(keys.areModifiersDown());
    other.ungrabKeyboard();
    keyUp(KEY_LEFTCTRL);
    EXPECT_EQ(heard(), QStringList());
}

TEST_F(HeldModifiers, areNotReleasedByTheEndOfAnotherKeyHeldUp)
{
    beginHeld();
    keyDown(KEY_LEFTSHIFT);
    ASSERT_TRUE(other.grabKeyboardHoldingUpKeys());
    keyUp(KEY_LEFTSHIFT);
    EXPECT_EQ(heard(), QStringList());
    other.ungrabKeyboard();
    releaseModifiers();
    EXPECT_EQ(heard(), released);
}

TEST_F(HeldModifiers, workWithRemappedKeys)
{
    setKeyboardLayout("us", {}, {"ctrl:swapcaps"});
    beginsHeld = true;
    keyDown(KEY_CAPSLOCK);
    keyDown(KEY_LEFTALT);
    // The keyboard's change is handled in its own time, and the keys are grabbed anew.
    ASSERT_TRUE(waitUntil([this] {
        pressKey(KEY_RIGHT);
        return heard().contains(pressedRight);
    }));
    EXPECT_TRUE(keys.areModifiersDown());
    keyUp(KEY_CAPSLOCK);
    EXPECT_EQ(heard(), released);
    keyUp(KEY_LEFTALT);
    setKeyboardLayout("us");
}

TEST_F(HeldModifiers, workWhereAltIsAnotherModifierOfTheServer)
{
    const QList<QList<int>> usual = other.modifierKeys();
    QList<QList<int>> changed = usual;
    constexpr int mod1 = 3, mod3 = 5;
    std::swap(changed[mod1], changed[mod3]);
    other.setModifierKeys(changed);
    beginsHeld = true;
    holdModifiers();
    ASSERT_TRUE(waitUntil([this] {
        pressKey(KEY_RIGHT);
        return heard().contains(pressedRight);
    }));
    EXPECT_TRUE(keys.areModifiersDown());
    keyUp(KEY_LEFTALT);
    EXPECT_EQ(heard(), released);
    keyUp(KEY_LEFTCTRL);
    other.setModifierKeys(usual);
}

TEST_F(HeldModifiers, thatStickAreNotHeld)
{
    other.setStickyKeys(true);
    // Twice: so they stick for longer than one key.
    for (const int key : {KEY_LEFTCTRL, KEY_LEFTCTRL, KEY_LEFTALT, KEY_LEFTALT})
        pressKey(key);
    pressKey(KEY_RIGHT);
    ASSERT_TRUE(waitFor(pressedRight));
    EXPECT_FALSE(keys.areModifiersDown());
    pressKey(KEY_LEFT);
    EXPECT_TRUE(waitFor("pressed moveLeftHotKey"));
    for (const int key : {KEY_LEFTCTRL, KEY_LEFTALT})
        pressKey(key);
    heard();
    pressKey(KEY_RIGHT);
    EXPECT_EQ(heard(), QStringList());
    other.setStickyKeys(false);
}

TEST_F(HeldModifiers, areReleasedThoughTheyStick)
{
    other.setStickyKeys(true);
    beginHeld();
    pressKey(KEY_RIGHTALT);
    EXPECT_EQ(heard(), QStringList());
    keyUp(KEY_LEFTALT);
    EXPECT_EQ(heard(), released);
    keyUp(KEY_LEFTCTRL);
    other.setStickyKeys(false);
    // Which may leave it stuck; a key takes it off.
    pressKey(KEY_F5);
}

TEST_F(HeldModifiers, workWithNumLockCapsLockAndASecondLayout)
{
    setKeyboardLayout("us,ru");
    lockKeyboardGroup(1);
    pressKey(KEY_NUMLOCK);
    pressKey(KEY_CAPSLOCK);
    beginHeld();
    EXPECT_TRUE(keys.areModifiersDown());
    keyUp(KEY_LEFTALT);
    EXPECT_EQ(heard(), released);
    keyUp(KEY_LEFTCTRL);
    pressKey(KEY_NUMLOCK);
    pressKey(KEY_CAPSLOCK);
    setKeyboardLayout("us");
}
