// The keyboard while it is the agent's, how it is had and given back.

#include "GestureSession.h"
#include "KTXActionKeys.h"
#include "KTXHotKeyEntry.h"
#include "SecondDisplay.h"

#include "platform/foundation/keyboard/VirtualKeyCodes.h"

namespace {

constexpr quint32 Q = 12;

const QStringList somethingElse{QStringLiteral("something else")};

class GrabbedKeyboard : public GestureSession
{
public:
    void grab()
    {
        keys.grabKeyboard();
        ASSERT_EQ(heard(), QStringList("grabbed"));
    }
    bool isFree()
    {
        const bool isFree = other.grabKeyboard();
        if (isFree)
            other.ungrabKeyboard();
        return isFree;
    }
};

} // namespace

TEST_F(GrabbedKeyboard, tellsTheElevenKeysWithAndWithoutTheModifiersAndNobodyElse)
{
    grab();
    EXPECT_FALSE(isFree());
    for (const KTXActionKey &action : KTXActionKeys()) {
        const int key = physicalKeysOf(action.defaultKeyCode).first().evdev;
        const QStringList expected{"key " + action.preferenceName};
        pressKey(key);
        EXPECT_EQ(heard(), expected);
        pressKey(key, {KEY_LEFTCTRL});
        EXPECT_EQ(heard(), expected);
        const quint32 before = other.serverTime();
        pressKey(key, {KEY_LEFTCTRL, KEY_LEFTALT});
        EXPECT_EQ(heard(), expected);
        EXPECT_LE(before, timeOf(expected.first()));
        EXPECT_LE(timeOf(expected.first()), other.serverTime());
    }
    EXPECT_EQ(other.pressedKeys(), QList<int>());
}

TEST_F(GrabbedKeyboard, tellsThemWithLockKeysOnToo)
{
    grab();
    pressKey(KEY_NUMLOCK);
    pressKey(KEY_CAPSLOCK);
    pressKey(KEY_RIGHT);
    EXPECT_EQ(heard(), QStringList("key moveRightHotKey"));
    pressKey(KEY_NUMLOCK);
    pressKey(KEY_CAPSLOCK);
}

TEST_F(GrabbedKeyboard, tellsAnyOtherKeyAndNoModifier)
{
    grab();
    pressKey(KEY_Q);
    EXPECT_EQ(heard(), somethingElse);
    pressKey(KEY_1);
    EXPECT_EQ(heard(), somethingElse);
    pressKey(KEY_RIGHT, {KEY_LEFTSHIFT});
    EXPECT_EQ(heard(), somethingElse);
    for (const int key : {KEY_LEFTSHIFT, KEY_LEFTMETA, KEY_RIGHTCTRL})
        pressKey(key);
    EXPECT_EQ(heard(), QStringList());
}

TEST_F(GrabbedKeyboard, cancelsByEscapeWhateverIsStored)
{
    apply({{KTXCancelPref, hotKeyEntry(Q)}});
    grab();
    pressKey(KEY_ESC);
    pressKey(KEY_Q);
    EXPECT_EQ(heard(), QStringList(2, "key CancelSelection"));
}

TEST_F(GrabbedKeyboard, tellsAClickThatGoesWhereItWentAndNoTurnOfTheWheel)
{
    grab();
    turnWheel(Wheel::Down);
    EXPECT_EQ(heard(), QStringList());
    const int clicks = other.clicks();
    clickAt({5, 5});
    EXPECT_EQ(heard(), somethingElse);
    EXPECT_EQ(other.clicks(), clicks + 1);
    keys.end();
    clickAt({5, 5});
    EXPECT_EQ(heard(), QStringList());
}

TEST_F(GrabbedKeyboard, repeatsAMovementKeyThatIsHeldInItsOwnTime)
{
    other.setKeyRepeat(40, 10);
    grab();
    keyDown(KEY_RIGHT);
    ASSERT_TRUE(waitUntil([this] { return count("repeated moveRightHotKey") == 2; }));
    EXPECT_EQ(count("key moveRightHotKey"), 1);
    keyUp(KEY_RIGHT);
    heard();
    waitForServer(400);
    EXPECT_EQ(heard(), QStringList());
    other.setKeyRepeat(660, 40);
}

TEST_F(GrabbedKeyboard, doesNotTakeAKeyThatIsDownForAPress)
{
    other.setKeyRepeat(40, 10);
    keyDown(KEY_T);
    ASSERT_TRUE(waitUntil([this] { return other.pressedKeys().count(KEY_T) > 2; }));
    grab();
    waitForServer(100);
    EXPECT_EQ(heard(), QStringList());
    keyUp(KEY_T);
    pressKey(KEY_T);
    EXPECT_EQ(heard(), somethingElse);
    other.setKeyRepeat(660, 40);
}

TEST_F(GrabbedKeyboard, doesNotEndWithTheModifiers)
{
    beginHeld();
    grab();
    releaseModifiers();
    EXPECT_EQ(heard(), QStringList());
}

TEST_F(GrabbedKeyboard, seesTheModifiersPressedTwice)
{
    grab();
    const auto tap = [this] {
        holdModifiers();
        waitForServer(20);
        releaseModifiers();
    };
    quint32 start = 0;
    QStringList told;
    do {
        waitForServer(ChordPresses::longestDouble);
        start = other.serverTime();
        tap();
        tap();
        told = heard();
    } while (other.serverTime() - start > ChordPresses::longestSingle);
    EXPECT_EQ(told, (QStringList{"single", "double"}));
}

TEST_F(GrabbedKeyboard, isTriedAgainWhileAnotherProgramHasIt)
{
    ASSERT_TRUE(other.grabKeyboard());
    keys.grabKeyboard();
    EXPECT_EQ(heard(), QStringList());
    other.ungrabKeyboard();
    EXPECT_TRUE(waitFor("grabbed"));
    EXPECT_FALSE(isFree());
}

TEST_F(GrabbedKeyboard, isRefusedWhereAnotherProgramKeepsIt)
{
    ASSERT_TRUE(other.grabKeyboard());
    const quint32 start = other.serverTime();
    keys.grabKeyboard();
    ASSERT_TRUE(waitFor("refused"));
    EXPECT_GE(other.serverTime() - start, 9 * 20U);
    EXPECT_EQ(heard(), QStringList("refused"));
    other.ungrabKeyboard();
    waitForServer(100);
    EXPECT_TRUE(isFree());
    pressKey(KEY_Q);
    EXPECT_EQ(heard(), QStringList());
}

TEST_F(GrabbedKeyboard, isTriedNoMoreOnceTheGestureHasEnded)
{
    ASSERT_TRUE(other.grabKeyboard());
    keys.grabKeyboard();
    keys.end();
    other.ungrabKeyboard();
    waitForServer(100);
    EXPECT_TRUE(isFree());
    EXPECT_EQ(heard(), QStringList());
}

TEST_F(GrabbedKeyboard, isFreeAgainWhenItIsLetGoAndWhenTheGestureHasEnded)
{
    grab();
    keys.letKeyboardGo();
    EXPECT_TRUE(waitUntil([this] { return isFree(); }));
    pressKey(KEY_Q);
    EXPECT_EQ(heard(), QStringList());
    EXPECT_EQ(other.pressedKeys(), QList<int>{KEY_Q});
    grab();
    keys.end();
    EXPECT_TRUE(waitUntil([this] { return isFree(); }));
}

TEST_F(GrabbedKeyboard, isFreeWhenItsTakerIsGone)
{
    {
        GestureKeys others(hotKeys);
        others.apply({});
        others.grabKeyboard();
        EXPECT_FALSE(isFree());
    }
    EXPECT_TRUE(waitUntil([this] { return isFree(); }));
}

TEST_F(GrabbedKeyboard, isLostWithTheDisplayAndHadAgainFromTheNext)
{
    const QByteArray display = qgetenv("DISPLAY");
    {
        AgentHotKeys noKeys;
        SecondDisplay second;
        qputenv("DISPLAY", second.name());
        GestureKeys keysThere(noKeys);
        keysThere.apply({});
        qputenv("DISPLAY", display);
        bool isLost = false, isGrabbed = false;
        QObject::connect(&keysThere, &GestureKeys::lost, &keysThere, [&] { isLost = true; });
        QObject::connect(&keysThere, &GestureKeys::keyboardGrabbed, &keysThere, [&] { isGrabbed = true; });
        keysThere.grabKeyboard();
        EXPECT_TRUE(isGrabbed);
        second.end();
        EXPECT_TRUE(waitUntil([&] { return isLost; }));
        EXPECT_FALSE(keysThere.areModifiersDown());
        keysThere.end();

        isGrabbed = false;
        keysThere.apply({});
        keysThere.grabKeyboard();
        EXPECT_TRUE(isGrabbed);
        EXPECT_FALSE(isFree());
    }
    EXPECT_TRUE(waitUntil([this] { return isFree(); }));
}
