// The keys of the actions, pressed: on the selected window, and on the active one where none is selected.

#include "FileManager.h"
#include "KTXConstants.h"
#include "LivingWindow.h"
#include "NotificationServer.h"
#include "SelectionSession.h"
#include "SettingsProgram.h"
#include "Wait.h"

#include <QDir>
#include <csignal>
#include <gmock/gmock.h>
#include <linux/input-event-codes.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

const QRect lowerRight(500, 400, 300, 200);

class ActionsByUser : public SelectionSession
{
protected:
    /// Beside the four windows, in front of them and active.
    void openWith(LivingWindow &window, const QVariantMap &settings = {})
    {
        open(settings);
        ASSERT_TRUE(window.show());
        turnToWindow(window.id());
        ASSERT_TRUE(waitUntil([&] { return activeWindow() == window.id(); }));
    }
    static void press(int key) { pressKey(key, modifiers()); }
    /// The last line of the agent that begins so, without that.
    QString told(const QString &begin)
    {
        const auto found = [&] {
            for (const QString &line : agent.lines()) {
                if (line.startsWith(begin))
                    return line.mid(begin.size());
            }
            return QString();
        };
        waitUntil([&] { return !found().isEmpty(); });
        return found();
    }
    static QStringList pictures() { return QDir(QDir::homePath() + "/Pictures/Lumaroo").entryList(QDir::Files); }
    void TearDown() override { QDir(QDir::homePath() + "/Pictures").removeRecursively(); }

    NotificationServer server;
};

} // namespace

TEST_F(ActionsByUser, sTakesAPictureOfTheActiveWindowAndShowsIt)
{
    FileManager fileManager;
    LivingWindow window("Painter", lowerRight);
    openWith(window);
    press(KEY_S);
    const QString path = told("picture ");
    EXPECT_TRUE(path.contains(
        QRegularExpression("/Pictures/Lumaroo/Painter \\d{4}-\\d\\d-\\d\\d at \\d\\d\\.\\d\\d\\.\\d\\d\\.png$")));
    const QImage picture(path);
    ASSERT_EQ(picture.size(), lowerRight.size());
    EXPECT_EQ(picture.pixel(17, 99), LivingWindow::colorAt({17, 99}));
    ASSERT_TRUE(waitUntil([this] { return !server.bubbles().isEmpty(); }));
    const NotificationServer::Bubble bubble = server.bubbles().last();
    EXPECT_EQ(bubble.title, u"Picture of “Painter” taken");
    EXPECT_EQ(bubble.text, "It is stored as “" + QFileInfo(path).fileName() + "” in ~/Pictures/Lumaroo.");
    EXPECT_EQ(bubble.actions, QStringList({"button", "Show", "default", "Show"}));
    EXPECT_EQ(bubble.picture, QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded));
    ASSERT_TRUE(waitUntil([&] {
        if (fileManager.shown().isEmpty())
            server.pressButton();
        return !fileManager.shown().isEmpty();
    }));
    EXPECT_EQ(fileManager.shown().first(), bubble.picture);
    EXPECT_THAT(steps(), IsEmpty());
}

TEST_F(ActionsByUser, sShowsThePictureOfTheBubbleThatIsClicked)
{
    FileManager fileManager;
    open();
    press(KEY_S);
    ASSERT_TRUE(waitUntil([this] { return !server.bubbles().isEmpty(); }));
    ASSERT_TRUE(waitUntil([&] {
        if (fileManager.shown().isEmpty())
            server.pressButton(1);
        return !fileManager.shown().isEmpty();
    }));
    EXPECT_EQ(fileManager.shown().first(), server.bubbles().last().picture);
}

TEST_F(ActionsByUser, sTakesAPictureOfTheSelectedWindow)
{
    open();
    holdModifiers();
    pressKey(KEY_RIGHT);
    ASSERT_TRUE(says({"began", "moved to middle"}));
    pressKey(KEY_S);
    EXPECT_FALSE(told("picture ").isEmpty());
    EXPECT_TRUE(says({"began", "moved to middle"})) << "the selection goes on";
    releaseModifiers();
    EXPECT_TRUE(isActive("middle"));
    ASSERT_TRUE(waitUntil([this] { return !server.bubbles().isEmpty(); }));
    EXPECT_EQ(server.bubbles().last().title, u"Picture of “middle” taken");
}

TEST_F(ActionsByUser, sSaysWhereTheFolderCannotBeWrittenTo)
{
    ASSERT_TRUE(QDir().mkpath(QDir::homePath() + "/Pictures/Lumaroo"));
    ASSERT_TRUE(QFile::setPermissions(QDir::homePath() + "/Pictures/Lumaroo", QFile::ReadOwner | QFile::ExeOwner));
    open();
    press(KEY_S);
    EXPECT_EQ(told("action refused: "),
        "The folder " + QDir::homePath() + "/Pictures/Lumaroo cannot be written to, so the picture was not stored.");
    EXPECT_THAT(pictures(), IsEmpty());
    EXPECT_TRUE(waitUntil([this] { return server.bubbles().size() == 1; }));
    QFile::setPermissions(
        QDir::homePath() + "/Pictures/Lumaroo", QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

TEST_F(ActionsByUser, sSaysThatAMinimisedSelectionHasNoPicture)
{
    open({{KTXShowHidden, true}});
    minimise(desktopWindows().at(1).id);
    ASSERT_TRUE(waitUntil([] { return windowStates(desktopWindows().at(1).id).contains("_NET_WM_STATE_HIDDEN"); }));
    holdModifiers();
    for (int press = 0; press < 3; ++press)
        pressKey(KEY_SLASH);
    ASSERT_TRUE(agent.waitForLine("moved to middle"));
    pressKey(KEY_S);
    EXPECT_EQ(told("action refused: "), u"“middle” is minimised, so it has no picture.");
    releaseModifiers();
    EXPECT_TRUE(isActive("middle"));
}

TEST_F(ActionsByUser, wClosesTheActiveWindowAndNothingElse)
{
    LivingWindow window("Closing", lowerRight);
    openWith(window);
    press(KEY_W);
    EXPECT_TRUE(agent.waitForLine("window closed"));
    EXPECT_EQ(openWindowTitles().size(), 4);
    EXPECT_THAT(steps(), IsEmpty());
    EXPECT_THAT(server.bubbles(), IsEmpty());
}

TEST_F(ActionsByUser, wClosesTheSelectedWindowAndGoesOnWithItsNeighbour)
{
    LivingWindow window("closing", {400, 300, 250, 150});
    open();
    ASSERT_TRUE(window.show());
    turnToWindow(desktopWindows().first().id);
    ASSERT_TRUE(isActive("left"));
    holdModifiers();
    pressKey(KEY_RIGHT);
    pressKey(KEY_DOWN);
    ASSERT_TRUE(says({"began", "moved to middle", "moved to closing"}));
    pressKey(KEY_W);
    EXPECT_TRUE(says({"began", "moved to middle", "moved to closing", "moved to middle"}));
    releaseModifiers();
    EXPECT_TRUE(isActive("middle"));
}

TEST_F(ActionsByUser, wSelectsTheDialogThatAsksBack)
{
    LivingWindow window("asking", lowerRight);
    openWith(window);
    LivingWindow question("Save?", {600, 450, 200, 100}, {.parent = window.id()});
    window.whenAskedToClose([&] { EXPECT_TRUE(question.show()); });
    holdModifiers();
    pressKey(KEY_LEFT);
    pressKey(KEY_RIGHT);
    ASSERT_TRUE(agent.waitForLine("moved to asking"));
    pressKey(KEY_W);
    EXPECT_TRUE(agent.waitForLine("moved to Save?"));
    releaseModifiers();
    EXPECT_TRUE(isActive("Save?"));
}

TEST_F(ActionsByUser, wSaysThatAWindowIsStillOpen)
{
    LivingWindow window("Refusing", lowerRight);
    window.whenAskedToClose([] {});
    openWith(window);
    press(KEY_W);
    EXPECT_EQ(told("action refused: "), u"“Refusing” is still open.");
    EXPECT_TRUE(waitUntil([this] { return server.bubbles().size() == 1; }));
    EXPECT_THAT(server.bubbles().last().actions, IsEmpty());
}

TEST_F(ActionsByUser, wAsksBeforeItEndsAProgramThatDoesNotAnswer)
{
    LivingWindow window("Deaf", lowerRight, {.canBeAskedToClose = false});
    openWith(window);
    press(KEY_W);
    ASSERT_TRUE(waitUntil([this] { return server.bubbles().size() == 1; }));
    EXPECT_EQ(server.bubbles().last().text,
        u"“Deaf” does not answer to being closed. Ending its program loses what it has not stored.");
    EXPECT_TRUE(listedWindows().contains(window.id()));
    EXPECT_TRUE(waitUntil([&] {
        server.pressButton();
        return !listedWindows().contains(window.id());
    }));
}

TEST_F(ActionsByUser, spaceShowsThePreviewAndTakesItAway)
{
    LivingWindow window("Shown", lowerRight);
    openWith(window);
    press(KEY_SPACE);
    ASSERT_TRUE(agent.waitForLine("preview shown"));
    EXPECT_TRUE(waitUntil([] { return marksOnScreen() == 1; }));
    press(KEY_SPACE);
    EXPECT_TRUE(agent.waitForLine("preview ended"));
    EXPECT_TRUE(waitUntil([] { return marksOnScreen() == 0; }));
    press(KEY_SPACE);
    ASSERT_TRUE(agent.waitForLine("preview shown", 2));
    window.close();
    EXPECT_TRUE(agent.waitForLine("preview ended", 2));
    EXPECT_TRUE(waitUntil([] { return marksOnScreen() == 0; }));
}

TEST_F(ActionsByUser, spaceInASelectionShowsWhatIsSelectedUntilItEnds)
{
    open();
    holdModifiers();
    pressKey(KEY_RIGHT);
    pressKey(KEY_SPACE);
    ASSERT_TRUE(agent.waitForLine("preview shown"));
    pressKey(KEY_RIGHT);
    ASSERT_TRUE(says({"began", "moved to middle", "moved to right"}));
    EXPECT_FALSE(agent.lines().contains("preview ended")) << "it follows";
    releaseModifiers();
    EXPECT_TRUE(agent.waitForLine("preview ended"));
    EXPECT_TRUE(isActive("right"));
    EXPECT_TRUE(waitUntil([] { return marksOnScreen() == 0; }));
}

TEST_F(ActionsByUser, commaOpensTheSettingsAndBringsThemToTheFront)
{
    open();
    press(KEY_COMMA);
    ASSERT_TRUE(agent.waitForLine("settings opened"));
    ASSERT_TRUE(waitUntil([] { return activeWindowTitle() == "Lumaroo"; }));
    const quint32 settings = activeWindow();
    turnToWindow(desktopWindows().first().id);
    ASSERT_TRUE(isActive("left"));
    press(KEY_COMMA);
    EXPECT_TRUE(agent.waitForLine("settings opened", 2));
    EXPECT_TRUE(waitUntil([&] { return activeWindow() == settings; }));
    askToClose(settings);
    EXPECT_TRUE(waitUntil([&] { return !listedWindows().contains(settings); }));
}

TEST_F(ActionsByUser, sAndWTakeAProgramThatIsStoppedAsItIs)
{
    open();
    const SettingsProgram settings;
    ASSERT_TRUE(settings.waitForWindows(1));
    const QSize size = settings.settledPicture().size();
    settings.signal(SIGSTOP);
    press(KEY_S);
    const QImage picture(told("picture "));
    EXPECT_GE(picture.width(), size.width());
    EXPECT_GE(picture.height(), size.height());
    press(KEY_W);
    EXPECT_TRUE(told("action refused: ").endsWith("is still open."));
    settings.signal(SIGCONT);
}
