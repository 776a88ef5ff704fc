// How the pane starts, stops and shows the agent, with a stand-in that only runs; with the real agent it is tested as a
// whole program.

#include "CapturedLog.h"
#include "PaneOnRealStore.h"
#include "RunningPrograms.h"
#include "TestApplication.h"
#include "Wait.h"

#include "KTXConstants.h"
#include "platform/foundation/NSException.h"
#include "platform/foundation/NSNotificationCenter.h"
#include "platform/foundation/Processes.h"

#include <QPalette>
#include <QProcess>

namespace {

const QString agentProgram = QStringLiteral("Contents/Resources/LumarooAgent.app/Contents/Linux/LumarooAgent");
const QString agentInfo = QStringLiteral("Contents/Resources/LumarooAgent.app/Contents/Info.plist");
const QByteArray agentInfoText = R"(<plist version="1.0"><dict>
<key>CFBundleIdentifier</key><string>com.quorvane.LumarooAgent</string>
<key>CFBundleExecutable</key><string>LumarooAgent</string>
</dict></plist>)";

NSNotification launchedWithVersion(const QVariant &version)
{
    return {KTXLMAgentLaunched, KTXLMAgentID, {{KTXLMAgentVersion, version}}};
}

class PaneAgentControl : public PaneOnRealStore
{
protected:
    PaneAgentControl() { changeInfo({{QStringLiteral("CFBundleVersion"), QStringLiteral("120")}}); }
    ~PaneAgentControl() override
    {
        for (const pid_t agent : agents())
            killProcess(agent);
    }

    void putAgent()
    {
        bundle().writeFile(agentInfo, agentInfoText);
        bundle().copyProgram(agentProgram, TestApplication::idleProgram());
    }

    /// Everything but restarting the settings is really done.
    RecordingPane &controllingPane()
    {
        pane().carryOut({QStringLiteral("updateAgentVisuals"), QStringLiteral("setAgentVisualsOn:"),
            QStringLiteral("setAgentVisualsOff"), QStringLiteral("startAgent"), QStringLiteral("stopAgent")});
        calls.clear();
        return pane();
    }

    static QList<pid_t> agents()
    {
        QList<pid_t> found;
        ProcessSerialNumber process;
        while (GetNextProcess(&process) == noErr) {
            const QVariantMap information = ProcessInformationCopyDictionary(process, 0xFFFFFFFF);
            if (information.value(kCFBundleIdentifierKey) == KTXLMAgentID)
                found += pid_t(process.lowLongOfPSN);
        }
        return found;
    }

    void failure(int line, const QString &description)
    {
        try {
            pane().startAgent();
            FAIL() << "nothing was thrown";
        } catch (const AssertionFailure &failure) {
            EXPECT_EQ(failure.name(), QStringLiteral("NSInternalInconsistencyException"));
            EXPECT_EQ(failure.method(), QStringLiteral("startAgent"));
            EXPECT_EQ(failure.object(), &pane());
            EXPECT_EQ(failure.file(), QStringLiteral("KTXLumarooPreferencePane"));
            EXPECT_EQ(failure.line(), line);
            EXPECT_EQ(failure.description(), description);
        }
        EXPECT_TRUE(agents().isEmpty());
    }

    int switchState() { return state(control("toggleStateButton")); }
    QColor stateColor() { return control("enabledState")->palette().color(QPalette::WindowText); }
};

} // namespace

TEST_F(PaneAgentControl, withoutARunningAgentTheSwitchIsOffAndTheLineRed)
{
    controllingPane().updateAgentVisuals();
    EXPECT_EQ(controllingPane().agentPSN(), kNoProcess);
    EXPECT_EQ(switchState(), NSOffState);
    EXPECT_EQ(text("enabledState"), QStringLiteral("Lumaroo Disabled"));
    EXPECT_EQ(stateColor(), QColor(Qt::red));
}

TEST_F(PaneAgentControl, whileTheAgentRunsTheSwitchIsOnAndTheLineBlack)
{
    putAgent();
    ASSERT_TRUE(controllingPane().startAgent());
    ASSERT_EQ(agents().size(), 1);
    EXPECT_EQ(controllingPane().agentPSN(), (ProcessSerialNumber{0, quint32(agents().first())}));
    EXPECT_NE(switchState(), NSOnState) << "it has not announced itself";
    controllingPane().updateAgentVisuals();
    EXPECT_EQ(switchState(), NSOnState);
    EXPECT_EQ(text("enabledState"), QStringLiteral("Lumaroo Enabled"));
    EXPECT_EQ(stateColor(), QColor(Qt::black));
}

TEST_F(PaneAgentControl, showingThePaneTellsTheTruthAfterTheAgentWasKilled)
{
    putAgent();
    controllingPane().startAgent();
    pane().willSelect();
    EXPECT_EQ(switchState(), NSOnState);
    killProcess(agents().first());
    EXPECT_EQ(switchState(), NSOnState) << "nobody told";
    pane().willSelect();
    EXPECT_EQ(switchState(), NSOffState);
    EXPECT_EQ(text("enabledState"), QStringLiteral("Lumaroo Disabled"));
}

TEST_F(PaneAgentControl, aProcessWithTheAgentsFileNameIsNoAgent)
{
    putAgent();
    const TestBundle elsewhere(QStringLiteral("Other.app"));
    elsewhere.copyProgram(QStringLiteral("Contents/Linux/LumarooAgent"), TestApplication::idleProgram());
    QProcess process;
    process.start(elsewhere.path() + QStringLiteral("/Contents/Linux/LumarooAgent"), {});
    ASSERT_TRUE(process.waitForStarted());
    EXPECT_EQ(controllingPane().agentPSN(), kNoProcess);
    EXPECT_TRUE(controllingPane().startAgent());
    EXPECT_EQ(agents().size(), 1);
    process.kill();
    process.waitForFinished();
}

TEST_F(PaneAgentControl, startingARunningAgentStartsNoSecondOne)
{
    putAgent();
    EXPECT_TRUE(controllingPane().startAgent());
    const QList<pid_t> running = agents();
    EXPECT_TRUE(controllingPane().startAgent());
    EXPECT_EQ(agents(), running);
}

TEST_F(PaneAgentControl, anAgentWhoseBundleWasExchangedStillRunsAndGetsNoSecond)
{
    putAgent();
    controllingPane().startAgent();
    const QList<pid_t> running = agents();
    const QString application = bundle().resourcePath() + QStringLiteral("/LumarooAgent.app");
    ASSERT_TRUE(QDir(application).removeRecursively());
    EXPECT_EQ(agents(), running);
    putAgent();
    EXPECT_TRUE(controllingPane().startAgent());
    EXPECT_EQ(agents(), running);
}

TEST_F(PaneAgentControl, aMissingAgentIsAFailureAndTheStateStays)
{
    controllingPane().setAgentVisualsOn({});
    failure(47, QStringLiteral("No path found for Lumaroo.agent"));
    EXPECT_EQ(switchState(), NSOnState);
    EXPECT_EQ(text("enabledState"), QStringLiteral("Lumaroo Enabled"));
}

TEST_F(PaneAgentControl, anAgentThatIsMissingIsAFailureEvenWhileOneRuns)
{
    putAgent();
    controllingPane().startAgent();
    const QString application = bundle().resourcePath() + QStringLiteral("/LumarooAgent.app");
    ASSERT_TRUE(QDir(application).removeRecursively());
    EXPECT_THROW(pane().startAgent(), AssertionFailure);
}

TEST_F(PaneAgentControl, anAgentThatCannotBeRunIsAFailureAndTheStateStays)
{
    putAgent();
    controllingPane().setAgentVisualsOff();
    QFile::setPermissions(bundle().path() + u'/' + agentProgram, QFile::ReadOwner);
    failure(63, QStringLiteral("Can't Launch Lumaroo.agent"));
    EXPECT_EQ(switchState(), NSOffState);
}

TEST_F(PaneAgentControl, anAgentWithABrokenInfoDictionaryIsAFailure)
{
    putAgent();
    bundle().writeFile(agentInfo, "<plist><dict>");
    controllingPane();
    failure(63, QStringLiteral("Can't Launch Lumaroo.agent"));
}

TEST_F(PaneAgentControl, aFailureToStartFromTheSwitchIsLoggedAndEndsThere)
{
    controllingPane();
    CapturedLog log;
    performClick(control("toggleStateButton"));
    EXPECT_EQ(calls, (QStringList{QStringLiteral("startAgent")}));
    EXPECT_EQ(log.linesContaining(QStringLiteral("No path found for Lumaroo.agent")).size(), 1);
    EXPECT_EQ(log.linesContaining(QStringLiteral("KTXLumarooPreferencePane:47")).size(), 1);
}

TEST_F(PaneAgentControl, theSwitchOnStartsAndOffStopsAndTheLineWaitsForTheAnswer)
{
    putAgent();
    controllingPane().setAgentVisualsOff();
    calls.clear();
    bus().clear();
    performClick(control("toggleStateButton"));
    EXPECT_EQ(calls, (QStringList{QStringLiteral("startAgent")}));
    EXPECT_EQ(text("enabledState"), QStringLiteral("Lumaroo Disabled"));
    performClick(control("toggleStateButton"));
    EXPECT_EQ(calls, (QStringList{QStringLiteral("startAgent"), QStringLiteral("stopAgent")}));
    EXPECT_EQ(bus().notifications(), (QList<BusNotification>{{KTXLMAgentShouldTerminate, KTXLMAppID, {}, true}}));
    EXPECT_EQ(agents().size(), 1) << "this agent does not answer";
    EXPECT_EQ(switchState(), NSOffState) << "the switch stays as the user left it";
    pane().willSelect();
    EXPECT_EQ(switchState(), NSOnState) << "the next showing tells";
}

TEST_F(PaneAgentControl, aSwitchThatIsNeitherOnNorOffStops)
{
    QCheckBox mixed;
    mixed.setTristate(true);
    mixed.setCheckState(Qt::PartiallyChecked);
    pane();
    calls.clear();
    pane().toggleAgent(&mixed);
    EXPECT_EQ(calls, (QStringList{QStringLiteral("stopAgent")}));
}

TEST_F(PaneAgentControl, stoppingAsksWhetherOrNotTheAgentRuns)
{
    controllingPane();
    bus().clear();
    pane().stopAgent();
    EXPECT_EQ(bus().notifications(), (QList<BusNotification>{{KTXLMAgentShouldTerminate, KTXLMAppID, {}, true}}));
}

TEST_F(PaneAgentControl, aHigherVersionRelaunchesAndAnyOtherOnlyShows)
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

TEST_F(PaneAgentControl, withoutAVersionItOnlyShows)
{
    controllingPane().setAgentVisualsOn({});
    EXPECT_FALSE(calls.contains(QStringLiteral("relaunch")));
    EXPECT_EQ(switchState(), NSOnState);
}

TEST_F(PaneAgentControl, beforeTheViewIsLoadedAnyPositiveVersionRelaunches)
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

TEST_F(PaneAgentControl, itRelaunchesThenTellsTheProcessThenShows)
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

TEST_F(PaneAgentControl, showingThePaneWhileTheAgentRunsTellsTheProcessToo)
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

TEST_F(PaneAgentControl, whatTheAgentAnnouncesIsShown)
{
    controllingPane();
    bus().post(KTXLMAgentLaunched, KTXLMAgentID, {{KTXLMAgentVersion, 120}});
    EXPECT_TRUE(waitUntil([this] { return switchState() == NSOnState; }));
    EXPECT_EQ(text("enabledState"), QStringLiteral("Lumaroo Enabled"));
    bus().post(KTXLMAgentIsTerminating, KTXLMAgentID);
    EXPECT_TRUE(waitUntil([this] { return switchState() == NSOffState; }));
    EXPECT_EQ(text("enabledState"), QStringLiteral("Lumaroo Disabled"));
}

TEST_F(PaneAgentControl, anotherProgramMayAskThePaneToLaunchTheAgent)
{
    putAgent();
    controllingPane();
    bus().post(KTXLMPrefPaneLaunchAgent, {});
    EXPECT_TRUE(waitUntil([] { return agents().size() == 1; }));
}

TEST_F(PaneAgentControl, aRequestToLaunchTheAgentWhileItRunsLaunchesNoSecondOne)
{
    putAgent();
    controllingPane().startAgent();
    const QList<pid_t> running = agents();
    calls.clear();
    bus().post(KTXLMPrefPaneLaunchAgent, {});
    ASSERT_TRUE(waitUntil([this] { return calls.contains(QStringLiteral("startAgent")); }));
    EXPECT_EQ(agents(), running);
}

TEST_F(PaneAgentControl, aFirstRunWithoutAnAgentEndsTheLoadingThere)
{
    paneWithoutView().carryOut({QStringLiteral("startAgent")});
    EXPECT_THROW(pane(), AssertionFailure);
    EXPECT_EQ(paneWithoutView().loadedVersion(), 0);
    EXPECT_EQ(text("versionField"), QString());
}

TEST_F(PaneAgentControl, theSwitchFollowsTheAgentWhileThePaneIsHidden)
{
    controllingPane();
    pane().willSelect();
    pane().willUnselect();
    pane().didUnselect();
    bus().post(KTXLMAgentLaunched, KTXLMAgentID);
    EXPECT_TRUE(waitUntil([this] { return switchState() == NSOnState; }));
}

TEST_F(PaneAgentControl, eachOperationLogsWhileDebugging)
{
    putAgent();
    controllingPane();
    store().set(KTXShouldDebug, QVariant(true));
    CapturedLog log;
    pane().setAgentVisualsOn({});
    pane().setAgentVisualsOff();
    pane().startAgent();
    pane().stopAgent();
    EXPECT_EQ(log.lines(),
        (QStringList{QStringLiteral("Lumaroo prefPane: setAgentVisualsOn"),
            QStringLiteral("Lumaroo prefPane: setAgentVisualsOff"), QStringLiteral("Lumaroo prefPane: startAgent"),
            QStringLiteral("Lumaroo prefPane: stopAgent")}));
    store().set(KTXShouldDebug, QVariant(false));
    log.clear();
    pane().setAgentVisualsOn({});
    pane().setAgentVisualsOff();
    pane().startAgent();
    pane().stopAgent();
    EXPECT_EQ(log.lines(), QStringList());
}
