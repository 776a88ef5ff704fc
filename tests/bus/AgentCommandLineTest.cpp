// The agent's program as people and scripts use it.

#include "AgentSession.h"
#include "ColorSamples.h"
#include "KTXConstants.h"
#include "KTXSettings.h"
#include "Wait.h"
#include "agent/life/AgentArguments.h"
#include "platform/foundation/bundles/NSBundle.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDateTime>
#include <QDir>
#include <QTimeZone>
#include <QXmlStreamReader>
#include <csignal>

namespace {

class TheCommandLine : public AgentSessionAfterFirstLaunch
{
protected:
    void expectStored(const QStringList &arguments, const QVariant &value)
    {
        const ProgramResult result = runAgent(QStringList{"--set", "key"} + arguments);
        EXPECT_EQ(result.status, 0) << result.errors;
        EXPECT_EQ(result.output + result.errors, "");
        EXPECT_EQ(stored().value("key"), value);
        EXPECT_EQ(stored().value("key").typeId(), value.typeId());
    }
};

/// Each method of an interface with its arguments and their types, in order.
/// Methods and signals with their arguments.
QStringList membersOf(const QByteArray &description, const QString &interface)
{
    QStringList members;
    QXmlStreamReader reader(description);
    bool isInside = false;
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement)
            continue;
        const auto attribute = [&reader](const char *name) {
            return reader.attributes().value(QLatin1String(name)).toString();
        };
        if (reader.name() == u"interface")
            isInside = attribute("name") == interface;
        else if (isInside && (reader.name() == u"method" || reader.name() == u"signal"))
            members += attribute("name");
        else if (isInside && reader.name() == u"arg")
            members.last() += " " + attribute("direction") + " " + attribute("type");
    }
    EXPECT_FALSE(reader.hasError());
    return members;
}

} // namespace

TEST_F(TheCommandLine, printsWhatTheRunningAgentHasRead)
{
    store({{KTXFirstLaunch, true}, {KTXOverlayColor, colorSample("S005")}, {KTXRepeatRate, 0.5F},
        {KTXLeftPref, QVariantMap{{KTXKeycode, "0"}}}});
    AgentProgram agent;
    ASSERT_TRUE(agent.waitForLaunch());
    const QJsonObject shown = runningAgent();
    EXPECT_EQ(shown.value("version").toInt(), builtVersion());
    EXPECT_EQ(shown.value("readings").toInt(), 1);
    EXPECT_EQ(shown.value("settings").toObject().size(), KTXSettings().size());
    EXPECT_EQ(runningAgentsSetting(KTXOverlayColor), QJsonValue(QString::fromLatin1(colorSample("S005").toBase64())));
    EXPECT_EQ(runningAgentsSetting(KTXRepeatRate), QJsonValue(0.5));
    EXPECT_EQ(runningAgentsSetting(KTXLeftPref), QJsonValue(QJsonObject{{"keycode", "0"}}));
}

TEST_F(TheCommandLine, hasNothingToPrintWhereNoAgentRuns)
{
    const ProgramResult result = runAgent({"--print-settings"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.errors, "LumarooAgent: no agent runs\n");
}

TEST_F(TheCommandLine, doesNothingWithWindowsWhereNoAgentRuns)
{
    for (const QStringList &arguments : QList<QStringList>{
             {"--move", "left"}, {"--accept"}, {"--cancel"}, {"--screenshot"}, {"--close"}, {"--preview"}}) {
        const ProgramResult result = runAgent(arguments);
        EXPECT_EQ(result.status, 1);
        EXPECT_EQ(result.output, "");
        EXPECT_EQ(result.errors, "LumarooAgent: no agent runs\n");
    }
}

TEST_F(TheCommandLine, saysThatAnAgentOfAnotherVersionCannotMove)
{
    QObject other;
    QDBusConnection bus = QDBusConnection::sessionBus();
    ASSERT_TRUE(bus.registerService(KTXLMAgentID));
    bus.registerObject("/com/quorvane/LumarooAgent", KTXLMAgentID, &other, QDBusConnection::ExportAllContents);
    AgentProgram command({"--move", "left"});
    EXPECT_EQ(command.exitStatus(), 1);
    EXPECT_EQ(command.errors(), "LumarooAgent: the running agent is of another version and cannot do that\n");
    bus.unregisterObject("/com/quorvane/LumarooAgent");
    bus.unregisterService(KTXLMAgentID);
}

TEST_F(TheCommandLine, saysWhyNothingCameOfAMove)
{
    AgentProgram agent;
    ASSERT_TRUE(agent.waitForLaunch());
    EXPECT_EQ(runAgent({"--move", "left"}).errors, "LumarooAgent: there is no X server\n");
    EXPECT_EQ(runAgent({"--accept"}).errors, "LumarooAgent: no window is selected\n");
    const ProgramResult result = runAgent({"--cancel"});
    EXPECT_EQ(result.errors, "LumarooAgent: no window is selected\n");
    EXPECT_EQ(result.status, 1);
}

TEST_F(TheCommandLine, saysWhyNothingCameOfAnAction)
{
    AgentProgram agent;
    ASSERT_TRUE(agent.waitForLaunch());
    EXPECT_EQ(runAgent({"--screenshot"}).errors, "LumarooAgent: There is no X server.\n");
    EXPECT_EQ(runAgent({"--close"}).errors, "LumarooAgent: There is no X server.\n");
    const ProgramResult result = runAgent({"--preview"});
    EXPECT_EQ(result.errors, "LumarooAgent: There is no X server.\n");
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.status, 1);
}

TEST_F(TheCommandLine, doesNotWaitWithoutEndForAnAgentThatDoesNotAnswer)
{
    AgentProgram agent;
    ASSERT_TRUE(agent.waitForLaunch());
    agent.signal(SIGSTOP);
    const ProgramResult result = runAgent({"--print-settings"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors, "LumarooAgent: the running agent does not answer\n");
}

TEST_F(TheCommandLine, setsValuesOfEachType)
{
    expectStored({"text"}, "text");
    expectStored({"-string", "-5"}, "-5");
    expectStored({"-bool", "YES"}, true);
    expectStored({"-int", "-7"}, qlonglong(-7));
    expectStored({"-float", "0.1"}, 0.1F);
    expectStored({"-date", "2001-02-03T04:05:06Z"}, QDateTime({2001, 2, 3}, {4, 5, 6}, QTimeZone::utc()));
    expectStored({"-data", "00ff"}, QByteArray("\x00\xff", 2));
    expectStored({"-dict", "keycode", "126"}, QVariantMap({{"keycode", "126"}}));
    expectStored({"-array", "Terminal", "Panel"}, QVariantList({"Terminal", "Panel"}));
    EXPECT_TRUE(stored().contains(KTXFirstLaunch));
}

TEST_F(TheCommandLine, announcesAChangeOnTheAgentsSide)
{
    EXPECT_EQ(runAgent({"--set", KTXHWrap, "-bool", "false"}).status, 0);
    EXPECT_EQ(stored().value(KTXHWrap), false);
    EXPECT_EQ(recorder.notifications(), QList({changedByAgent()}));
}

TEST_F(TheCommandLine, hasTheRunningAgentReadAChangeBeforeItIsAnnounced)
{
    AgentProgram agent;
    ASSERT_TRUE(waitForLaunchOf(agent));
    EXPECT_EQ(runAgent({"--set", KTXHSort, "Center"}).status, 0);
    EXPECT_EQ(runningAgentsSetting(KTXHSort).toString(), "Center");
    EXPECT_EQ(runningAgent().value("readings").toInt(), 2);
    EXPECT_EQ(recorder.notifications(), QList({changedByAgent()}));
}

TEST_F(TheCommandLine, saysThatAChangeCouldNotBeStoredAndAnnouncesNothing)
{
    const QString folder = configFolder() + "/lumaroo";
    QFile::setPermissions(folder, QFile::ReadOwner | QFile::ExeOwner);
    const ProgramResult result = runAgent({"--set", KTXHWrap, "-bool", "false"});
    QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    EXPECT_EQ(result.status, 1);
    EXPECT_NE(result.errors.find("LumarooAgent: the settings of com.quorvane.Lumaroo could not be changed\n"),
        std::string::npos)
        << result.errors;
    EXPECT_FALSE(stored().contains(KTXHWrap));
    EXPECT_TRUE(recorder.notifications().isEmpty());
}

TEST_F(TheCommandLine, storesWithoutASessionBusAndSaysThatNobodyHeard)
{
    const QByteArray address = qgetenv("DBUS_SESSION_BUS_ADDRESS");
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere/bus");
    const ProgramResult set = runAgent({"--set", KTXHWrap, "-bool", "false"});
    const ProgramResult print = runAgent({"--print-settings"});
    const ProgramResult quit = runAgent({"--quit"});
    qputenv("DBUS_SESSION_BUS_ADDRESS", address);
    EXPECT_EQ(set.status, 1);
    EXPECT_EQ(set.errors, "LumarooAgent: the change is stored, but there is no session bus\n");
    EXPECT_EQ(stored().value(KTXHWrap), false);
    EXPECT_EQ(print.status, 1);
    EXPECT_EQ(print.errors, "LumarooAgent: there is no session bus\n");
    EXPECT_EQ(quit.status, 1);
    EXPECT_EQ(quit.errors, "LumarooAgent: there is no session bus\n");
}

TEST_F(TheCommandLine, switchesStartingAtLoginOnAndOff)
{
    const QString entry = configFolder() + "/autostart/com.quorvane.LumarooAgent.desktop";
    EXPECT_EQ(runAgent({"--start-at-login", "on"}).status, 0);
    QFile file(entry);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.readAll().contains("\nTryExec=" + QFile::encodeName(AgentProgram::builtExecutable()) + '\n'));
    EXPECT_EQ(runAgent({"--start-at-login", "off"}).status, 0);
    EXPECT_FALSE(QFile::exists(entry));
    EXPECT_EQ(stored().keys(), QStringList(KTXFirstLaunch));
    EXPECT_TRUE(recorder.notifications().isEmpty());
}

TEST_F(TheCommandLine, doesNotStartAtLoginUnlessTold)
{
    AgentProgram agent;
    ASSERT_TRUE(agent.waitForLaunch());
    EXPECT_FALSE(QFile::exists(configFolder() + "/autostart"));
}

TEST_F(TheCommandLine, saysThatTheEntryForLoginCouldNotBeWritten)
{
    QFile file(configFolder() + "/autostart");
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    const ProgramResult result = runAgent({"--start-at-login", "on"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors, "LumarooAgent: cannot make the folder " + configFolder().toStdString() + "/autostart\n");
}

TEST_F(TheCommandLine, explainsItselfWhereItMakesNoSense)
{
    for (const QStringList &arguments : QList<QStringList>{{"--bogus"}, {"bogus"}, {"-foreground"}, {"--set"},
             {"--set", "key"}, {"--set", "--quit"}, {"--set", "key", "-bool"}, {"--set", "key", "-bool", "maybe"},
             {"--set", "key", "-5"}, {"--set", "key", "a", "b"}, {"--start-at-login"}, {"--start-at-login", "perhaps"},
             {"--quit", "--print-settings"}, {"--foreground", "now"}, {"--move"}, {"--move", "away"},
             {"--move", "--accept"}, {"--move", "left", "up"}, {"--accept", "left"}, {"--cancel", "--accept"},
             {"--screenshot", "/tmp"}, {"--close", "all"}, {"--preview", "--cancel"}, {""}}) {
        const ProgramResult result = runAgent(arguments);
        EXPECT_EQ(result.status, 2) << arguments.join(' ').toStdString();
        EXPECT_EQ(result.output, "");
        EXPECT_TRUE(result.errors.starts_with("LumarooAgent: "));
        EXPECT_NE(result.errors.find("usage: LumarooAgent"), std::string::npos);
    }
    EXPECT_EQ(stored().keys(), QStringList(KTXFirstLaunch));
    EXPECT_TRUE(recorder.notifications().isEmpty());
}

TEST_F(TheCommandLine, helpsAndTellsItsVersionOnStandardOutput)
{
    for (const QString &option : QStringList{"--help", "-h"}) {
        const ProgramResult help = runAgent({option});
        EXPECT_EQ(help.status, 0);
        EXPECT_EQ(help.output, agentHelp);
        EXPECT_EQ(help.errors, "");
    }
    const ProgramResult version = runAgent({"--version"});
    EXPECT_EQ(version.status, 0);
    const QString shortVersion =
        NSBundle::infoDictionaryOnDisk(AgentProgram::builtBundle()).value("CFBundleShortVersionString").toString();
    EXPECT_EQ(version.output, "LumarooAgent " + shortVersion.toStdString() + "\n");
}

TEST_F(TheCommandLine, saysInTheForegroundWhatHappensAndOtherwiseNothing)
{
    for (const bool foreground : {true, false}) {
        recorder.clear();
        AgentProgram agent(foreground ? QStringList("--foreground") : QStringList());
        EXPECT_TRUE(announces({launched()}));
        paneAnnounces(KTXLMPrefsChanged);
        paneAnnounces(KTXLMAgentShouldTerminate);
        EXPECT_EQ(agent.exitStatus(), 0);
        const QStringList all{"settings read (1)", QString("launched (version %1)").arg(builtVersion()),
            "settings read (2)", "terminating"};
        EXPECT_EQ(agent.lines(), foreground ? all : QStringList());
        EXPECT_EQ(agent.errors(), noDisplayForHotKeys);
    }
}

TEST_F(TheCommandLine, findsTheAgentThroughTheCheckedInInterface)
{
    AgentProgram agent;
    ASSERT_TRUE(agent.waitForLaunch());
    const QDBusMessage answer = QDBusConnection::sessionBus().call(QDBusMessage::createMethodCall(
        KTXLMAgentID, "/com/quorvane/LumarooAgent", "org.freedesktop.DBus.Introspectable", "Introspect"));
    QFile file(qEnvironmentVariable("LUMAROO_SOURCE") + "/agent/life/com.quorvane.LumarooAgent.xml");
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QStringList described = membersOf(file.readAll(), KTXLMAgentID);
    EXPECT_EQ(described,
        QStringList({"Version out i", "Settings out s", "ReadSettings", "Quit", "Move in s", "Accept", "Cancel",
            "TakeScreenshot out s", "CloseWindow", "ShowPreview", "SelectionBegan", "SelectionMoved",
            "SelectionAccepted", "SelectionCancelled", "SelectionRefused", "HotKeysChanged",
            "ActionKeyPressed out s"}));
    const QStringList answered = membersOf(answer.arguments().value(0).toString().toUtf8(), KTXLMAgentID);
    EXPECT_EQ(QSet<QString>(answered.cbegin(), answered.cend()), QSet<QString>(described.cbegin(), described.cend()));
}
