// What becomes of a running agent when its bundle on disk changes and the pane is opened.

#include "AgentBundle.h"
#include "AgentSession.h"
#include "KTXConstants.h"
#include "Wait.h"

#include <QDBusConnectionInterface>
#include <QDir>

namespace {

class AgentWhoseBundleChanges : public AgentSessionAfterFirstLaunch
{
protected:
    void SetUp() override { ASSERT_TRUE(waitForLaunchOf(agent)); }

    /// The pane is opened, and the agent has had the time to do whatever it does then.
    void openPane()
    {
        const auto readings = agent.lines().filter("settings read").size();
        paneAnnounces(KTXLMPrefPaneLaunched);
        paneAnnounces(KTXLMPrefsChanged);
        EXPECT_TRUE(waitUntil([&] { return agent.lines().filter("settings read").size() > readings; }));
        EXPECT_EQ(recorder.names(), QStringList({KTXLMPrefPaneLaunched, KTXLMPrefsChanged}));
        recorder.clear();
    }
    QByteArray executableContent() const
    {
        QFile file(bundle.executable());
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }
    static BusNotification paneLaunched() { return {KTXLMPrefPaneLaunched, KTXLMAppID, {}, true}; }
    static QString runningProgram(qint64 process) { return QFile::symLinkTarget(QString("/proc/%1/exe").arg(process)); }

    const AgentBundle bundle{120};
    AgentProgram agent{{"--foreground"}, bundle.executable()};
};

} // namespace

TEST_F(AgentWhoseBundleChanges, givesWayToANewerOneOnceThePaneIsOpened)
{
    bundle.setVersion("130");
    recorder.clear();
    EXPECT_EQ(runningAgent().value("version").toInt(), 120);
    paneAnnounces(KTXLMPrefPaneLaunched);
    EXPECT_TRUE(announces({paneLaunched(), terminating(), launched(130)}));
    EXPECT_EQ(runningAgent().value("version").toInt(), 130);
    EXPECT_TRUE(agent.isRunning());
    EXPECT_TRUE(agent.waitForLine("launched (version 130)"));
}

TEST_F(AgentWhoseBundleChanges, runsTheNewProgramThen)
{
    bundle.replaceExecutable(executableContent());
    bundle.setVersion("130");
    ASSERT_TRUE(runningProgram(agent.processId()).endsWith(" (deleted)"));
    paneAnnounces(KTXLMPrefPaneLaunched);
    EXPECT_TRUE(announces({paneLaunched(), terminating(), launched(130)}));
    EXPECT_EQ(runningProgram(agent.processId()), bundle.executable());
}

TEST_F(AgentWhoseBundleChanges, givesWayOnceWhenThePaneIsOpenedThreeTimesInARow)
{
    bundle.setVersion("130");
    for (int time = 0; time < 3; ++time)
        paneAnnounces(KTXLMPrefPaneLaunched);
    EXPECT_TRUE(agent.waitForLine("launched (version 130)"));
    paneAnnounces(KTXLMPrefsChanged);
    EXPECT_TRUE(agent.waitForLine("settings read (2)"));
    EXPECT_EQ(recorder.names().count(KTXLMAgentLaunched), 1);
    EXPECT_EQ(recorder.names().count(KTXLMAgentIsTerminating), 1);
    EXPECT_TRUE(agent.isRunning());
}

TEST_F(AgentWhoseBundleChanges, staysAndSaysNothingWhenNothingHasChanged)
{
    openPane();
}

TEST_F(AgentWhoseBundleChanges, staysWhenTheVersionOnDiskIsNoNewer)
{
    for (const QVariant &version : {QVariant("120"), QVariant("119"), QVariant("-130"), QVariant("later"), QVariant(""),
             QVariant(qlonglong(120)), QVariant(QByteArray("130")), QVariant(QVariantList({"130"}))}) {
        bundle.setVersion(version);
        openPane();
    }
    EXPECT_EQ(runningAgent().value("version").toInt(), 120);
}

TEST_F(AgentWhoseBundleChanges, takesAVersionThatIsANumberToo)
{
    bundle.setVersion(qlonglong(130));
    paneAnnounces(KTXLMPrefPaneLaunched);
    EXPECT_TRUE(announces({paneLaunched(), terminating(), launched(130)}));
}

TEST_F(AgentWhoseBundleChanges, staysWhenTheInfoDictionaryIsBrokenOrMissing)
{
    for (const QByteArray &content : {QByteArray(), QByteArray("<plist><dict><key>CFBundleVersion</key>"),
             QByteArray("bplist00garbage"), QByteArray("<plist><array/></plist>"), QByteArray(2 * 1024 * 1024, 'x')}) {
        bundle.replaceInfo(content);
        openPane();
    }
    ASSERT_TRUE(QFile::remove(bundle.infoPath()));
    openPane();
    ASSERT_TRUE(QDir().mkdir(bundle.infoPath()));
    openPane();
}

TEST_F(AgentWhoseBundleChanges, staysWhenWhatIsNewerIsAnotherProgram)
{
    QVariantMap info = AgentBundle::builtInfo();
    info.insert("CFBundleVersion", "130");
    info.insert("CFBundleIdentifier", "com.example.Other");
    bundle.setInfo(info);
    openPane();
}

TEST_F(AgentWhoseBundleChanges, staysWhenTheNewerOneHasNoProgramInItsBundle)
{
    for (const QVariant &name : {QVariant(), QVariant(""), QVariant("Missing"),
             QVariant(QString("../").repeated(30) + "bin/true"), QVariant("."), QVariant(true)}) {
        QVariantMap info = AgentBundle::builtInfo();
        info.insert("CFBundleVersion", "130");
        info.remove("CFBundleExecutable");
        if (name.isValid())
            info.insert("CFBundleExecutable", name);
        bundle.setInfo(info);
        openPane();
    }
    EXPECT_EQ(agent.errors().count("has no program that could be started; going on with version 120"), 6);
}

TEST_F(AgentWhoseBundleChanges, staysWhenTheNewerProgramMayNotBeRun)
{
    bundle.setVersion("130");
    ASSERT_TRUE(QFile::setPermissions(bundle.executable(), QFile::ReadOwner | QFile::WriteOwner));
    openPane();
}

TEST_F(AgentWhoseBundleChanges, goesOnAndSaysSoWhenTheNewerProgramDoesNotStart)
{
    bundle.replaceExecutable("no program at all");
    bundle.setVersion("130");
    paneAnnounces(KTXLMPrefPaneLaunched);
    EXPECT_TRUE(announces({paneLaunched(), terminating(), launched(120)}));
    EXPECT_TRUE(agent.errors().contains("does not start")) << agent.errors().toStdString();
    recorder.clear();
    paneAnnounces(KTXLMAgentShouldTerminate);
    EXPECT_EQ(agent.exitStatus(), 0);
}

TEST_F(AgentWhoseBundleChanges, endsWhenAnotherTookItsPlaceBeforeTheNewerProgramFailed)
{
    QDBusConnection waiting = QDBusConnection::connectToBus(QDBusConnection::SessionBus, "waiting");
    waiting.interface()->registerService(KTXLMAgentID, QDBusConnectionInterface::QueueService);
    bundle.replaceExecutable("no program at all");
    bundle.setVersion("130");
    paneAnnounces(KTXLMPrefPaneLaunched);
    EXPECT_EQ(agent.exitStatus(), 0);
    EXPECT_EQ(recorder.names(), QStringList({KTXLMPrefPaneLaunched, KTXLMAgentIsTerminating}));
    waiting.unregisterService(KTXLMAgentID);
    QDBusConnection::disconnectFromBus("waiting");
}

TEST_F(AgentWhoseBundleChanges, staysTheOnlyOneWhenItsFolderIsExchangedForAnother)
{
    const AgentBundle other(120);
    ASSERT_TRUE(QDir().rename(bundle.panePath(), bundle.panePath() + ".old"));
    ASSERT_TRUE(QDir().rename(other.panePath(), bundle.panePath()));
    openPane();
    const ProgramResult second = runAgent({}, bundle.executable());
    EXPECT_EQ(second.status, 0);
    EXPECT_EQ(second.errors, "LumarooAgent: an agent runs already\n");
    EXPECT_TRUE(agent.isRunning());
    EXPECT_TRUE(recorder.notifications().isEmpty());
}

TEST_F(AgentWhoseBundleChanges, givesWayToANewerOneInAFolderExchangedForItsOwn)
{
    const AgentBundle other(130);
    ASSERT_TRUE(QDir().rename(bundle.panePath(), bundle.panePath() + ".old"));
    ASSERT_TRUE(QDir().rename(other.panePath(), bundle.panePath()));
    paneAnnounces(KTXLMPrefPaneLaunched);
    EXPECT_TRUE(announces({paneLaunched(), terminating(), launched(130)}));
    EXPECT_EQ(runningProgram(agent.processId()), bundle.executable());
}

TEST_F(AgentWhoseBundleChanges, staysWhenItsFolderIsRemoved)
{
    ASSERT_TRUE(QDir(bundle.panePath()).removeRecursively());
    openPane();
    paneAnnounces(KTXLMAgentShouldTerminate);
    EXPECT_EQ(agent.exitStatus(), 0);
}

TEST_F(AgentWhoseBundleChanges, doesNotListenToStrangersWhoSayThatThePaneWasOpened)
{
    bundle.setVersion("130");
    recorder.post(KTXLMPrefPaneLaunched, "com.example.stranger");
    recorder.post(KTXLMPrefPaneLaunched, {});
    paneAnnounces(KTXLMPrefsChanged);
    EXPECT_TRUE(agent.waitForLine("settings read (2)"));
    EXPECT_EQ(runningAgent().value("version").toInt(), 120);
}

TEST_F(AgentSessionAfterFirstLaunch, anAgentWithABrokenInfoDictionaryRunsAsVersionNought)
{
    const AgentBundle bundle(120);
    bundle.replaceInfo("broken");
    AgentProgram agent({"--foreground"}, bundle.executable());
    EXPECT_TRUE(announces({launched(0)}));
    EXPECT_TRUE(agent.errors().contains("cannot read the Info.plist of " + bundle.path()));
}
