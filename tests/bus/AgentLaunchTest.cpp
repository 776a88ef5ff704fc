// How the agent comes up: what it says, what it writes, and that there is one only.

#include "AgentSession.h"
#include "KTXConstants.h"
#include "Wait.h"

#include <QDBusConnectionInterface>
#include <QDir>
#include <csignal>
#include <optional>

namespace {

using Agent = AgentSessionAfterFirstLaunch;
using AgentForTheFirstTime = AgentSession;

const std::string runsAlready = "LumarooAgent: an agent runs already\n";

/// Owns the agent's name as a process would that says nothing, unless told.
class StuckAgent
{
public:
    StuckAgent()
    {
        EXPECT_TRUE(connection_->registerVirtualObject("/", &silence_, QDBusConnection::SubPath));
        EXPECT_TRUE(connection_->registerService(KTXLMAgentID));
    }
    ~StuckAgent() { end(); }

    bool wasAsked() const { return silence_.wasAsked; }
    void giveNameBack() { connection_->unregisterService(KTXLMAgentID); }
    void end()
    {
        connection_.reset();
        QDBusConnection::disconnectFromBus("stuck");
    }

private:
    class Silence : public QDBusVirtualObject
    {
    public:
        QString introspect(const QString &) const override { return {}; }
        bool handleMessage(const QDBusMessage &, const QDBusConnection &) override { return wasAsked = true; }
        bool wasAsked = false;
    };
    std::optional<QDBusConnection> connection_ = QDBusConnection::connectToBus(QDBusConnection::SessionBus, "stuck");
    Silence silence_;
};

bool nameIsOwned()
{
    return QDBusConnection::sessionBus().interface()->isServiceRegistered(KTXLMAgentID);
}

QProcessEnvironment withoutBus()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere/bus");
    return environment;
}

} // namespace

TEST_F(Agent, announcesItselfWithItsVersion)
{
    const AgentProgram agent;
    EXPECT_GT(builtVersion(), 0);
    EXPECT_TRUE(announces({launched()}));
    EXPECT_TRUE(nameIsOwned());
}

TEST_F(Agent, carriesItsIdentifierAlsoWhenItIsStartedByHand)
{
    QProcessEnvironment byHand = QProcessEnvironment::systemEnvironment();
    byHand.remove("LUMAROO_BUNDLE_IDENTIFIER");
    AgentProgram agent({"--foreground"}, AgentProgram::builtExecutable(), byHand);
    ASSERT_TRUE(agent.waitForLaunch());
    QFile variables(QString("/proc/%1/environ").arg(agent.processId()));
    ASSERT_TRUE(variables.open(QIODevice::ReadOnly));
    EXPECT_TRUE(variables.readAll().split('\0').contains("LUMAROO_BUNDLE_IDENTIFIER=com.quorvane.LumarooAgent"));
}

TEST_F(Agent, leavesTheSettingsAloneWhenItWasStartedBefore)
{
    for (const QVariant &mark : {QVariant(false), QVariant(QString()), QVariant(QVariantMap())}) {
        recorder.clear();
        store({{KTXFirstLaunch, mark}});
        AgentProgram agent;
        EXPECT_TRUE(announces({launched()}));
        EXPECT_EQ(stored(), QVariantMap({{KTXFirstLaunch, mark}}));
    }
}

TEST_F(AgentForTheFirstTime, marksThatItWasStartedAndSaysSo)
{
    const AgentProgram agent;
    EXPECT_TRUE(announces({changedByAgent(), launched()}));
    EXPECT_EQ(stored().keys(), QStringList({KTXFirstLaunch, KTXWelcomeShown}));
    EXPECT_TRUE(runningAgentsSetting(KTXFirstLaunch).toBool());
}

TEST_F(AgentForTheFirstTime, marksItAgainWhenThePaneOverwroteTheMark)
{
    const AgentProgram agent;
    ASSERT_TRUE(announces({changedByAgent(), launched()}));
    recorder.clear();
    store({{KTXAnimate, true}});
    paneAnnounces(KTXLMPrefsChanged);
    EXPECT_TRUE(announces({{KTXLMPrefsChanged, KTXLMAppID, {}, true}, changedByAgent()}));
    EXPECT_EQ(stored(), QVariantMap({{KTXAnimate, true}, {KTXFirstLaunch, true}, {KTXWelcomeShown, true}}));
}

TEST_F(AgentForTheFirstTime, announcesItselfAlsoWhenNothingCanBeWritten)
{
    ASSERT_TRUE(QDir(configFolder()).mkdir("lumaroo"));
    const QString folder = configFolder() + "/lumaroo";
    ASSERT_TRUE(QFile::setPermissions(folder, QFile::ReadOwner | QFile::ExeOwner));
    {
        AgentProgram agent;
        EXPECT_TRUE(announces({launched()}));
        EXPECT_TRUE(agent.errors().contains("com.quorvane.Lumaroo")) << agent.errors().toStdString();
    }
    QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    EXPECT_TRUE(stored().isEmpty());
}

TEST_F(AgentForTheFirstTime, marksItAtTheNextChangeWhenNothingCouldBeWrittenBefore)
{
    ASSERT_TRUE(QDir(configFolder()).mkdir("lumaroo"));
    const QString folder = configFolder() + "/lumaroo";
    ASSERT_TRUE(QFile::setPermissions(folder, QFile::ReadOwner | QFile::ExeOwner));
    const AgentProgram agent;
    ASSERT_TRUE(announces({launched()}));
    QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    recorder.clear();
    paneAnnounces(KTXLMPrefsChanged);
    EXPECT_TRUE(announces({{KTXLMPrefsChanged, KTXLMAppID, {}, true}, changedByAgent()}));
    EXPECT_EQ(stored().keys(), QStringList({KTXFirstLaunch, KTXWelcomeShown}));
}

TEST_F(Agent, aSecondOneEndsWithALineAndWithoutAWordToThePane)
{
    AgentProgram first;
    ASSERT_TRUE(waitForLaunchOf(first));
    for (const QStringList &arguments : {QStringList(), QStringList("--foreground")}) {
        const ProgramResult second = runAgent(arguments);
        EXPECT_EQ(second.status, 0);
        EXPECT_EQ(second.output, "");
        EXPECT_EQ(second.errors, runsAlready);
    }
    EXPECT_TRUE(recorder.notifications().isEmpty());
    EXPECT_TRUE(first.isRunning());
}

TEST_F(Agent, ofSeveralStartedAtOnceOneRuns)
{
    std::vector<std::unique_ptr<AgentProgram>> agents(5);
    for (auto &agent : agents)
        agent = std::make_unique<AgentProgram>();
    const auto running = [&agents] {
        return std::count_if(agents.begin(), agents.end(), [](const auto &agent) { return agent->isRunning(); });
    };
    EXPECT_TRUE(waitUntil([&] { return running() == 1; }));
    EXPECT_TRUE(announces({launched()}));
    EXPECT_EQ(running(), 1);
    for (const auto &agent : agents)
        EXPECT_EQ(agent->errors().toStdString(), agent->isRunning() ? noDisplayForHotKeys : runsAlready);
}

TEST_F(Agent, startsAtOnceAfterOneThatWasKilled)
{
    AgentProgram first;
    ASSERT_TRUE(waitForLaunchOf(first));
    first.signal(SIGKILL);
    EXPECT_EQ(first.exitStatus(), -1);
    const AgentProgram second;
    EXPECT_TRUE(announces({launched()}));
}

TEST_F(Agent, waitsForOneThatHasAnnouncedItsEnd)
{
    StuckAgent leaving;
    AgentProgram agent;
    ASSERT_TRUE(waitUntil([&] { return leaving.wasAsked(); }));
    recorder.post(KTXLMAgentIsTerminating, KTXLMAgentID);
    recorder.clear();
    EXPECT_TRUE(agent.isRunning());
    leaving.giveNameBack();
    EXPECT_TRUE(announces({launched()}));
}

TEST_F(Agent, takesOverFromOneThatGivesTheNameBackWithoutAnAnswer)
{
    StuckAgent leaving;
    const AgentProgram agent;
    ASSERT_TRUE(waitUntil([&] { return leaving.wasAsked(); }));
    leaving.giveNameBack();
    EXPECT_TRUE(announces({launched()}));
}

TEST_F(Agent, takesOverFromOneThatEndsWithoutAnAnswer)
{
    StuckAgent leaving;
    AgentProgram agent;
    ASSERT_TRUE(waitUntil([&] { return leaving.wasAsked(); }));
    leaving.end();
    EXPECT_TRUE(announces({launched()})) << agent.errors().toStdString();
}

TEST_F(Agent, givesUpWaitingForOneThatDoesNotEnd)
{
    const StuckAgent leaving;
    AgentProgram agent;
    ASSERT_TRUE(waitUntil([&] { return leaving.wasAsked(); }));
    recorder.post(KTXLMAgentIsTerminating, KTXLMAgentID);
    EXPECT_EQ(agent.exitStatus(), 1);
    EXPECT_EQ(agent.errors(), "LumarooAgent: the agent that ran has announced its end, but does not end\n");
}

TEST_F(Agent, givesUpBesideOneThatDoesNotAnswer)
{
    const StuckAgent stuck;
    AgentProgram agent;
    EXPECT_EQ(agent.exitStatus(), 1);
    EXPECT_EQ(agent.errors(), "LumarooAgent: an agent runs already, but does not answer\n");
    EXPECT_TRUE(recorder.notifications().isEmpty());
}

TEST_F(Agent, saysThatThereIsNoSessionBus)
{
    AgentProgram agent({}, AgentProgram::builtExecutable(), withoutBus());
    EXPECT_EQ(agent.exitStatus(), 1);
    EXPECT_EQ(agent.errors(), "LumarooAgent: there is no session bus to reach the settings window on; not started\n");
}

TEST_F(Agent, linksNoWindowLibrary)
{
    AgentProgram agent;
    ASSERT_TRUE(agent.waitForLaunch());
    QFile maps(QString("/proc/%1/maps").arg(agent.processId()));
    ASSERT_TRUE(maps.open(QIODevice::ReadOnly));
    const QByteArray libraries = maps.readAll();
    EXPECT_TRUE(libraries.contains("/Lumaroo.prefPane/Contents/Frameworks/liblumaroo-foundation.so"));
    EXPECT_FALSE(libraries.contains("libQt6Gui"));
    EXPECT_FALSE(libraries.contains("libQt6Widgets"));
    EXPECT_FALSE(libraries.contains("liblumaroo-appkit"));
}
