// What else a selection does by settings: digits on the windows, the bell, other ways in and out.

#include "BellListener.h"
#include "DisplayRoot.h"
#include "KTXConstants.h"
#include "OtherClient.h"
#include "SelectionSession.h"
#include "Wait.h"

#include <gmock/gmock.h>
#include <linux/input-event-codes.h>

using testing::IsEmpty;

namespace {

constexpr quint32 hesitation = 400; // milliseconds

class SelectionWays : public SelectionSession
{
protected:
    /// Begins one that is held, at the window in the middle.
    void beginHeld()
    {
        holdModifiers();
        pressKey(KEY_RIGHT);
        ASSERT_TRUE(
            waitUntil([this] { return !steps().isEmpty() && steps().last() == QStringLiteral("moved to middle"); }));
    }
    void cancel()
    {
        pressKey(KEY_ESC);
        releaseModifiers();
        for (const int digit : {KEY_1, KEY_2, KEY_3, KEY_4})
            ASSERT_TRUE(waitUntil([&] { return !isTaken(digit); }));
    }
    bool isTaken(int digit) { return other.isHeldElsewhere(digit, XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_1); }
    /// How long after the first key the digits come up.
    quint32 timeUntilDigits()
    {
        const quint32 start = serverTime();
        beginHeld();
        // They are seen once they are taken. Who asks before for a key may be in the way.
        constexpr int frameTitleAndDigits = 3;
        EXPECT_TRUE(waitUntil([] { return marksOnScreen() >= frameTitleAndDigits; }));
        return serverTime() - start;
    }

    OtherClient other;
};

} // namespace

TEST_F(SelectionWays, haveDigitsForWhoHesitates)
{
    open();
    EXPECT_GE(timeUntilDigits(), hesitation - hesitation / 20) << "as exact as a timer that may be early by 5 %";
    for (const int digit : {KEY_1, KEY_2, KEY_3, KEY_4})
        EXPECT_TRUE(isTaken(digit));
    EXPECT_FALSE(isTaken(KEY_5)) << "there are four windows";
    cancel();
    EXPECT_FALSE(isTaken(KEY_4));
}

TEST_F(SelectionWays, haveDigitsAtOnceWhereThatIsChosen)
{
    open({{KTXVisualMode, true}});
    bool isAtOnce = false;
    // A machine that is busy may take its time now and then.
    for (int attempt = 0; attempt < 10 && !isAtOnce; ++attempt) {
        isAtOnce = timeUntilDigits() < hesitation;
        cancel();
    }
    EXPECT_TRUE(isAtOnce);
}

TEST_F(SelectionWays, endAtTheWindowWhoseDigitIsPressed)
{
    open();
    timeUntilDigits();
    pressKey(KEY_4);
    EXPECT_TRUE(says({"began", "moved to middle", "accepted below"}));
    EXPECT_TRUE(isActive("below"));
    EXPECT_TRUE(waitUntil([this] { return !isTaken(KEY_1); }));
    releaseModifiers();
}

TEST_F(SelectionWays, keepTheDigitsOfTheirWindowsWhileOthersComeUp)
{
    open();
    timeUntilDigits();
    WindowOfAnotherProgram first("first", {5, 5, 40, 30});
    ASSERT_TRUE(first.show());
    pressKey(KEY_RIGHT);
    ASSERT_TRUE(says({"began", "moved to middle", "moved to right"}));
    EXPECT_FALSE(isTaken(KEY_5));
    pressKey(KEY_4);
    EXPECT_TRUE(says({"began", "moved to middle", "moved to right", "accepted below"}));
    releaseModifiers();
}

TEST_F(SelectionWays, ringWhereAKeyLeadsNowhere)
{
    open({{KTXShouldBeep, true}, {KTXHWrap, false}});
    BellListener bell;
    beginHeld();
    pressKey(KEY_RIGHT);
    ASSERT_TRUE(says({"began", "moved to middle", "moved to right"}));
    EXPECT_EQ(bell.rings(), 0);
    pressKey(KEY_RIGHT);
    EXPECT_TRUE(waitUntil([&] { return bell.rings() == 1; }));
    pressKey(KEY_LEFT);
    EXPECT_TRUE(says({"began", "moved to middle", "moved to right", "moved to middle"}));
    EXPECT_EQ(bell.rings(), 1);
    cancel();
}

TEST_F(SelectionWays, areSilentWhereTheBellIsNotChosen)
{
    open({{KTXHWrap, false}});
    BellListener bell;
    beginHeld();
    for (const int key : {KEY_RIGHT, KEY_RIGHT, KEY_LEFT})
        pressKey(key);
    EXPECT_TRUE(says({"began", "moved to middle", "moved to right", "moved to middle"}));
    EXPECT_EQ(bell.rings(), 0);
    cancel();
}

TEST_F(SelectionWays, leadOutAsTheyLedInWhereThatIsChosen)
{
    open({{KTXShouldToggle, true}});
    pressModifiersTwice();
    ASSERT_TRUE(says({"began"}));
    pressKey(KEY_RIGHT);
    ASSERT_TRUE(says({"began", "moved to middle"}));
    pressModifiersTwice();
    EXPECT_TRUE(says({"began", "moved to middle", "accepted middle"}));
    EXPECT_TRUE(isActive("middle"));
}

TEST_F(SelectionWays, leadInByOnePressWhereThatIsChosen)
{
    open({{KTXPersistentDoubleClick, false}});
    pressModifiersOnce();
    ASSERT_TRUE(says({"began"}));
    const auto isKeyboardTaken = [this] {
        const bool isFree = other.grabKeyboard();
        if (isFree)
            other.ungrabKeyboard();
        return !isFree;
    };
    ASSERT_TRUE(waitUntil(isKeyboardTaken));
    pressKey(KEY_RIGHT);
    pressKey(KEY_ENTER);
    EXPECT_TRUE(says({"began", "moved to middle", "accepted middle"}));
    EXPECT_TRUE(isActive("middle"));
}

TEST_F(SelectionWays, leadBackToNothingBeforeTheFirstOne)
{
    open();
    pressKey(KEY_ENTER, modifiers());
    ASSERT_TRUE(waitUntil([this] { return !agent.lines().filter("pressed").isEmpty(); }));
    waitForWindowManager();
    EXPECT_EQ(activeWindowTitle(), u"left");
    EXPECT_THAT(steps(), IsEmpty());
    EXPECT_EQ(marksOnScreen(), 0);
    pressKey(KEY_RIGHT, modifiers());
    EXPECT_TRUE(isActive("middle")) << "it goes on working";
}
