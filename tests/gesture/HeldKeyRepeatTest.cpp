// A movement key that is held during a gesture.

#include "GestureSession.h"

namespace {

const QString right = QStringLiteral("repeated moveRightHotKey");
const QString left = QStringLiteral("repeated moveLeftHotKey");

class HeldKeyRepeat : public GestureSession
{
public:
    HeldKeyRepeat() { beginsHeld = true; }
    ~HeldKeyRepeat() override
    {
        for (const int key : {KEY_RIGHT, KEY_LEFT, KEY_RIGHTALT, KEY_LEFTALT, KEY_LEFTCTRL})
            keyUp(key);
    }

    void holdRight()
    {
        holdModifiers();
        keyDown(KEY_RIGHT);
        EXPECT_TRUE(waitFor("pressed moveRightHotKey"));
        pressTime = timeOf("pressed moveRightHotKey");
    }
    /// What is heard within the time in which a key that is held would repeat.
    QStringList heardMeanwhile()
    {
        heard();
        waitForServer(longestPause);
        return heard();
    }

    quint32 pressTime = 0;

private:
    static constexpr quint32 longestPause = 600; // of the first repeat and some more
};

} // namespace

TEST_F(HeldKeyRepeat, movesOnAfterTheDelayAndThenInIntervals)
{
    holdRight();
    QList<quint32> times{pressTime};
    for (int repeat = 1; repeat <= 3; ++repeat) {
        ASSERT_TRUE(waitUntil([&] { return count(right) == repeat; }));
        times.append(timeOf(right));
    }
    EXPECT_GE(times[1] - times[0], 250U);
    // A timer may be late once, and then the next beat comes sooner.
    EXPECT_GE(times[3] - times[1], 2 * 120U - 5);
    EXPECT_LE(times[3], other.serverTime());
    EXPECT_EQ(count("pressed moveRightHotKey"), 1) << "the keyboard's own repeats are none";
}

TEST_F(HeldKeyRepeat, goesByTheSettings)
{
    apply({{KTXInitialDelay, 0.4}, {KTXRepeatRate, 0.75}});
    holdRight();
    ASSERT_TRUE(waitFor(right));
    const quint32 first = timeOf(right);
    EXPECT_GE(first - pressTime, 400U);
    ASSERT_TRUE(waitUntil([&] { return count(right) == 2; }));
    EXPECT_GE(timeOf(right) - first, 204U - 5);
}

TEST_F(HeldKeyRepeat, isNoneWhereItIsTurnedOff)
{
    apply({{KTXAutoRepeat, false}});
    holdRight();
    EXPECT_EQ(heardMeanwhile(), QStringList());
}

TEST_F(HeldKeyRepeat, endsWithTheKey)
{
    holdRight();
    ASSERT_TRUE(waitFor(right));
    keyUp(KEY_RIGHT);
    EXPECT_EQ(heardMeanwhile(), QStringList());
    pressKey(KEY_RIGHT);
    EXPECT_TRUE(waitFor("pressed moveRightHotKey"));
    EXPECT_EQ(heardMeanwhile(), QStringList()) << "one that is not held";
}

TEST_F(HeldKeyRepeat, endsWithTheKeyWhileAnotherProgramHasTheKeyboard)
{
    holdRight();
    ASSERT_TRUE(waitFor(right));
    ASSERT_TRUE(other.grabKeyboard());
    keyUp(KEY_RIGHT);
    EXPECT_EQ(heardMeanwhile(), QStringList());
    other.ungrabKeyboard();
}

TEST_F(HeldKeyRepeat, endsWithTheKeyWhileAnotherProgramHoldsUpAllKeys)
{
    holdRight();
    ASSERT_TRUE(waitFor(right));
    ASSERT_TRUE(other.grabKeyboardHoldingUpKeys());
    keyUp(KEY_RIGHT);
    EXPECT_EQ(heardMeanwhile(), QStringList());
    other.ungrabKeyboard();
}

TEST_F(HeldKeyRepeat, endsWithTheGesture)
{
    holdRight();
    ASSERT_TRUE(waitFor(right));
    keys.end();
    EXPECT_EQ(heardMeanwhile(), QStringList());
}

TEST_F(HeldKeyRepeat, isNoneWithoutAGesture)
{
    beginsHeld = false;
    holdRight();
    EXPECT_EQ(heardMeanwhile(), QStringList());
}

TEST_F(HeldKeyRepeat, isOfTheKeyThatWasPressedLast)
{
    holdRight();
    ASSERT_TRUE(waitFor(right));
    keyDown(KEY_LEFT);
    ASSERT_TRUE(waitFor("pressed moveLeftHotKey"));
    heard();
    ASSERT_TRUE(waitFor(left));
    EXPECT_EQ(count(right), 0);
    keyUp(KEY_LEFT);
    EXPECT_EQ(heardMeanwhile(), QStringList());
}

TEST_F(HeldKeyRepeat, isNoneOfAnActionThatDoesNotMove)
{
    holdModifiers();
    keyDown(KEY_S);
    ASSERT_TRUE(waitFor("pressed takeScreenshot"));
    EXPECT_EQ(heardMeanwhile(), QStringList());
    keyUp(KEY_S);
}

TEST_F(HeldKeyRepeat, goesOnWhileOneOfTwoKeysOfAModifierIsUp)
{
    holdRight();
    keyDown(KEY_RIGHTCTRL);
    keyUp(KEY_LEFTCTRL);
    ASSERT_TRUE(waitFor(right));
    EXPECT_FALSE(heard().contains("released"));
    keyUp(KEY_RIGHTCTRL);
}
