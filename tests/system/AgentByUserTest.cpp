// The real settings, the real agent and a user who turns it on and off by keyboard and mouse.

#include "AgentProgram.h"
#include "InstalledProduct.h"
#include "KTXConstants.h"
#include "KeyPress.h"
#include "RunningPrograms.h"
#include "ScreenReader.h"
#include "SecondBus.h"
#include "Wait.h"

#include <QRegion>
#include <linux/input-event-codes.h>

namespace {

constexpr int behaviourPage = 2;

class AgentByUser : public InstalledProduct
{
protected:
    /// Starts the settings with the pane and waits for the agent that its first run starts to be shown.
    void firstRun()
    {
        settings = std::make_unique<SettingsProgram>(QStringList{pane()});
        ASSERT_TRUE(settings->waitForWindows(1));
        ASSERT_TRUE(agentStarts());
        ASSERT_TRUE(waitUntil([this] { return bus.names().contains(KTXLMAgentLaunched); }));
        whileOn = settings->settledPicture();
    }

    /// Opens the settings anew where they find no mark of a first launch, and looks at what comes of the agent that
    /// runs.
    void openAgainAsOnAFirstRun()
    {
        const QList<pid_t> before = agents();
        bus.clear();
        settings = std::make_unique<SettingsProgram>(QStringList{pane()});
        ASSERT_TRUE(settings->waitForWindows(1));
        ASSERT_TRUE(waitUntil([this] { return bus.names().contains(KTXLMAgentLaunched); }));
        EXPECT_EQ(bus.names().count(KTXLMAgentShouldTerminate), 1) << "the pane found a first run";
        EXPECT_TRUE(reader.waitForText(settings->processId(), "Lumaroo Enabled")) << "it is shown on";
        EXPECT_EQ(agents(), before);
    }
    /// Returns once the agent, too, is done with what the settings have announced on their way out.
    void quitSettings()
    {
        pressKey(KEY_Q, {KEY_LEFTCTRL});
        ASSERT_EQ(settings->exitStatus(), 0);
        ASSERT_FALSE(runningAgent().isEmpty());
    }

    void pressSwitch() { pressKey(KEY_L, {KEY_LEFTALT}); }

    /// What differs between two pictures of the page.
    static QRect changedPlace(const QImage &picture, const QImage &other)
    {
        QRect place;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                if (picture.pixel(x, y) != other.pixel(x, y))
                    place |= QRect(x, y, 1, 1);
            }
        }
        return place;
    }

    /// Where the page shows the agent's state, of two pictures with another one each. What the agent says of its keys
    /// stands below.
    static QRect placeOfState(const QImage &picture, const QImage &other)
    {
        constexpr int nextLine = 6;
        QRect place;
        for (int y = 0; y < picture.height(); ++y) {
            const QRect row(0, y, picture.width(), 1);
            const QRect change = changedPlace(picture.copy(row), other.copy(row));
            if (!place.isEmpty() && y - place.bottom() > nextLine)
                break;
            if (!change.isEmpty())
                place |= change.translated(0, y);
        }
        return place;
    }

    ScreenReader reader;
    std::unique_ptr<SettingsProgram> settings;
    QImage whileOn;
};

} // namespace

TEST_F(AgentByUser, theFirstRunStartsTheAgentAndShowsItOn)
{
    firstRun();
    EXPECT_EQ(bus.names().count(KTXLMAgentShouldTerminate), 1) << "one from before would have been asked to go";
    EXPECT_EQ(runningAgentsSetting(KTXFirstLaunch), QJsonValue(true));
    killProcess(agents().first());
    settings = std::make_unique<SettingsProgram>(QStringList{pane()});
    ASSERT_TRUE(settings->waitForWindows(1));
    EXPECT_NE(settings->settledPicture(), whileOn) << "what was shown was the agent's being on";
}

TEST_F(AgentByUser, theSwitchTurnsTheAgentOffAndOnAgainByKeyboard)
{
    firstRun();
    pressSwitch();
    EXPECT_TRUE(agentEnds());
    const QImage whileOff = settings->pictureAfterChangeFrom(whileOn);
    ASSERT_FALSE(whileOff.isNull());
    bus.clear();
    pressSwitch();
    EXPECT_TRUE(agentStarts());
    EXPECT_TRUE(waitUntil([this] { return bus.names().contains(KTXLMAgentLaunched); }));
    const QImage whileOnAgain = settings->settledPicture();
    // The switch has the focus now; apart from it and its frame the page is as it was.
    const QRect change = changedPlace(whileOn, whileOnAgain);
    EXPECT_LT(change.width(), changedPlace(whileOff, whileOnAgain).width()) << "the line is back";
    pressSwitch();
    EXPECT_TRUE(agentEnds());
    EXPECT_TRUE(waitUntil([&] { return settings->settledPicture() == whileOff; }));
}

TEST_F(AgentByUser, theSwitchTurnsTheAgentOffAndOnAgainByMouse)
{
    firstRun();
    pressSwitch();
    ASSERT_TRUE(agentEnds());
    const QRect place = placeOfState(whileOn, settings->pictureAfterChangeFrom(whileOn));
    ASSERT_FALSE(place.isEmpty());
    // The switch stands at the end of the line.
    const QPoint onSwitch(place.right() - place.height() / 2, place.center().y());
    const QPoint onScreen = onSwitch + settings->windows().first().position;
    bus.clear();
    clickAt(onScreen);
    EXPECT_TRUE(waitUntil([this] { return bus.names().contains(KTXLMAgentLaunched); }));
    clickAt(onScreen);
    EXPECT_TRUE(agentEnds());
}

TEST_F(AgentByUser, whatTheAgentsSideChangesShowsUp)
{
    firstRun();
    QImage shown = whileOn;
    for (int page = 0; page < behaviourPage; ++page) {
        pressKey(KEY_TAB, {KEY_LEFTCTRL});
        shown = settings->pictureAfterChangeFrom(shown);
    }
    const ProgramResult result = runAgent({"--set", KTXHWrap, "-bool", "false"}, agentProgram());
    EXPECT_EQ(result.status, 0) << result.errors;
    const QImage changed = settings->pictureAfterChangeFrom(shown);
    EXPECT_FALSE(changed.isNull());
    EXPECT_EQ(runningAgentsSetting(KTXHWrap), QJsonValue(false));
}

TEST_F(AgentByUser, theAgentStaysOnWhenTheSettingsQuit)
{
    firstRun();
    const QList<pid_t> running = agents();
    pressKey(KEY_Q, {KEY_LEFTCTRL});
    EXPECT_EQ(settings->exitStatus(), 0);
    EXPECT_EQ(agents(), running);
    SettingsProgram again({pane()});
    ASSERT_TRUE(again.waitForWindows(1));
    EXPECT_TRUE(waitUntil([&] { return again.settledPicture() == whileOn; })) << "it is shown on at once";
    EXPECT_EQ(agents(), running);
}

TEST_F(AgentByUser, anAgentThatWasKilledIsShownOffAtTheNextShowingAndCanBeTurnedOn)
{
    firstRun();
    killProcess(agents().first());
    const QImage afterwards = settings->settledPicture();
    pressKey(KEY_Q, {KEY_LEFTCTRL});
    ASSERT_EQ(settings->exitStatus(), 0);
    settings = std::make_unique<SettingsProgram>(QStringList{pane()});
    ASSERT_TRUE(settings->waitForWindows(1));
    const QRect state = placeOfState(whileOn, settings->settledPicture());
    ASSERT_FALSE(state.isEmpty());
    EXPECT_EQ(afterwards.copy(state), whileOn.copy(state)) << "nobody told";
    pressSwitch();
    EXPECT_TRUE(agentStarts());
}

TEST_F(AgentByUser, anAgentOfAnotherSessionIsShownOffAndLeftAlone)
{
    const SecondBus otherBus;
    storeOutside(KTXFirstLaunch, true);
    AgentProgram another({"--foreground"}, agentProgram(), otherBus.environment());
    ASSERT_TRUE(another.waitForLaunch());
    settings = std::make_unique<SettingsProgram>(QStringList{pane()});
    ASSERT_TRUE(settings->waitForWindows(1));
    settings->settledPicture();
    pressSwitch();
    EXPECT_TRUE(agentStarts());
    EXPECT_NE(agents(), QList<pid_t>{pid_t(another.processId())});
    EXPECT_TRUE(another.isRunning());
}

TEST_F(AgentByUser, anAgentThatRunsIsOnAfterTheSettingsFileWasDeleted)
{
    firstRun();
    quitSettings();
    ASSERT_TRUE(QFile::remove(settingsFile()));
    openAgainAsOnAFirstRun();
    EXPECT_EQ(runningAgentsSetting(KTXFirstLaunch), QJsonValue(true));
}

TEST_F(AgentByUser, anAgentThatRunsIsOnAfterTheSettingsFileWasDamaged)
{
    firstRun();
    quitSettings();
    QFile file(settingsFile());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("damaged");
    file.close();
    openAgainAsOnAFirstRun();
    EXPECT_EQ(runningAgentsSetting(KTXFirstLaunch), QJsonValue(true));
}

TEST_F(AgentByUser, anAgentThatRunsIsOnWhileTheSettingsFileCannotBeRead)
{
    firstRun();
    quitSettings();
    ASSERT_TRUE(QFile::setPermissions(settingsFile(), {}));
    openAgainAsOnAFirstRun();
    quitSettings();
    openAgainAsOnAFirstRun();
}

TEST_F(AgentByUser, aMissingAgentLeavesTheSettingsUsable)
{
    ASSERT_TRUE(QDir(pane() + "/Contents/Resources/LumarooAgent.app").removeRecursively());
    SettingsProgram program({pane()});
    ASSERT_TRUE(program.waitForWindows(1));
    EXPECT_EQ(program.windows().first().title, "Lumaroo");
    pressKey(KEY_Q, {KEY_LEFTCTRL});
    EXPECT_EQ(program.exitStatus(), 0);
}

TEST_F(AgentByUser, withoutASessionBusTheSettingsSayThatItIsOff)
{
    storeOutside(KTXFirstLaunch, true);
    SettingsProgram withBus({pane()});
    ASSERT_TRUE(withBus.waitForWindows(1));
    const QImage whileOff = withBus.settledPicture();
    pressKey(KEY_Q, {KEY_LEFTCTRL});
    ASSERT_EQ(withBus.exitStatus(), 0);

    const QByteArray address = qgetenv("DBUS_SESSION_BUS_ADDRESS");
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/no/such/bus");
    SettingsProgram withoutBus({pane()});
    EXPECT_TRUE(withoutBus.waitForWindows(1));
    EXPECT_EQ(withoutBus.settledPicture(), whileOff);
    pressSwitch();
    EXPECT_FALSE(withoutBus.pictureAfterChangeFrom(whileOff).isNull()) << "the switch stays as the user left it";
    EXPECT_TRUE(agentEnds()) << "it cannot be found without a bus, and ends";
    EXPECT_TRUE(withoutBus.isRunning());
    qputenv("DBUS_SESSION_BUS_ADDRESS", address);
}
