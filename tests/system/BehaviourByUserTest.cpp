// The real settings and the real agent: options changed by keyboard reach it, and what it asks of the settings happens.

#include "AgentProgram.h"
#include "InstalledProduct.h"
#include "KTXConstants.h"
#include "KeyPress.h"
#include "RunningPrograms.h"
#include "Wait.h"

#include <QWidget>
#include <linux/input-event-codes.h>

namespace {

constexpr int behaviourPage = 2;

class BehaviourByUser : public InstalledProduct
{
protected:
    BehaviourByUser() { storeOutside(KTXFirstLaunch, true); }

    void showSettings()
    {
        settings = std::make_unique<SettingsProgram>(QStringList{pane()});
        ASSERT_TRUE(settings->waitForWindows(1));
        settings->settledPicture();
    }

    void turnToBehaviour()
    {
        QImage shown = settings->settledPicture();
        for (int page = 0; page < behaviourPage; ++page) {
            pressKey(KEY_TAB, {KEY_LEFTCTRL});
            shown = settings->pictureAfterChangeFrom(shown);
        }
    }

    static bool agentReads(const QString &key, const QJsonValue &value)
    {
        return waitUntil([&] { return runningAgentsSetting(key) == value; });
    }

    std::unique_ptr<SettingsProgram> settings;
};

} // namespace

TEST_F(BehaviourByUser, whatIsChangedByKeyboardReachesTheAgent)
{
    const AgentProgram agent({"--foreground"}, agentProgram());
    showSettings();
    turnToBehaviour();
    ASSERT_TRUE(agentReads(KTXHWrap, true));
    pressKey(KEY_W, {KEY_LEFTALT});
    EXPECT_TRUE(agentReads(KTXHWrap, false));
    pressKey(KEY_N, {KEY_LEFTALT});
    EXPECT_TRUE(agentReads(KTXAnimate, true));
    pressKey(KEY_L, {KEY_LEFTALT}); // into the horizontal order
    pressKey(KEY_DOWN);
    EXPECT_TRUE(agentReads(KTXHSort, "LeftEdge"));
}

TEST_F(BehaviourByUser, theTutorialIsAskedOfTheRunningAgent)
{
    AgentProgram agent({"--foreground"}, agentProgram());
    ASSERT_TRUE(agent.waitForLaunch());
    showSettings();
    pressKey(KEY_S, {KEY_LEFTALT});
    EXPECT_TRUE(agent.waitForLine("tutorial requested"));
    EXPECT_TRUE(waitUntil([&] { return agents().size() == 1; })) << "but for the one that becomes the tutorial";
    EXPECT_EQ(agent.lines().count("tutorial requested"), 1);
    EXPECT_TRUE(waitUntil([] { return activeWindowTitle() == "Circle"; })) << "its first step is before the settings";
    EXPECT_EQ(processesOf(tutorialProgram()).size(), 1);
}

TEST_F(BehaviourByUser, theTutorialStartsAnAgentThatIsOffAndIsHeardByIt)
{
    letAgentWrite();
    showSettings();
    bus.clear();
    ASSERT_TRUE(runningAgent().isEmpty());
    pressKey(KEY_S, {KEY_LEFTALT});
    EXPECT_TRUE(waitUntil([this] { return linesOfAgent().contains("tutorial requested"); }))
        << linesOfAgent().join(u'\n').toStdString();
    EXPECT_EQ(linesOfAgent().count("tutorial requested"), 1);
    EXPECT_EQ(linesOfAgent().filter("launched").size(), 1);
    EXPECT_EQ(bus.names().count(KTXLMRunTutorial), 1);
    EXPECT_TRUE(waitUntil([] { return activeWindowTitle() == "Circle"; }));
}

TEST_F(BehaviourByUser, theTutorialIsNotRunForAnotherSender)
{
    AgentProgram agent({"--foreground"}, agentProgram());
    ASSERT_TRUE(agent.waitForLaunch());
    for (const QString &sender : {QString(), QString("com.example.Another"), KTXLMAgentID})
        bus.post(KTXLMRunTutorial, sender);
    bus.post(KTXLMRunTutorial, KTXLMAppID); // heard after them
    ASSERT_TRUE(agent.waitForLine("tutorial requested"));
    EXPECT_EQ(agent.lines().count("tutorial requested"), 1);
}

TEST_F(BehaviourByUser, aRequestForAPageBringsTheWindowBeforeAnotherProgramsAndLeavesThePage)
{
    showSettings();
    const QImage before = settings->settledPicture();
    QWidget another;
    another.setWindowTitle("Another program");
    another.show();
    ASSERT_TRUE(waitUntil([] { return activeWindowTitle() == "Another program"; }));
    bus.clear();
    bus.post(KTXPrefPaneToTab, "no such page");
    bus.post(KTXLMPrefsChanged, KTXLMAgentID); // answered after it
    ASSERT_TRUE(waitUntil([this] { return bus.names().count(KTXLMPrefsChanged) == 2; }));
    EXPECT_EQ(activeWindowTitle(), "Another program") << "a page that is not there brings nothing";
    bus.post(KTXPrefPaneToTab, "behaviour");
    EXPECT_TRUE(waitUntil([this] { return activeWindow() == settings->windows().first().id; }));
    another.hide();
    EXPECT_EQ(settings->settledPicture(), before);
}

TEST_F(BehaviourByUser, aRequestForAPageBringsMinimisedSettingsBack)
{
    showSettings();
    const quint32 window = settings->windows().first().id;
    minimise(window);
    ASSERT_TRUE(waitUntil([&] { return windowStates(window).contains("_NET_WM_STATE_HIDDEN"); }));
    bus.post(KTXPrefPaneToTab, "hotkeys");
    EXPECT_TRUE(waitUntil([&] { return !windowStates(window).contains("_NET_WM_STATE_HIDDEN"); }));
    EXPECT_TRUE(waitUntil([&] { return activeWindow() == window; }));
}
