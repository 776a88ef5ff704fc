// How the tutorial begins, what it does where something is missing, and how it is left.

#include "AgentBundle.h"
#include "KTXConstants.h"
#include "RunningPrograms.h"
#include "ScreenReader.h"
#include "TutorialSession.h"
#include "Wait.h"

#include <QFile>
#include <csignal>
#include <linux/input-event-codes.h>

namespace {

class TutorialLife : public TutorialSession
{
protected:
    void startBoth()
    {
        startAgent();
        startTutorial();
        ASSERT_TRUE(isAtStep("1 of 6", "Circle"));
    }

    bool says(const QString &text) const { return reader.waitForText(tutorial->processId(), text); }

    ScreenReader reader;
};

} // namespace

TEST_F(TutorialLife, isOverWithEscapeAndThatIsStored)
{
    startBoth();
    EXPECT_FALSE(isClosedForGood());
    pressKey(KEY_ESC);
    EXPECT_EQ(tutorial->exitStatus(), 0);
    EXPECT_TRUE(isClosedForGood());
    EXPECT_EQ(stored().value(KTXFirstLaunch), QVariant(true)) << "nothing else is touched";
}

TEST_F(TutorialLife, isOverWhenAWindowIsClosed)
{
    startBoth();
    askToClose(activeWindow());
    EXPECT_EQ(tutorial->exitStatus(), 0);
    EXPECT_TRUE(isClosedForGood());
}

TEST_F(TutorialLife, storesThatItWasClosedWhenTheSessionEndsIt)
{
    startBoth();
    tutorial->signal(SIGTERM);
    EXPECT_EQ(tutorial->exitStatus(), 0);
    EXPECT_TRUE(isClosedForGood());
}

TEST_F(TutorialLife, staysWhenEscapeEndsASelectionOrComesTooLate)
{
    startBoth();
    ASSERT_TRUE(skipTo(4));
    pressKey(KEY_RIGHT, SelectionSession::modifiers());
    ASSERT_TRUE(agent->waitForLine("accepted Square"));
    ASSERT_TRUE(isAtStep("4 of 6", "Circle"));
    pressKey(KEY_ESC);
    EXPECT_TRUE(says("That came too late. Press Escape while the frame is there."));
    EXPECT_TRUE(tutorial->isRunning());
    pressKey(KEY_ESC);
    EXPECT_EQ(tutorial->exitStatus(), 0);
}

TEST_F(TutorialLife, comesToTheFrontWhenItIsStartedAgain)
{
    startBoth();
    WindowOfAnotherProgram other(QStringLiteral("other"), QRect(100, 100, 600, 600));
    ASSERT_TRUE(other.show());
    turnToWindow(other.id());
    ASSERT_TRUE(isActive("other"));
    TutorialProgram second;
    EXPECT_EQ(second.exitStatus(), 0);
    EXPECT_TRUE(isActive("Circle"));
    const QList<quint32> stacked = stackedWindows();
    for (const DesktopWindow &window : desktopWindowsOfProcess(tutorial->processId()))
        EXPECT_GT(stacked.indexOf(window.id), stacked.indexOf(other.id())) << qPrintable(window.title);
    EXPECT_TRUE(tutorial->isRunning());
}

TEST_F(TutorialLife, isStartedByTheAgentAndBroughtToTheFrontByIt)
{
    startAgent();
    paneAnnounces(KTXLMRunTutorial);
    ASSERT_TRUE(isAtStep("1 of 6", "Circle"));
    WindowOfAnotherProgram other(QStringLiteral("other"), QRect(100, 100, 600, 600));
    ASSERT_TRUE(other.show());
    turnToWindow(other.id());
    ASSERT_TRUE(isActive("other"));
    paneAnnounces(KTXLMRunTutorial);
    EXPECT_TRUE(isActive("Circle"));
    EXPECT_TRUE(waitUntil([] { return processesOf(TutorialProgram::builtExecutable()).size() == 1; }));
}

TEST_F(TutorialLife, turnsTheAgentOnWhereItIsOff)
{
    startTutorial();
    ASSERT_TRUE(isAtPage());
    ASSERT_TRUE(says("Lumaroo is off"));
    pressKey(KEY_ENTER);
    EXPECT_TRUE(isAtStep("1 of 6", "Circle"));
}

TEST_F(TutorialLife, goesOnAtItsStepWhenTheAgentDiesAndIsTurnedOnAgain)
{
    startBoth();
    ASSERT_TRUE(skipTo(2));
    keyDown(KEY_LEFTCTRL);
    keyDown(KEY_LEFTALT);
    pressKey(KEY_RIGHT);
    ASSERT_TRUE(agent->waitForLine("moved to Circle"));
    agent->signal(SIGKILL);
    keyUp(KEY_LEFTALT);
    keyUp(KEY_LEFTCTRL);
    ASSERT_TRUE(says("Lumaroo is off"));
    ASSERT_TRUE(isAtPage());
    pressKey(KEY_ENTER);
    EXPECT_TRUE(isAtStep("2 of 6", "Triangle"));
}

TEST_F(TutorialLife, saysThatTheAgentDoesNotAnswer)
{
    startAgent();
    agent->signal(SIGSTOP);
    startTutorial();
    ASSERT_TRUE(isAtPage());
    EXPECT_TRUE(says("Lumaroo does not answer"));
    agent->signal(SIGCONT);
    pressKey(KEY_ENTER);
    EXPECT_TRUE(isAtStep("1 of 6", "Circle"));
}

TEST_F(TutorialLife, saysThatItNeedsABusAndCanBeLeft)
{
    startTutorial({{"DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere"}});
    ASSERT_TRUE(isAtPage());
    EXPECT_FALSE(isClosedForGood());
    pressKey(KEY_ENTER);
    EXPECT_EQ(tutorial->exitStatus(), 0);
    EXPECT_TRUE(isClosedForGood());
}

TEST_F(TutorialLife, isReachedFromItsWindowsByKeyboard)
{
    startBoth();
    pressKey(KEY_TAB);
    ASSERT_TRUE(isActive("1 of 6 – Lumaroo tutorial"));
    pressKey(KEY_ENTER); // Skip this step
    ASSERT_TRUE(isAtStep("2 of 6", "Triangle"));
    pressKey(KEY_TAB);
    ASSERT_TRUE(isActive("2 of 6 – Lumaroo tutorial"));
    pressKey(KEY_L, {KEY_LEFTALT}); // Leave the tutorial
    EXPECT_EQ(tutorial->exitStatus(), 0);
}
