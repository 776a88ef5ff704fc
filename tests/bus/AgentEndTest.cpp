// How the agent ends: asked by the pane, by its command line, by signals, or because the session does.

#include "AgentBundle.h"
#include "AgentSession.h"
#include "KTXConstants.h"
#include "Wait.h"

#include <QDBusConnectionInterface>
#include <QFile>
#include <csignal>
#include <list>
#include <optional>

namespace {

class RunningAgent : public AgentSessionAfterFirstLaunch
{
protected:
    void SetUp() override { ASSERT_TRUE(waitForLaunchOf(agent)); }

    /// As a pane that is opening, and then finds no mark of a first launch in its store.
    void askAsOnAFirstRun()
    {
        paneAnnounces(KTXLMPrefPaneLaunched);
        paneAnnounces(KTXLMAgentShouldTerminate);
    }
    /// What was announced after a first run's request, ours left out.
    bool startsAnew()
    {
        return waitUntil([this] { return recorder.names().contains(KTXLMAgentLaunched); })
            && recorder.names().mid(2).first() == KTXLMAgentIsTerminating && agent.isRunning();
    }

    AgentProgram agent;
};

bool nameIsOwned()
{
    return QDBusConnection::sessionBus().interface()->isServiceRegistered(KTXLMAgentID);
}

BusNotification shouldTerminate()
{
    return {KTXLMAgentShouldTerminate, KTXLMAppID, {}, true};
}

} // namespace

TEST_F(RunningAgent, quitsWhenThePaneAsksAndSaysSoFirst)
{
    paneAnnounces(KTXLMAgentShouldTerminate);
    EXPECT_EQ(agent.exitStatus(), 0);
    EXPECT_EQ(recorder.notifications(), QList({shouldTerminate(), terminating()}));
    EXPECT_FALSE(nameIsOwned());
}

TEST_F(RunningAgent, startsAnewForAPaneThatFindsNothingStored)
{
    const qint64 process = agent.processId();
    ASSERT_TRUE(QFile::remove(settingsPath()));
    askAsOnAFirstRun();
    EXPECT_TRUE(announces({{KTXLMPrefPaneLaunched, KTXLMAppID, {}, true}, shouldTerminate(), terminating(),
        changedByAgent(), launched()}));
    EXPECT_EQ(stored().keys(), QStringList({KTXFirstLaunch, KTXWelcomeShown}));
    EXPECT_TRUE(agent.isRunning());
    EXPECT_EQ(agent.processId(), process);
    EXPECT_TRUE(nameIsOwned());
}

TEST_F(RunningAgent, startsAnewForAPaneThatFindsTheSettingsDamaged)
{
    putSettingsFile("damaged");
    askAsOnAFirstRun();
    EXPECT_TRUE(startsAnew());
}

TEST_F(RunningAgent, startsAnewForAPaneThatCannotReadTheSettings)
{
    ASSERT_TRUE(QFile::setPermissions(settingsPath(), {}));
    askAsOnAFirstRun();
    EXPECT_TRUE(startsAnew());
    // By now it sees a mark of its own that it could not store, and the pane does not.
    recorder.clear();
    askAsOnAFirstRun();
    EXPECT_TRUE(startsAnew());
}

TEST_F(RunningAgent, endsForAPaneThatFindsItsMark)
{
    askAsOnAFirstRun();
    EXPECT_EQ(agent.exitStatus(), 0);
    EXPECT_FALSE(nameIsOwned());
}

TEST_F(RunningAgent, endsForAPaneThatHasBeenOpenWhateverIsStored)
{
    paneAnnounces(KTXLMPrefPaneLaunched);
    paneAnnounces(KTXLMPrefsChanged);
    ASSERT_TRUE(agent.waitForLine("settings read (2)"));
    ASSERT_TRUE(QFile::remove(settingsPath()));
    paneAnnounces(KTXLMAgentShouldTerminate);
    EXPECT_EQ(agent.exitStatus(), 0);
}

TEST_F(AgentSessionAfterFirstLaunch, anAgentThatCannotStartAnewGoesOn)
{
    const AgentBundle bundle(120);
    AgentProgram agent({"--foreground"}, bundle.executable());
    ASSERT_TRUE(waitForLaunchOf(agent));
    ASSERT_TRUE(QFile::remove(settingsPath()));
    ASSERT_TRUE(QFile::remove(bundle.executable()));
    paneAnnounces(KTXLMPrefPaneLaunched);
    recorder.clear();
    paneAnnounces(KTXLMAgentShouldTerminate);
    EXPECT_TRUE(announces({shouldTerminate(), terminating(), launched(120)}));
    EXPECT_TRUE(agent.isRunning());
    EXPECT_TRUE(agent.errors().contains("going on with version 120")) << agent.errors().toStdString();
}

TEST_F(RunningAgent, announcesItsEndOnceHoweverOftenItIsAsked)
{
    agent.signal(SIGSTOP);
    for (int time = 0; time < 3; ++time)
        paneAnnounces(KTXLMAgentShouldTerminate);
    agent.signal(SIGTERM);
    agent.signal(SIGCONT);
    EXPECT_EQ(agent.exitStatus(), 0);
    EXPECT_EQ(recorder.names().count(KTXLMAgentIsTerminating), 1);
}

TEST_F(RunningAgent, announcesItsEndWhenASignalEndsIt)
{
    for (const int number : {SIGTERM, SIGINT, SIGHUP}) {
        AgentProgram *current = &agent;
        std::optional<AgentProgram> another;
        if (!agent.isRunning()) {
            another.emplace();
            ASSERT_TRUE(waitForLaunchOf(*another));
            current = &*another;
        }
        recorder.clear();
        current->signal(number);
        EXPECT_EQ(current->exitStatus(), 0);
        EXPECT_EQ(recorder.notifications(), QList({terminating()})) << number;
    }
}

TEST_F(RunningAgent, goesOnWhenAStrangerTellsItToQuit)
{
    recorder.post(KTXLMAgentShouldTerminate, "com.example.stranger");
    recorder.post(KTXLMAgentShouldTerminate, {});
    recorder.post(KTXLMAgentShouldTerminate, KTXLMAgentID);
    paneAnnounces(KTXLMPrefsChanged);
    EXPECT_TRUE(agent.waitForLine("settings read (2)"));
    EXPECT_TRUE(agent.isRunning());
    EXPECT_FALSE(recorder.names().contains(KTXLMAgentIsTerminating));
}

TEST_F(RunningAgent, quitsOnItsCommandLineWhichWaitsForTheEnd)
{
    const ProgramResult result = runAgent({"--quit"});
    EXPECT_FALSE(nameIsOwned());
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output + result.errors, "");
    EXPECT_EQ(agent.exitStatus(), 0);
    EXPECT_EQ(recorder.notifications(), QList({terminating()}));
    EXPECT_EQ(agent.lines().last(), "terminating");
}

TEST_F(RunningAgent, canBeStartedAgainRightAfterItWasAskedToQuit)
{
    std::list<AgentProgram> next;
    for (int time = 0; time < 10; ++time) {
        recorder.clear();
        paneAnnounces(KTXLMAgentShouldTerminate);
        ASSERT_TRUE(waitUntil([this] { return recorder.names().contains(KTXLMAgentIsTerminating); }));
        next.emplace_back();
        ASSERT_TRUE(next.back().waitForLaunch()) << next.back().errors().toStdString();
    }
}

TEST_F(AgentSessionAfterFirstLaunch, askingNobodyToQuitIsDoneAndSaidSo)
{
    const ProgramResult result = runAgent({"--quit"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.errors, "LumarooAgent: no agent runs\n");
}

TEST_F(RunningAgent, thatDoesNotAnswerIsNotWaitedForWithoutEnd)
{
    agent.signal(SIGSTOP);
    const ProgramResult result = runAgent({"--quit"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors, "LumarooAgent: the running agent does not answer\n");
    agent.signal(SIGCONT);
}
