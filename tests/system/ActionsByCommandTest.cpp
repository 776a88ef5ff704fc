// The real agent, windows and a window manager, and a script that acts on them.

#include "KTXConstants.h"
#include "LivingWindow.h"
#include "NotificationServer.h"
#include "SelectionSession.h"
#include "Wait.h"

#include <QDir>
#include <gmock/gmock.h>
#include <linux/input-event-codes.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

const QRect lowerRight(500, 400, 300, 200);

class ActionsByCommand : public SelectionSession
{
protected:
    /// Beside the four windows, in front of them and active.
    void openWith(LivingWindow &window)
    {
        open();
        ASSERT_TRUE(window.show());
        turnToWindow(window.id());
        ASSERT_TRUE(waitUntil([&] { return activeWindow() == window.id(); }));
    }
    /// A script's command, while this process's windows live on.
    static ProgramResult command(const QStringList &arguments)
    {
        AgentProgram program(arguments);
        const int status = program.exitStatus();
        return {status, program.lines().join(u'\n').toStdString(), program.errors().toStdString()};
    }
    static testing::AssertionResult does(const QStringList &arguments)
    {
        const ProgramResult result = command(arguments);
        if (result.status == 0 && (result.output + result.errors).empty())
            return testing::AssertionSuccess();
        return testing::AssertionFailure() << result.status << ' ' << result.output << result.errors;
    }
    /// Nothing came of it, for this reason.
    static void refuses(const QStringList &arguments, const std::string &reason)
    {
        const ProgramResult result = command(arguments);
        EXPECT_EQ(result.status, 1);
        EXPECT_EQ(result.output, "");
        EXPECT_EQ(result.errors, "LumarooAgent: " + reason + "\n");
    }
    void TearDown() override { QDir(QDir::homePath() + "/Pictures").removeRecursively(); }

    NotificationServer server;
};

} // namespace

TEST_F(ActionsByCommand, takesAPictureOfTheActiveWindowAndPrintsItsPath)
{
    LivingWindow window("Painter", lowerRight);
    openWith(window);
    const ProgramResult result = command({"--screenshot"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.errors, "");
    const QString path = QString::fromStdString(result.output);
    EXPECT_TRUE(path.startsWith(QDir::homePath() + "/Pictures/Lumaroo/Painter "));
    const QImage picture(path);
    ASSERT_EQ(picture.size(), lowerRight.size());
    EXPECT_EQ(picture.pixel(17, 99), LivingWindow::colorAt({17, 99}));
    EXPECT_TRUE(waitUntil([this] { return server.bubbles().size() == 1; })) << "its user is told as with the key";
    EXPECT_THAT(steps(), IsEmpty());
}

TEST_F(ActionsByCommand, actsOnTheSelectedWindowAndTheSelectionGoesOn)
{
    LivingWindow window("closing", {400, 300, 250, 150});
    open();
    ASSERT_TRUE(window.show());
    turnToWindow(desktopWindows().first().id);
    ASSERT_TRUE(isActive("left"));
    EXPECT_TRUE(does({"--move", "right"}));
    EXPECT_TRUE(does({"--move", "down"}));
    EXPECT_TRUE(QString::fromStdString(command({"--screenshot"}).output).contains("/closing "));
    EXPECT_TRUE(does({"--preview"}));
    EXPECT_TRUE(agent.waitForLine("preview shown"));
    EXPECT_TRUE(does({"--close"}));
    EXPECT_FALSE(listedWindows().contains(window.id())) << "the answer comes when it is done";
    EXPECT_TRUE(says({"began", "moved to middle", "moved to closing", "moved to middle"}));
    EXPECT_TRUE(does({"--accept"}));
    EXPECT_TRUE(isActive("middle"));
    EXPECT_TRUE(agent.waitForLine("preview ended"));
}

TEST_F(ActionsByCommand, showsThePreviewAndTakesItAway)
{
    LivingWindow window("Shown", lowerRight);
    openWith(window);
    EXPECT_TRUE(does({"--preview"}));
    EXPECT_TRUE(waitUntil([] { return marksOnScreen() == 1; }));
    EXPECT_TRUE(does({"--preview"}));
    EXPECT_TRUE(waitUntil([] { return marksOnScreen() == 0; }));
    EXPECT_THAT(agent.lines().filter("preview"), ElementsAre(u"preview shown", u"preview ended"));
}

TEST_F(ActionsByCommand, endsThePreviewOfTheKey)
{
    LivingWindow window("Shown", lowerRight);
    openWith(window);
    pressKey(KEY_SPACE, modifiers());
    ASSERT_TRUE(agent.waitForLine("preview shown"));
    EXPECT_TRUE(does({"--preview"}));
    EXPECT_TRUE(agent.waitForLine("preview ended"));
}

TEST_F(ActionsByCommand, saysThatAWindowIsStillOpen)
{
    LivingWindow window("Refusing", lowerRight);
    window.whenAskedToClose([] {});
    openWith(window);
    refuses({"--close"}, "“Refusing” is still open.");
    EXPECT_TRUE(waitUntil([this] { return server.bubbles().size() == 1; }));
}

TEST_F(ActionsByCommand, turnsToNoWindowThatIsBeingClosedAlsoOnceAnotherHas)
{
    LivingWindow first("First", lowerRight), second("Second", {820, 400, 150, 100});
    int asked = 0;
    for (LivingWindow *window : {&first, &second})
        window->whenAskedToClose([&] { ++asked; });
    ASSERT_NO_FATAL_FAILURE(openWith(first));
    ASSERT_TRUE(second.show());
    turnToWindow(first.id());
    ASSERT_TRUE(waitUntil([&] { return activeWindow() == first.id(); }));
    EXPECT_TRUE(does({"--move", "right"}));
    ASSERT_TRUE(says({"began", "moved to Second"}));
    EXPECT_TRUE(does({"--move", "left"}));
    AgentProgram closingFirst({"--close"});
    ASSERT_TRUE(waitUntil([&] { return asked == 1; }));
    EXPECT_TRUE(does({"--move", "right"}));
    AgentProgram closingSecond({"--close"});
    ASSERT_TRUE(waitUntil([&] { return asked == 2; }));
    first.close();
    EXPECT_EQ(closingFirst.exitStatus(), 0);
    refuses({"--accept"}, "the selected window is being closed");
    EXPECT_EQ(steps().last(), "cancelled");
    EXPECT_EQ(closingSecond.exitStatus(), 1);
}

TEST_F(ActionsByCommand, saysThatAWindowAsksBack)
{
    LivingWindow window("asking", lowerRight);
    openWith(window);
    LivingWindow question("Save?", {600, 450, 200, 100}, {.parent = window.id()});
    window.whenAskedToClose([&] { EXPECT_TRUE(question.show()); });
    refuses({"--close"}, "“asking” asks something before it closes.");
    EXPECT_THAT(server.bubbles(), IsEmpty());
}

TEST_F(ActionsByCommand, saysThatAMinimisedSelectionHasNoPicture)
{
    open({{KTXShowHidden, true}});
    minimise(desktopWindows().at(1).id);
    ASSERT_TRUE(waitUntil([] { return windowStates(desktopWindows().at(1).id).contains("_NET_WM_STATE_HIDDEN"); }));
    for (int press = 0; press < 3; ++press)
        EXPECT_TRUE(does({"--move", "under"}));
    ASSERT_TRUE(agent.waitForLine("moved to middle"));
    refuses({"--screenshot"}, "“middle” is minimised, so it has no picture.");
    refuses({"--preview"}, "“middle” is minimised, so it has no picture.");
    EXPECT_TRUE(does({"--cancel"}));
}

TEST_F(ActionsByCommand, answersEachOfTwoThatComeTogether)
{
    LivingWindow window("Refusing", lowerRight);
    window.whenAskedToClose([] {});
    openWith(window);
    AgentProgram closing({"--close"}), picture({"--screenshot"});
    EXPECT_EQ(picture.exitStatus(), 0);
    EXPECT_THAT(picture.lines(), testing::SizeIs(1));
    EXPECT_EQ(closing.exitStatus(), 1);
    EXPECT_EQ(closing.errors(), u"LumarooAgent: “Refusing” is still open.\n");
}

TEST_F(ActionsByCommand, isToldWhenTheAgentEndsMeanwhile)
{
    LivingWindow window("Refusing", lowerRight);
    bool wasAsked = false;
    window.whenAskedToClose([&] { wasAsked = true; });
    openWith(window);
    AgentProgram closing({"--close"});
    ASSERT_TRUE(waitUntil([&] { return wasAsked; }));
    agent.signal(SIGKILL);
    EXPECT_EQ(closing.exitStatus(), 1);
    EXPECT_EQ(closing.errors(), u"LumarooAgent: the running agent does not answer\n");
}
