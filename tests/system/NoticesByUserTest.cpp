// The real agent beside a program that holds its keys, and a notification server.

#include "AgentBundle.h"
#include "AgentProgram.h"
#include "AgentSession.h"
#include "KTXConstants.h"
#include "NotificationServer.h"
#include "OtherClient.h"
#include "Wait.h"

#include <QFileInfo>
#include <linux/input-event-codes.h>

namespace {

constexpr quint16 controlAndAlt = XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_1;

class NoticesByUser : public AgentSessionAfterFirstLaunch
{
protected:
    OtherClient other;
};

} // namespace

TEST_F(NoticesByUser, offerOtherModifiersWhereAProgramHoldsAMovementKey)
{
    NotificationServer server;
    ASSERT_TRUE(other.grabKey(KEY_LEFT, controlAndAlt));
    AgentProgram agent;
    ASSERT_TRUE(waitForLaunchOf(agent));
    ASSERT_TRUE(waitUntil([&] { return server.bubbles().size() == 1; }));
    const NotificationServer::Bubble bubble = server.bubbles().first();
    EXPECT_EQ(bubble.title, u"Another program holds Lumaroo's keys");
    EXPECT_EQ(bubble.text, u"Lumaroo does not get ⌃⌥←. With ⌃⌘ held instead, all movement keys are free.");
    EXPECT_EQ(bubble.actions, QStringList({"button", "Use ⌃⌘", "default", "Settings"}));

    server.pressButton();
    EXPECT_TRUE(announces({changedByAgent()}));
    EXPECT_EQ(stored().value(KTXModifierMask), QVariant(0x1100));
    EXPECT_TRUE(waitUntil([] { return runningAgent().value("freeModifiers").toArray().isEmpty(); }));
    for (const QJsonValue &key : runningAgent().value("hotKeys").toArray())
        EXPECT_TRUE(key.toObject().value("registered").toBool())
            << qPrintable(key.toObject().value("action").toString());
    EXPECT_EQ(server.bubbles().size(), 1);
}

TEST_F(NoticesByUser, offerThemAgainWhereTheChoiceCannotBeStored)
{
    NotificationServer server;
    ASSERT_TRUE(other.grabKey(KEY_LEFT, controlAndAlt));
    AgentProgram agent;
    ASSERT_TRUE(waitForLaunchOf(agent));
    ASSERT_TRUE(waitUntil([&] { return server.bubbles().size() == 1; }));
    const QString folder = QFileInfo(settingsPath()).path();
    const QVariantMap before = stored();
    ASSERT_TRUE(QFile::setPermissions(folder, QFile::ReadOwner | QFile::ExeOwner));
    server.pressButton();
    ASSERT_TRUE(waitUntil([&] { return server.bubbles().size() == 2; }));
    EXPECT_EQ(server.bubbles().last().title, u"The modifier keys stay as they are");
    EXPECT_EQ(server.bubbles().last().text, u"Your choice could not be stored. The disk may be full.");
    EXPECT_EQ(server.bubbles().last().actions, QStringList({"button", "Use ⌃⌘", "default", "Settings"}));
    ASSERT_TRUE(QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    EXPECT_EQ(stored(), before);
    server.pressButton();
    EXPECT_TRUE(announces({changedByAgent()}));
    EXPECT_EQ(stored().value(KTXModifierMask), QVariant(0x1100));
}

TEST_F(NoticesByUser, leaveTheStoredModifiersAloneWhereTheChoiceCannotBeStored)
{
    NotificationServer server;
    ASSERT_TRUE(other.grabKey(KEY_LEFT, controlAndAlt));
    AgentProgram agent;
    ASSERT_TRUE(waitForLaunchOf(agent));
    ASSERT_TRUE(waitUntil([&] { return server.bubbles().size() == 1; }));
    const QString folder = QFileInfo(settingsPath()).path();
    ASSERT_TRUE(QFile::setPermissions(folder, QFile::ReadOwner | QFile::ExeOwner));
    server.pressButton();
    ASSERT_TRUE(waitUntil([&] { return server.bubbles().size() == 2; }));
    ASSERT_TRUE(QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    QVariantMap chosen = stored();
    chosen.insert(KTXModifierMask, 0x1900);
    store(chosen);
    paneAnnounces(KTXLMPrefsChanged);
    EXPECT_TRUE(waitUntil([] {
        return runningAgent().value("settings").toObject().value(KTXModifierMask).toInt() == 0x1900;
    })) << "what is chosen later counts";
    EXPECT_EQ(stored(), chosen);
}

TEST_F(NoticesByUser, openTheSettingsWithAClick)
{
    NotificationServer server;
    ASSERT_TRUE(other.grabKey(KEY_LEFT, controlAndAlt));
    AgentProgram agent;
    ASSERT_TRUE(waitForLaunchOf(agent));
    ASSERT_TRUE(waitUntil([&] { return server.bubbles().size() == 1; }));
    const QVariantMap before = stored();
    server.pressButton(1);
    EXPECT_TRUE(agent.waitForLine("settings opened"));
    EXPECT_EQ(stored(), before);
}

TEST_F(NoticesByUser, tellOfHeldKeysOnceAndAgainWhenTheyAreOthers)
{
    NotificationServer server;
    ASSERT_TRUE(other.grabKey(KEY_LEFT, controlAndAlt));
    AgentProgram agent;
    ASSERT_TRUE(waitForLaunchOf(agent));
    ASSERT_TRUE(waitUntil([&] { return server.bubbles().size() == 1; }));
    paneAnnounces(KTXLMPrefsChanged);
    ASSERT_TRUE(agent.waitForLine("settings read (2)"));
    // Another program holds one with the other modifiers too.
    ASSERT_TRUE(other.grabKey(KEY_UP, XCB_MOD_MASK_CONTROL));
    store({{KTXFirstLaunch, true}, {KTXModifierMask, 0x1000}});
    paneAnnounces(KTXLMPrefsChanged);
    ASSERT_TRUE(waitUntil([&] { return server.bubbles().size() == 2; }));
    EXPECT_TRUE(server.bubbles().last().text.startsWith(u"Lumaroo does not get ⌃↑."));
    EXPECT_EQ(server.bubbles().last().replaced, 1U);
}

TEST_F(NoticesByUser, goToTheLogWhereNobodyShowsThem)
{
    ASSERT_TRUE(other.grabKey(KEY_LEFT, controlAndAlt));
    AgentProgram agent;
    ASSERT_TRUE(waitForLaunchOf(agent));
    EXPECT_TRUE(waitUntil([&] {
        return agent.errors().contains(
            QStringLiteral("Another program holds Lumaroo's keys: Lumaroo does not get ⌃⌥←."));
    }));
}

TEST_F(NoticesByUser, tellThatTheTutorialIsMissing)
{
    NotificationServer server;
    const AgentBundle bundle(builtVersion()); // the agent alone
    AgentProgram agent({QStringLiteral("--foreground")}, bundle.executable());
    ASSERT_TRUE(waitForLaunchOf(agent));
    for (qsizetype bubbles = 1; bubbles <= 2; ++bubbles) {
        paneAnnounces(KTXLMRunTutorial);
        ASSERT_TRUE(waitUntil([&] { return server.bubbles().size() == bubbles; }));
    }
    EXPECT_EQ(server.bubbles().first().title, u"The tutorial cannot be started");
    EXPECT_EQ(server.bubbles().first().text, u"A part of Lumaroo is missing. Install it again.");
    EXPECT_EQ(server.bubbles().last().replaced, 1U);
    EXPECT_EQ(agent.errors().count(QStringLiteral("LumarooTutorial.app does not start")), 2);
    EXPECT_TRUE(agent.isRunning());
}
