// The activation modifiers by themselves, pressed once or twice: real keys, at a hand's pace.

#include "GestureSession.h"
#include "KTXModifiers.h"

namespace {

constexpr quint32 handsPace = 30; // milliseconds

const QStringList nothing;
const QStringList once{QStringLiteral("single")};
const QStringList twice{QStringLiteral("single"), QStringLiteral("double")};

class PressedTwice : public GestureSession
{
public:
    /// Presses them for the time that a finger takes, and does something meanwhile.
    void tapModifiers(const std::function<void()> &meanwhile = [] {})
    {
        holdModifiers();
        // Nothing else is seen before it is asked for.
        settle();
        settle();
        waitForServer(handsPace);
        meanwhile();
        releaseModifiers();
    }
    /// What is heard of presses; they are made again where the machine was too slow for a double press.
    QStringList heardOfFast(const std::function<void()> &presses)
    {
        for (;;) {
            waitForServer(ChordPresses::longestDouble);
            const quint32 start = other.serverTime();
            presses();
            const bool wereFast = other.serverTime() - start < ChordPresses::longestSingle;
            const QStringList told = heard();
            if (wereFast)
                return told;
        }
    }
    QStringList heardOfTwo(
        const std::function<void()> &whileDown, const std::function<void()> &inBetween = [] {})
    {
        return heardOfFast([&] {
            tapModifiers(whileDown);
            inBetween();
            waitForServer(handsPace);
            tapModifiers();
        });
    }
};

} // namespace

TEST_F(PressedTwice, isToldWithTheTimeOfTheSecondPress)
{
    quint32 before = 0, after = 0;
    const QStringList told = heardOfFast([&] {
        tapModifiers();
        before = other.serverTime();
        holdModifiers();
        after = other.serverTime();
        waitForServer(handsPace);
        releaseModifiers();
    });
    EXPECT_EQ(told, twice);
    EXPECT_LE(before, timeOf("double"));
    EXPECT_LE(timeOf("double"), after);
}

TEST_F(PressedTwice, isASinglePressWhereItIsDoneOnce)
{
    EXPECT_EQ(heardOfFast([this] { tapModifiers(); }), once);
}

TEST_F(PressedTwice, isNothingWhereTheyAreHeldTooLong)
{
    holdModifiers();
    waitForServer(ChordPresses::longestSingle + 1);
    releaseModifiers();
    EXPECT_EQ(heard(), nothing);
}

TEST_F(PressedTwice, isTwoSinglePressesWhereItIsDoneSlowly)
{
    const QStringList first = heardOfFast([this] { tapModifiers(); });
    // Before the next one, that long a time is waited.
    const QStringList second = heardOfFast([this] { tapModifiers(); });
    EXPECT_EQ(first + second, once + once);
}

TEST_F(PressedTwice, isNothingWithAnotherKeyInBetween)
{
    EXPECT_EQ(heardOfTwo([] { pressKey(KEY_T); }), once);
    EXPECT_EQ(heardOfTwo([] {}, [] { pressKey(KEY_T); }), once + once);
    EXPECT_EQ(heardOfTwo([] {}, [] { pressKey(KEY_LEFTSHIFT); }), once + once);
    EXPECT_EQ(heardOfTwo([] { pressKey(KEY_CAPSLOCK); }), once);
    pressKey(KEY_CAPSLOCK);
}

TEST_F(PressedTwice, isNothingWithAMouseButtonInBetween)
{
    EXPECT_EQ(heardOfTwo([] {}, [] { clickAt({5, 5}); }), once + once);
    EXPECT_EQ(heardOfTwo([] { clickAt({5, 5}); }), once);
    EXPECT_EQ(heardOfTwo([] { turnWheel(Wheel::Down); }), once);
}

TEST_F(PressedTwice, isNothingWhileAnotherKeyOrButtonIsHeldAllTheTime)
{
    keyDown(KEY_T);
    EXPECT_EQ(heardOfTwo([] {}), nothing);
    keyUp(KEY_T);
    mouseDown();
    EXPECT_EQ(heardOfTwo([] {}), nothing);
    mouseUp();
    EXPECT_EQ(heardOfTwo([] {}), twice);
}

TEST_F(PressedTwice, isNothingAroundAHotKey)
{
    EXPECT_EQ(heardOfTwo([] { pressKey(KEY_RIGHT); }), QStringList("pressed moveRightHotKey") + once);
}

TEST_F(PressedTwice, isToldWhileAnotherProgramHasTheKeyboardAndItsKeysAreSeen)
{
    ASSERT_TRUE(other.grabKeyboard());
    EXPECT_EQ(heardOfTwo([] {}), twice);
    EXPECT_EQ(heardOfTwo([] { pressKey(KEY_T); }), once);
    other.ungrabKeyboard();
}

TEST_F(PressedTwice, goesByTheModifiersThatAreSet)
{
    apply({{KTXModifierMask, qlonglong(KTXCommandModifier)}});
    EXPECT_EQ(heardOfTwo([] {}), nothing);
    const auto tapSuper = [this] {
        keyDown(KEY_LEFTMETA);
        waitForServer(handsPace);
        keyUp(KEY_LEFTMETA);
    };
    EXPECT_EQ(heardOfFast([&] {
        tapSuper();
        tapSuper();
    }),
        twice);
    apply({{KTXModifierMask, qlonglong(0)}});
    EXPECT_EQ(heardOfTwo([] {}), nothing);
}

TEST_F(PressedTwice, worksWithEitherKeyOfAModifier)
{
    EXPECT_EQ(heardOfFast([this] {
        tapModifiers();
        keyDown(KEY_RIGHTCTRL);
        keyDown(KEY_LEFTALT);
        keyUp(KEY_LEFTALT);
        keyUp(KEY_RIGHTCTRL);
    }),
        twice);
}
