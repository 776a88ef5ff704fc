// What someone is told who has the agent for the first time, by a notification server as it should be and otherwise.

#include "AgentProgram.h"
#include "AgentSession.h"
#include "DesktopWindows.h"
#include "HostProgram.h"
#include "KTXConstants.h"
#include "NotificationServer.h"
#include "OtherClient.h"
#include "RunningPrograms.h"
#include "TutorialSession.h"
#include "Wait.h"

#include <QDBusConnectionInterface>
#include <QDBusVirtualObject>
#include <QDir>
#include <QFileInfo>
#include <gmock/gmock.h>
#include <linux/input-event-codes.h>

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

const QString title = QStringLiteral("Lumaroo is on");
const QString keys = QStringLiteral("Hold ⌃⌥ and press ← → ↑ ↓");
constexpr quint16 controlAndAlt = XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_1;

class FirstLaunch : public AgentSession
{
protected:
    /// The tutorial that was asked for outlives the agent.
    void TearDown() override { killProcessesOf(TutorialProgram::builtExecutable()); }
    /// What the agent told has come here; it has been launched.
    void waitForWhatItTold()
    {
        ASSERT_FALSE(runningAgent().isEmpty());
        recorder.notifications();
        runPendingEvents();
    }
    QString settingsFolder() const { return configFolder() + "/lumaroo"; }
};

/// A server that shows bubbles when it likes.
class SlowServer
{
public:
    SlowServer()
    {
        EXPECT_TRUE(bus_.registerVirtualObject("/org/freedesktop/Notifications", &object_));
        EXPECT_TRUE(bus_.registerService("org.freedesktop.Notifications"));
    }
    ~SlowServer() { die(); }

    bool wasAsked() const { return !object_.calls.isEmpty(); }
    /// Shows the first one, as its number 7.
    void answer() { bus_.send(object_.calls.first().createReply(uint(7))); }
    void press(const QString &action)
    {
        QDBusMessage signal = QDBusMessage::createSignal(
            "/org/freedesktop/Notifications", "org.freedesktop.Notifications", "ActionInvoked");
        signal << uint(7) << action;
        bus_.send(signal);
        // What others send from now on comes behind it.
        bus_.interface()->isServiceRegistered("org.freedesktop.Notifications");
    }
    void die() { QDBusConnection::disconnectFromBus("slow-server"); }

private:
    class Object : public QDBusVirtualObject
    {
    public:
        QString introspect(const QString &) const override { return {}; }
        bool handleMessage(const QDBusMessage &message, const QDBusConnection &) override
        {
            calls += message;
            return true;
        }
        QList<QDBusMessage> calls;
    };
    QDBusConnection bus_ = QDBusConnection::connectToBus(QDBusConnection::SessionBus, "slow-server");
    Object object_;
};

} // namespace

TEST_F(FirstLaunch, tellsThatItIsOnAndWhatToPress)
{
    const NotificationServer server;
    AgentProgram agent;
    ASSERT_TRUE(waitUntil([&] { return server.bubbles().size() == 1; }));
    EXPECT_EQ(server.bubbles().first().title, title);
    EXPECT_EQ(server.bubbles().first().text, keys);
    EXPECT_THAT(server.bubbles().first().actions,
        ElementsAre(u"button", u"Show me", u"second", u"Settings", u"default", u"Settings"));
    EXPECT_EQ(stored(), QVariantMap({{KTXFirstLaunch, true}, {KTXWelcomeShown, true}}));
}

TEST_F(FirstLaunch, speaksGerman)
{
    store({{KTXUpPref, QVariantMap{{KTXKeycode, "115"}}}});
    const NotificationServer server;
    QProcessEnvironment german = QProcessEnvironment::systemEnvironment();
    german.insert("LANGUAGE", "de");
    german.insert("LC_ALL", "de_DE.UTF-8");
    AgentProgram agent({"--foreground"}, AgentProgram::builtExecutable(), german);
    ASSERT_TRUE(waitUntil([&] { return server.bubbles().size() == 1; }));
    EXPECT_EQ(server.bubbles().first().title, u"Lumaroo ist an");
    EXPECT_EQ(server.bubbles().first().text, u"Halten Sie ⌃⌥ und drücken Sie ← → Pos1 ↓");
    EXPECT_THAT(server.bubbles().first().actions,
        ElementsAre(u"button", u"Einführung zeigen", u"second", u"Einstellungen", u"default", u"Einstellungen"));
}

TEST_F(FirstLaunch, isToldOnce)
{
    const NotificationServer server;
    for (int launch = 0; launch < 3; ++launch) {
        recorder.clear();
        AgentProgram agent;
        ASSERT_TRUE(agent.waitForLaunch());
        waitForWhatItTold();
        EXPECT_THAT(server.bubbles(), SizeIs(1));
        // As the pane does that writes its defaults.
        if (launch == 1)
            store({{KTXWelcomeShown, true}});
    }
}

TEST_F(FirstLaunch, isNotToldToWhoHasClosedTheTutorial)
{
    store({{KTXTutorialDone, true}});
    const NotificationServer server;
    AgentProgram agent;
    ASSERT_TRUE(agent.waitForLaunch());
    waitForWhatItTold();
    EXPECT_THAT(server.bubbles(), IsEmpty());
}

TEST_F(FirstLaunch, isToldOnceWhereNothingCanBeStored)
{
    ASSERT_TRUE(QDir().mkpath(settingsFolder()));
    ASSERT_TRUE(QFile::setPermissions(settingsFolder(), QFile::ReadOwner | QFile::ExeOwner));
    const NotificationServer server;
    AgentProgram agent;
    ASSERT_TRUE(waitForLaunchOf(agent));
    // As the pane at its own first launch, for which the agent starts anew.
    paneAnnounces(KTXLMPrefPaneLaunched);
    paneAnnounces(KTXLMAgentShouldTerminate);
    ASSERT_TRUE(waitUntil([this] { return recorder.names().contains(KTXLMAgentLaunched); }));
    waitForWhatItTold();
    EXPECT_THAT(server.bubbles(), SizeIs(1));
    QFile::setPermissions(settingsFolder(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

TEST_F(FirstLaunch, tellsTheKeysThatAreSet)
{
    store({{KTXModifierMask, 0x1100}, {KTXLeftPref, QVariantMap{{KTXKeycode, "38"}}}});
    const NotificationServer server;
    AgentProgram agent;
    ASSERT_TRUE(waitUntil([&] { return server.bubbles().size() == 1; }));
    EXPECT_EQ(server.bubbles().first().text, u"Hold ⌃⌘ and press J → ↑ ↓");
}

TEST_F(FirstLaunch, tellsOfDoublePressesAlone)
{
    store({{KTXActivateDoubleClick, true}});
    const NotificationServer server;
    AgentProgram agent;
    ASSERT_TRUE(waitUntil([&] { return server.bubbles().size() == 1; }));
    EXPECT_EQ(server.bubbles().first().text, u"Press ⌃⌥ twice, then press ← → ↑ ↓");
}

TEST_F(FirstLaunch, promisesNoKeyThatAnotherProgramHolds)
{
    OtherClient other;
    ASSERT_TRUE(other.grabKey(KEY_LEFT, controlAndAlt));
    const NotificationServer server;
    {
        AgentProgram agent;
        ASSERT_TRUE(waitUntil([&] { return server.bubbles().size() == 2; }));
        EXPECT_EQ(server.bubbles().first().title, u"Another program holds Lumaroo's keys");
        EXPECT_EQ(server.bubbles().last().text, u"Hold ⌃⌥ and press → ↑ ↓");
    }
    for (const int key : {KEY_RIGHT, KEY_UP, KEY_DOWN})
        ASSERT_TRUE(other.grabKey(key, controlAndAlt));
    store({});
    AgentProgram agent;
    ASSERT_TRUE(waitUntil([&] { return server.bubbles().size() == 4; }));
    EXPECT_EQ(server.bubbles().last().text, u"Its keys do not work yet. The settings tell why.");
}

TEST_F(FirstLaunch, showsTheTutorialAndTheSettings)
{
    NotificationServer server;
    AgentProgram agent;
    ASSERT_TRUE(waitUntil([&] { return server.bubbles().size() == 1; }));
    EXPECT_TRUE(waitUntil([&] {
        server.pressButton(1);
        return agent.lines().contains("settings opened");
    }));
    EXPECT_FALSE(agent.lines().contains("tutorial requested"));
    ASSERT_TRUE(waitUntil([] { return activeWindowTitle() == "Lumaroo"; }));
    // Each press that was heard opens them.
    EXPECT_TRUE(waitUntil([] {
        for (const quint32 window : listedWindows())
            askToClose(window);
        return processesOf(QFileInfo(HostProgram::builtExecutable()).canonicalFilePath()).isEmpty();
    }));
    server.pressButton(0);
    EXPECT_TRUE(agent.waitForLine("tutorial requested"));
    ASSERT_TRUE(waitUntil([] { return !listedWindows().isEmpty(); }));
}

TEST_F(FirstLaunch, goesToTheLogWhereNobodyShowsIt)
{
    AgentProgram agent;
    EXPECT_TRUE(waitUntil([&] { return agent.errors().contains(title + ": " + keys); }));
    EXPECT_TRUE(waitForLaunchOf(agent));
}

TEST_F(FirstLaunch, listensToAServerThatTakesItsTime)
{
    SlowServer server;
    AgentProgram agent;
    ASSERT_TRUE(waitUntil([&] { return server.wasAsked(); }));
    EXPECT_TRUE(waitUntil([&] { return agent.errors().contains(title); })) << "after two seconds";
    server.answer();
    EXPECT_TRUE(waitUntil([&] {
        server.press("button");
        return agent.lines().contains("tutorial requested");
    }));
    EXPECT_EQ(agent.errors().count(title), 1);
}

TEST_F(FirstLaunch, goesOnWithoutAServerThatDiesOverIt)
{
    SlowServer server;
    AgentProgram agent;
    ASSERT_TRUE(waitUntil([&] { return server.wasAsked(); }));
    server.die();
    EXPECT_TRUE(waitUntil([&] { return agent.errors().contains(title); }));
    EXPECT_FALSE(runningAgent().isEmpty());
    EXPECT_EQ(agent.errors().count(title), 1);
}

TEST_F(FirstLaunch, hearsNoButtonOfAServerThatFollows)
{
    AgentProgram agent;
    {
        SlowServer server;
        ASSERT_TRUE(waitUntil([&] { return server.wasAsked(); }));
        server.answer();
        EXPECT_TRUE(waitUntil([&] {
            server.press("button");
            return agent.lines().contains("tutorial requested");
        }));
    }
    // Until all that was pressed there has been heard.
    paneAnnounces(KTXLMPrefsChanged);
    ASSERT_TRUE(agent.waitForLine("settings read (3)"));
    // Its number 7 is another program's bubble.
    SlowServer next;
    const qsizetype before = agent.lines().count("tutorial requested");
    next.press("button");
    paneAnnounces(KTXLMPrefsChanged);
    ASSERT_TRUE(agent.waitForLine("settings read (4)"));
    EXPECT_EQ(agent.lines().count("tutorial requested"), before);
}
