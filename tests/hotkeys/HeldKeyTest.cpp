// Hot keys that are held down: repeats, releases, and modifiers that come and go meanwhile.

#include "HotKeySession.h"
#include "KeyPress.h"
#include "Wait.h"

#include <QRandomGenerator>
#include <linux/input-event-codes.h>
#include <thread>

namespace {

constexpr quint32 A = 0, S = 1;

class HeldKey : public HotKeySession
{
public:
    HeldKey() { other.setKeyRepeat(delay, interval); }
    /// Lets a key that is down repeat.
    void waitForRepeats()
    {
        constexpr int manyRepeats = 30;
        const quint32 start = other.serverTime();
        EXPECT_TRUE(waitUntil([&] { return other.serverTime() > start + delay + manyRepeats * interval; }));
    }

    /// For an hour's run there may be more of them.
    static int stressPresses()
    {
        bool isSet = false;
        const int presses = qEnvironmentVariableIntValue("LUMAROO_STRESS_PRESSES", &isSet);
        return isSet ? presses : 2000;
    }

private:
    static constexpr int delay = 40, interval = 10; // milliseconds
};

} // namespace

TEST_F(HeldKey, ofAKeyThatIsHeldCountsOnce)
{
    // What is no hot key, the program with the focus gets again and again.
    keyDown(KEY_S);
    EXPECT_TRUE(waitUntil([this] { return other.pressedKeys().count(KEY_S) > 3; }));
    keyUp(KEY_S);

    ASSERT_EQ(add(A, controlKey), noErr);
    keyDown(KEY_LEFTCTRL);
    keyDown(KEY_A);
    waitForRepeats();
    keyUp(KEY_A);
    pressKey(KEY_A);
    keyUp(KEY_LEFTCTRL);
    EXPECT_EQ(pressed(), (QList<quint32>{1, 1}));
    EXPECT_FALSE(other.pressedKeys().contains(KEY_A));
}

TEST_F(HeldKey, countsAgainAfterEachRelease)
{
    ASSERT_EQ(add(A, controlKey), noErr);
    keyDown(KEY_LEFTCTRL);
    for (int press = 0; press < 20; ++press)
        pressKey(KEY_A);
    keyUp(KEY_LEFTCTRL);
    EXPECT_EQ(pressed().size(), 20);
    for (int press = 0; press < 20; ++press) {
        pressKey(KEY_A, {KEY_LEFTCTRL});
        EXPECT_EQ(pressed(), QList<quint32>{1}) << press;
    }
}

TEST_F(HeldKey, countsOnceWhenTheKeyOutlivesItsModifiers)
{
    ASSERT_EQ(add(A, controlKey, 1), noErr);
    ASSERT_EQ(add(A, shiftKey, 2), noErr);
    keyDown(KEY_LEFTCTRL);
    keyDown(KEY_A);
    EXPECT_EQ(pressed(), QList<quint32>{1});
    keyUp(KEY_LEFTCTRL);
    keyUp(KEY_A);
    pressKey(KEY_A, {KEY_LEFTSHIFT});
    EXPECT_EQ(pressed(), QList<quint32>{2});
}

TEST_F(HeldKey, ofAKeyThatWasDownBeforeItBecameAHotKeyDoesNotCount)
{
    keyDown(KEY_LEFTCTRL);
    keyDown(KEY_A);
    ASSERT_EQ(add(A, controlKey), noErr);
    waitForRepeats();
    keyUp(KEY_A);
    EXPECT_TRUE(pressed().isEmpty());
    keyDown(KEY_A);
    EXPECT_EQ(pressed(), QList<quint32>{1});
    keyUp(KEY_A);
    keyUp(KEY_LEFTCTRL);
}

TEST_F(HeldKey, ofAKeyThatRepeatsWhenItsModifierIsPressedDoesNotCount)
{
    ASSERT_EQ(add(A, controlKey), noErr);
    keyDown(KEY_A);
    EXPECT_TRUE(waitUntil([this] { return other.pressedKeys().count(KEY_A) > 3; }));
    keyDown(KEY_LEFTCTRL);
    waitForRepeats();
    keyUp(KEY_A);
    EXPECT_TRUE(pressed().isEmpty());
    pressKey(KEY_A);
    EXPECT_EQ(pressed(), QList<quint32>{1});
    keyUp(KEY_LEFTCTRL);
}

TEST_F(HeldKey, isDeliveredWhileItIsHeldHoweverSoonItFollowsARelease)
{
    ASSERT_EQ(add(A, controlKey), noErr);
    // A repeat would bring along what has been left lying.
    other.setKeyRepeat(60000, 10);
    keyDown(KEY_LEFTCTRL);
    constexpr int presses = 2000, differentPauses = 16;
    for (int press = 0; press < presses; ++press) {
        // While the release is being handled here.
        std::thread typist([this, pause = press % differentPauses] {
            keyUp(KEY_A);
            for (int step = 0; step < pause; ++step)
                other.serverTime();
            keyDown(KEY_A);
        });
        const bool isDelivered = waitForPresses(press + 1);
        typist.join();
        ASSERT_TRUE(isDelivered) << press;
    }
    keyUp(KEY_A);
    keyUp(KEY_LEFTCTRL);
}

TEST_F(HeldKey, countsOnceForEachPressHoweverMuchIsTypedAhead)
{
    ASSERT_EQ(add(A, controlKey), noErr);
    other.setKeyRepeat(60000, 10);
    const int presses = stressPresses();
    // As fast as the server takes it, whatever this program is doing.
    std::thread typist([presses] {
        QRandomGenerator random(presses);
        bool isDown = false, isControlDown = false;
        for (int pressed = 0; pressed < presses;) {
            bool &key = random.bounded(2) ? isDown : isControlDown;
            key = !key;
            (key ? keyDown : keyUp)(&key == &isDown ? KEY_A : KEY_LEFTCTRL);
            pressed += &key == &isDown && isDown && isControlDown;
        }
        keyUp(KEY_A);
        keyUp(KEY_LEFTCTRL);
    });
    constexpr int parts = 20; // each waited for as long as one press elsewhere
    for (int part = 1; part <= parts; ++part)
        EXPECT_TRUE(waitForPresses(presses / parts * part));
    typist.join();
    EXPECT_EQ(pressed().size(), presses);
}

TEST_F(HeldKey, isNotLostWhenItIsPressedAnewRightAfterItsModifier)
{
    ASSERT_EQ(add(A, controlKey), noErr);
    other.setKeyRepeat(60000, 10);
    const int presses = stressPresses();
    constexpr int differentPauses = 12;
    for (int press = 0; press < presses; ++press) {
        // The key is down before its modifier, and up and down again while that is being handled here.
        std::thread typist([this, pause = press % differentPauses] {
            keyDown(KEY_A);
            keyDown(KEY_LEFTCTRL);
            for (int step = 0; step < pause; ++step)
                other.serverTime();
            keyUp(KEY_A);
            keyDown(KEY_A);
        });
        const bool isDelivered = waitForPresses(press + 1);
        typist.join();
        keyUp(KEY_A);
        keyUp(KEY_LEFTCTRL);
        ASSERT_TRUE(isDelivered) << press;
    }
    EXPECT_EQ(pressed().size(), presses);
}

TEST_F(HeldKey, heldLongerThanItsModifiersTypesIntoTheProgramWithTheFocus)
{
    ASSERT_EQ(add(A, controlKey), noErr);
    keyDown(KEY_LEFTCTRL);
    keyDown(KEY_A);
    ASSERT_TRUE(waitForPresses(1));
    keyUp(KEY_LEFTCTRL);
    EXPECT_TRUE(waitUntil([this] { return other.pressedKeys().contains(KEY_A); }));
    keyUp(KEY_A);
    EXPECT_EQ(pressed(), QList<quint32>{1});
}

TEST_F(HeldKey, ofTwoHotKeysAtOnceCountsBoth)
{
    ASSERT_EQ(add(A, controlKey, 1), noErr);
    ASSERT_EQ(add(S, controlKey, 2), noErr);
    keyDown(KEY_LEFTCTRL);
    keyDown(KEY_A);
    keyDown(KEY_S);
    keyUp(KEY_A);
    keyDown(KEY_A);
    keyUp(KEY_S);
    keyUp(KEY_A);
    keyUp(KEY_LEFTCTRL);
    EXPECT_EQ(pressed(), (QList<quint32>{1, 2, 1}));
}
