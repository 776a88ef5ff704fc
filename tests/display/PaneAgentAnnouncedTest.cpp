// What the pane does when the agent, or who asks for it, is heard.

#include "PaneWithAgent.h"
#include "Wait.h"

#include "KTXConstants.h"
#include "platform/foundation/notifications/NSNotificationCenter.h"

#include <cmath>

namespace {

NSNotification launchedWithVersion(const QVariant &version)
{
    return {KTXLMAgentLaunched, KTXLMAgentID, {{KTXLMAgentVersion, version}}};
}

class PaneAgentAnnounced : public PaneWithAgent
{
protected:
    PaneAgentAnnounced() { changeInfo({{QStringLiteral("CFBundleVersion"), QStringLiteral("120")}}); }
};

} // namespace

TEST_F(PaneAgentAnnounced, aHigherVersionRelaunchesAndAnyOtherOnlyShows)
{
    controllingPane();
    ASSERT_EQ(pane().loadedVersion(), 120);
    const QList<std::pair<QVariant, bool>> versions{{QStringLiteral("130"), true}, {130, true}, {121, true},
        {QStringLiteral("99999999999999999999"), true}, {QVariant(Q_INT64_C(9223372036854775807)), true}, {120, false},
        {119, false}, {0, false}, {-130, false}, {QStringLiteral("-130"), false}, {QStringLiteral("new"), false},
        {QString(), false}, {true, false}, {130.5, true}, {std::nan(""), false}, {130u, true},
        {QByteArray("130"), false}, {QStringList{QStringLiteral("130")}, false}, {{}, false}};
    for (const auto &[version, relaunches] : versions) {
        calls.clear();
        pane().setAgentVisualsOff();
        pane().setAgentVisualsOn(launchedWithVersion(version));
        EXPECT_EQ(calls.count(QStringLiteral("relaunch")), relaunches ? 1 : 0) << qPrintable(version.toString());
        EXPECT_EQ(switchState(), NSOnState);
    }
}

TEST_F(PaneAgentAnnounced, withoutAVersionItOnlyShows)
{
    controllingPane().setAgentVisualsOn({});
    EXPECT_FALSE(calls.contains(QStringLiteral("relaunch")));
    EXPECT_EQ(switchState(), NSOnState);
}

TEST_F(PaneAgentAnnounced, beforeTheViewIsLoadedAnyPositiveVersionRelaunches)
{
    paneWithoutView().carryOut({QStringLiteral("setAgentVisualsOn:")});
    EXPECT_EQ(paneWithoutView().loadedVersion(), 0);
    calls.clear();
    bus().post(KTXLMAgentLaunched, KTXLMAgentID, {{KTXLMAgentVersion, 0}});
    ASSERT_TRUE(waitUntil([this] { return calls.contains(QStringLiteral("setAgentVisualsOn:")); }));
    EXPECT_FALSE(calls.contains(QStringLiteral("relaunch")));
    bus().post(KTXLMAgentLaunched, KTXLMAgentID, {{KTXLMAgentVersion, 1}});
    EXPECT_TRUE(waitUntil([this] { return calls.contains(QStringLiteral("relaunch")); }));
}

TEST_F(PaneAgentAnnounced, itRelaunchesThenTellsTheProcessThenShows)
{
    controllingPane().setAgentVisualsOff();
    calls.clear();
    QObject observer;
    NSNotificationCenter::defaultCenter()->addObserverSelectorNameObject(
        &observer,
        [this](const NSNotification &notification) {
            calls += QStringLiteral("told, the switch is %1").arg(switchState());
            EXPECT_FALSE(notification.object.isValid());
            EXPECT_TRUE(notification.userInfo.isEmpty());
        },
        KTXLMAgentLaunched);
    pane().setAgentVisualsOn(launchedWithVersion(130));
    EXPECT_EQ(calls,
        (QStringList{QStringLiteral("setAgentVisualsOn:"), QStringLiteral("relaunch"),
            QStringLiteral("told, the switch is 0")}));
    EXPECT_EQ(switchState(), NSOnState);
}

TEST_F(PaneAgentAnnounced, showingThePaneWhileTheAgentRunsTellsTheProcessToo)
{
    putAgent();
    controllingPane().startAgent();
    int told = 0;
    QObject observer;
    NSNotificationCenter::defaultCenter()->addObserverSelectorNameObject(
        &observer, [&told](const NSNotification &) { ++told; }, KTXLMAgentLaunched);
    pane().willSelect();
    EXPECT_EQ(told, 1);
}

TEST_F(PaneAgentAnnounced, whatTheAgentAnnouncesIsShown)
{
    controllingPane();
    bus().post(KTXLMAgentLaunched, KTXLMAgentID, {{KTXLMAgentVersion, 120}});
    EXPECT_TRUE(waitUntil([this] { return switchState() == NSOnState; }));
    EXPECT_EQ(text("enabledState"), QStringLiteral("Lumaroo Enabled"));
    bus().post(KTXLMAgentIsTerminating, KTXLMAgentID);
    EXPECT_TRUE(waitUntil([this] { return switchState() == NSOffState; }));
    EXPECT_EQ(text("enabledState"), QStringLiteral("Lumaroo Disabled"));
}

TEST_F(PaneAgentAnnounced, anotherProgramMayAskThePaneToLaunchTheAgent)
{
    putAgent();
    controllingPane();
    bus().post(KTXLMPrefPaneLaunchAgent, {});
    EXPECT_TRUE(waitUntil([] { return agents().size() == 1; }));
}

TEST_F(PaneAgentAnnounced, aRequestToLaunchTheAgentWhileItRunsLaunchesNoSecondOne)
{
    putAgent();
    controllingPane().startAgent();
    const QList<pid_t> running = agents();
    calls.clear();
    bus().post(KTXLMPrefPaneLaunchAgent, {});
    ASSERT_TRUE(waitUntil([this] { return calls.contains(QStringLiteral("startAgent")); }));
    EXPECT_EQ(agents(), running);
}

TEST_F(PaneAgentAnnounced, theSwitchFollowsTheAgentWhileThePaneIsHidden)
{
    controllingPane();
    pane().willSelect();
    pane().willUnselect();
    pane().didUnselect();
    bus().post(KTXLMAgentLaunched, KTXLMAgentID);
    EXPECT_TRUE(waitUntil([this] { return switchState() == NSOnState; }));
}
