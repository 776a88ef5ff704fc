// The real tutorial with the real agent and a window manager, and somebody who does what it says, with the keyboard
// alone.

#include "KTXConstants.h"
#include "OtherClient.h"
#include "ScreenReader.h"
#include "TutorialSession.h"
#include "Wait.h"

#include <linux/input-event-codes.h>

namespace {

const QList<int> controlAndSuper{KEY_LEFTCTRL, KEY_LEFTMETA};

/// The windows' names and what comes between a step's number and their count, in a language.
struct Words
{
    QMap<QString, QString> environment;
    QString of, circle, square, triangle, star, name;
};

const Words english{{}, "of", "Circle", "Square", "Triangle", "Star", "Lumaroo tutorial"};
const Words german{{{"LANGUAGE", "de"}, {"LANG", "de_DE.UTF-8"}, {"LC_ALL", "de_DE.UTF-8"}}, "von", "Kreis", "Quadrat",
    "Dreieck", "Stern", "Einführung in Lumaroo"};

class TutorialByUser : public TutorialSession
{
protected:
    static testing::AssertionResult isAt(int step, int count, const QString &window, const QString &of = "of")
    {
        return isAtStep(QStringLiteral("%1 %2 %3").arg(step).arg(of).arg(count), window);
    }

    /// All steps but the last one, which is skipped, and the end.
    void takeTheCourse(const QList<int> &held, const Words &words)
    {
        ASSERT_TRUE(isAt(1, 6, words.circle, words.of));
        pressKey(KEY_RIGHT, held);
        ASSERT_TRUE(isAt(2, 6, words.triangle, words.of));
        pressKey(KEY_RIGHT, held);
        ASSERT_TRUE(isAt(3, 6, words.square, words.of));
        pressKey(KEY_SLASH, held);
        ASSERT_TRUE(isAt(4, 6, words.circle, words.of));
        changeOnesMind(held);
        ASSERT_TRUE(isAt(5, 6, words.circle, words.of));
        goFurther(held, words);
        ASSERT_TRUE(isAt(6, 6, words.star, words.of));
        pressKey(KEY_PAGEDOWN);
        ASSERT_TRUE(isAtPage(words.name));
        pressKey(KEY_ENTER);
        EXPECT_EQ(tutorial->exitStatus(), 0);
        EXPECT_TRUE(isClosedForGood());
    }

    void changeOnesMind(const QList<int> &held)
    {
        for (const int key : held)
            keyDown(key);
        pressKey(KEY_RIGHT);
        pressKey(KEY_ESC);
        ASSERT_TRUE(waitUntil([this] { return agent->lines().contains("cancelled"); }));
        for (const int key : held)
            keyUp(key);
    }

    void goFurther(const QList<int> &held, const Words &words)
    {
        for (const int key : held)
            keyDown(key);
        pressKey(KEY_RIGHT);
        pressKey(KEY_RIGHT);
        ASSERT_TRUE(agent->waitForLine("moved to " + words.triangle));
        pressKey(KEY_ENTER);
        ASSERT_TRUE(agent->waitForLine("accepted " + words.triangle));
        for (const int key : held)
            keyUp(key);
    }

    /// Another program has each key that is set, with every lock.
    void holdEveryKey()
    {
        for (const int key :
            {KEY_UP, KEY_RIGHT, KEY_DOWN, KEY_LEFT, KEY_SLASH, KEY_COMMA, KEY_S, KEY_W, KEY_SPACE, KEY_ESC, KEY_ENTER})
            ASSERT_TRUE(other.grabKey(key, XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_1));
    }

    bool tellsOfHeldKeys(const ScreenReader &reader)
    {
        return reader.waitForText(tutorial->processId(), "Another program holds Lumaroo's keys") && isAtPage();
    }

    OtherClient other;
};

} // namespace

TEST_F(TutorialByUser, leadsThroughAllStepsInEnglish)
{
    startAgent();
    startTutorial(english.environment);
    takeTheCourse(SelectionSession::modifiers(), english);
}

TEST_F(TutorialByUser, leadsThroughAllStepsInGerman)
{
    startAgent();
    startTutorial(german.environment);
    takeTheCourse(SelectionSession::modifiers(), german);
}

TEST_F(TutorialByUser, beginsWithFreeModifiersWhereAnotherProgramHoldsEveryKey)
{
    holdEveryKey();
    startAgent();
    const ScreenReader reader;
    startTutorial();
    ASSERT_TRUE(tellsOfHeldKeys(reader));
    EXPECT_TRUE(reader.waitForText(tutorial->processId(),
        "With Control+Alt, Lumaroo does not get these keys: ↑ → ↓ ← /. If you hold Control+Super (⌃⌘) instead, all of "
        "Lumaroo's movement keys are free."));
    recorder.clear();
    pressKey(KEY_ENTER); // Use ⌃⌘
    EXPECT_TRUE(announces({changedByAgent()}));
    EXPECT_EQ(stored().value(KTXModifierMask), QVariant(0x1100));
    takeTheCourse(controlAndSuper, english);
}

TEST_F(TutorialByUser, endsWithAWindowThatIsClosedByItsKey)
{
    startAgent();
    startTutorial();
    ASSERT_TRUE(skipTo(6));
    pressKey(KEY_W, SelectionSession::modifiers());
    EXPECT_TRUE(waitUntil([] { return !openWindowTitles().contains("Star"); }));
    EXPECT_TRUE(isAtPage());
    pressKey(KEY_O, {KEY_LEFTALT}); // Once more
    EXPECT_TRUE(isAt(1, 6, "Circle"));
    EXPECT_TRUE(openWindowTitles().contains("Star"));
}

TEST_F(TutorialByUser, goesOnWithoutTheKeysThatAnotherProgramHolds)
{
    ASSERT_TRUE(other.grabKey(KEY_UP, XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_1));
    startAgent();
    const ScreenReader reader;
    startTutorial();
    ASSERT_TRUE(tellsOfHeldKeys(reader));
    pressKey(KEY_PAGEDOWN);
    EXPECT_TRUE(isAt(1, 6, "Circle"));
    EXPECT_FALSE(stored().contains(KTXModifierMask));
}

TEST_F(TutorialByUser, noticesWhenAnotherProgramLetsGoOfTheKeys)
{
    ASSERT_TRUE(other.grabKey(KEY_RIGHT, XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_1));
    startAgent();
    const ScreenReader reader;
    startTutorial();
    ASSERT_TRUE(tellsOfHeldKeys(reader));
    other.ungrabKey(KEY_RIGHT, XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_1);
    pressKey(KEY_A, {KEY_LEFTALT}); // Ask again
    EXPECT_TRUE(isAt(1, 6, "Circle"));
}

TEST_F(TutorialByUser, teachesPressingTwiceWhereOnlyThatBegins)
{
    startAgent({{KTXActivateDoubleClick, true}});
    startTutorial();
    ASSERT_TRUE(isAt(1, 6, "Circle"));
    SelectionSession::pressModifiersTwice();
    pressKey(KEY_RIGHT);
    pressKey(KEY_ENTER);
    ASSERT_TRUE(isAt(2, 6, "Triangle"));
    SelectionSession::pressModifiersTwice();
    pressKey(KEY_RIGHT);
    pressKey(KEY_ENTER);
    ASSERT_TRUE(isAt(3, 6, "Square"));
    SelectionSession::pressModifiersTwice();
    pressKey(KEY_SLASH);
    pressKey(KEY_ENTER);
    ASSERT_TRUE(isAt(4, 6, "Circle"));
    SelectionSession::pressModifiersTwice();
    pressKey(KEY_RIGHT);
    pressKey(KEY_ESC);
    EXPECT_TRUE(isAt(5, 6, "Circle"));
}

TEST_F(TutorialByUser, leavesOutTheEdgeWhereNothingGoesRoundIt)
{
    startAgent({{KTXHWrap, false}});
    startTutorial();
    ASSERT_TRUE(isAt(1, 5, "Circle"));
    pressKey(KEY_PAGEDOWN);
    EXPECT_TRUE(isAt(2, 5, "Square")) << "what is covered comes next";
    pressKey(KEY_PAGEUP);
    EXPECT_TRUE(isAt(1, 5, "Circle"));
}

TEST_F(TutorialByUser, saysWhatWentWrongAndHasItTriedAgain)
{
    const ScreenReader reader;
    startAgent();
    startTutorial();
    ASSERT_TRUE(skipTo(2));
    pressKey(KEY_LEFT, SelectionSession::modifiers());
    EXPECT_TRUE(reader.waitForText(tutorial->processId(), "That led somewhere else. Try once more from here."));
    ASSERT_TRUE(isAt(2, 6, "Triangle"));
    pressKey(KEY_RIGHT, SelectionSession::modifiers());
    EXPECT_TRUE(isAt(3, 6, "Square"));
}

TEST_F(TutorialByUser, teachesAmongTheWindowsOfOtherPrograms)
{
    WindowOfAnotherProgram behind(QStringLiteral("behind"), QRect(0, 0, 1270, 990));
    WindowOfAnotherProgram beside(QStringLiteral("beside"), QRect(700, 300, 500, 500));
    ASSERT_TRUE(behind.show());
    ASSERT_TRUE(beside.show());
    startAgent();
    startTutorial();
    takeTheCourse(SelectionSession::modifiers(), english);
}
