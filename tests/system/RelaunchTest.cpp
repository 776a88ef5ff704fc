// The real settings make way for newer code: they end, and the real launcher brings them back with the pane.

#include "AgentProgram.h"
#include "InstalledProduct.h"
#include "KTXConstants.h"
#include "KeyPress.h"
#include "PaneBundle.h"
#include "RunningPrograms.h"
#include "Wait.h"

#include <QProcess>
#include <csignal>
#include <linux/input-event-codes.h>

namespace {

constexpr int newVersion = 200;

class Relaunch : public InstalledProduct
{
protected:
    Relaunch() { storeOutside(KTXFirstLaunch, true); }

    void startSettings(const QStringList &arguments, const QString &title = QStringLiteral("Lumaroo"))
    {
        settings = std::make_unique<SettingsProgram>(arguments);
        ASSERT_TRUE(settings->waitForWindows(1));
        ASSERT_EQ(settings->windows().first().title, title);
        settings->settledPicture();
    }

    void announceAgent(int version) { bus.post(KTXLMAgentLaunched, KTXLMAgentID, {{KTXLMAgentVersion, version}}); }

    /// The settings ask whether to leave, since two movement keys are the same, but say nothing of that when shown.
    void makeLeavingAQuestion() const
    {
        const QVariantMap up{{KTXKeycode, QStringLiteral("126")}};
        storeOutside(KTXsuppressHKeysTaken, true);
        storeOutside(KTXUpPref, up);
        storeOutside(KTXDownPref, up);
    }

    qsizetype countOf(const QString &name) { return bus.names().count(name); }

    std::unique_ptr<SettingsProgram> settings;
};

} // namespace

TEST_F(Relaunch, aNewerAgentBringsTheSettingsBackWithTheNewCode)
{
    startSettings({pane()});
    const pid_t before = pid_t(settings->processId());
    install(newVersion);
    AgentProgram agent({"--foreground"}, agentProgram());
    EXPECT_TRUE(comesBack(before));
    EXPECT_EQ(settings->exitStatus(), 0);
    const pid_t after = hosts().value(0);
    // It knows the version now: the same announcement leaves it alone, and what comes after it still arrives.
    bus.clear();
    announceAgent(newVersion);
    bus.post(KTXLMPrefsChanged, KTXLMAgentID);
    EXPECT_TRUE(waitUntil([this] { return countOf(KTXLMPrefsChanged) == 2; }));
    EXPECT_EQ(hosts(), QList<pid_t>{after});
    EXPECT_TRUE(processesOf(launcher()).isEmpty());
    EXPECT_TRUE(agent.isRunning());
}

TEST_F(Relaunch, anAgentThatReplacedItselfBringsTheSettingsBackToo)
{
    AgentProgram agent({"--foreground"}, agentProgram());
    ASSERT_TRUE(agent.waitForLaunch());
    startSettings({pane()});
    const pid_t before = pid_t(settings->processId());
    install(newVersion);
    // As a pane shown elsewhere would say.
    bus.post(KTXLMPrefPaneLaunched, KTXLMAppID);
    EXPECT_TRUE(comesBack(before));
    EXPECT_EQ(agents().size(), 1);
}

TEST_F(Relaunch, aHigherVersionPutInPlaceBeforeThePaneIsOpenedBringsTheSettingsBack)
{
    const PaneBundle other("Other");
    ASSERT_TRUE(QFile::link(other.path(), QFileInfo(pane()).path() + "/Other.prefPane"));
    startSettings({}, QStringLiteral("Settings"));
    const pid_t before = pid_t(settings->processId());
    install(newVersion);
    SettingsProgram request({pane()});
    EXPECT_EQ(request.exitStatus(), 0) << "handed over";
    EXPECT_TRUE(comesBack(before));
}

TEST_F(Relaunch, theVersionThatIsLoadedOrALowerOneLeavesTheSettingsAlone)
{
    startSettings({pane()});
    bus.clear();
    announceAgent(installedVersion());
    announceAgent(-1);
    bus.post(KTXLMAgentLaunched, KTXLMAgentID, {{KTXLMAgentVersion, QStringLiteral("newest")}});
    bus.post(KTXLMPrefsChanged, KTXLMAgentID);
    EXPECT_TRUE(waitUntil([this] { return countOf(KTXLMPrefsChanged) == 2; }));
    EXPECT_TRUE(settings->isRunning());
    EXPECT_TRUE(processesOf(launcher()).isEmpty());
}

TEST_F(Relaunch, threeAnnouncementsInARowEndInOneHost)
{
    startSettings({pane()});
    const pid_t before = pid_t(settings->processId());
    for (int times = 0; times < 3; ++times)
        announceAgent(newVersion);
    EXPECT_TRUE(comesBack(before));
    EXPECT_EQ(settings->exitStatus(), 0);
}

TEST_F(Relaunch, severalLaunchersThatWaitEndInOneHost)
{
    makeLeavingAQuestion();
    startSettings({pane()});
    const pid_t before = pid_t(settings->processId());
    for (int times = 1; times <= 3; ++times) {
        announceAgent(newVersion);
        ASSERT_TRUE(launchersWait(times));
    }
    ASSERT_TRUE(settings->waitForWindows(2));
    pressKey(KEY_Q);
    EXPECT_TRUE(comesBack(before));
    EXPECT_EQ(settings->exitStatus(), 0);
}

TEST_F(Relaunch, aProgramThatWasReplacedMeanwhileIsTheOneThatComesBack)
{
    // A host of its own, so that its file can be replaced as an installer replaces it.
    const QString copy = QFileInfo(pane()).path() + "/Settings.app/Contents/Linux/lumaroo-settings";
    ASSERT_TRUE(QDir().mkpath(QFileInfo(copy).path()));
    ASSERT_TRUE(QFile::copy(HostProgram::builtExecutable(), copy));
    HostProgram host(copy, {pane()}, QProcessEnvironment::systemEnvironment(), "/");
    ASSERT_TRUE(waitUntil([&] { return desktopWindowsOfProcess(host.processId()).size() == 1; }));
    ASSERT_TRUE(QFile::rename(copy, copy + ".old"));
    ASSERT_TRUE(QFile::copy(HostProgram::builtExecutable(), copy));
    announceAgent(newVersion);
    EXPECT_EQ(host.exitStatus(), 0);
    EXPECT_TRUE(waitUntil([&] { return processesOf(copy).size() == 1; }));
    killProcessesOf(copy);
}

TEST_F(Relaunch, settingsThatAreKilledOnTheirWayOutComeBackToo)
{
    makeLeavingAQuestion();
    startSettings({pane()});
    const pid_t before = pid_t(settings->processId());
    announceAgent(newVersion);
    ASSERT_TRUE(settings->waitForWindows(2));
    ASSERT_TRUE(launchersWait(1));
    settings->signal(SIGKILL);
    EXPECT_TRUE(comesBack(before));
}

TEST_F(Relaunch, whoCancelsLeavingKeepsTheSettingsAndTheNextQuitBringsThemBack)
{
    makeLeavingAQuestion();
    startSettings({pane()});
    const pid_t before = pid_t(settings->processId());
    announceAgent(newVersion);
    ASSERT_TRUE(settings->waitForWindows(2));
    pressKey(KEY_ESC);
    ASSERT_TRUE(settings->waitForWindows(1));
    EXPECT_TRUE(launchersWait(1));
    EXPECT_TRUE(settings->isRunning());
    pressKey(KEY_Q, {KEY_LEFTCTRL});
    ASSERT_TRUE(settings->waitForWindows(2));
    pressKey(KEY_Q);
    EXPECT_TRUE(comesBack(before));
}

TEST_F(Relaunch, aLauncherThatCannotBeRunLeavesTheSettingsWithTheAgentOn)
{
    ASSERT_TRUE(QFile::setPermissions(launcher(), QFile::ReadOwner));
    startSettings({pane()});
    const QImage whileOff = settings->settledPicture();
    bus.clear();
    announceAgent(newVersion);
    EXPECT_FALSE(settings->pictureAfterChangeFrom(whileOff).isNull());
    // What is on is asked to end by the switch, and not started.
    pressKey(KEY_L, {KEY_LEFTALT});
    EXPECT_TRUE(waitUntil([this] { return countOf(KTXLMAgentShouldTerminate) == 1; }));
    EXPECT_TRUE(settings->isRunning());
}

TEST_F(Relaunch, withoutALauncherTheSettingsStay)
{
    ASSERT_TRUE(QFile::remove(launcher()));
    startSettings({pane()});
    bus.clear();
    announceAgent(newVersion);
    bus.post(KTXLMPrefsChanged, KTXLMAgentID);
    EXPECT_TRUE(waitUntil([this] { return countOf(KTXLMPrefsChanged) == 2; }));
    // On their way out they would not serve their user any more.
    pressKey(KEY_L, {KEY_LEFTALT});
    EXPECT_TRUE(waitUntil([this] { return countOf(KTXLMAgentShouldTerminate) == 1; }));
    EXPECT_TRUE(settings->isRunning());
}
