// How the pane starts, stops and shows the agent, with a stand-in that only runs; with the real agent it is tested as a
// whole program.

#include "CapturedLog.h"
#include "PaneWithAgent.h"
#include "RunningPrograms.h"
#include "TestApplication.h"
#include "Wait.h"

#include "KTXConstants.h"
#include "platform/foundation/NSException.h"

#include <QCheckBox>
#include <QDir>
#include <QPalette>
#include <QProcess>

namespace {

class PaneAgentControl : public PaneWithAgent
{
protected:
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

    QColor stateColor() { return textColor(control("enabledState")); }
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
    ASSERT_TRUE(QDir(agentBundle()).removeRecursively());
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
    ASSERT_TRUE(QDir(agentBundle()).removeRecursively());
    EXPECT_THROW(pane().startAgent(), AssertionFailure);
}

TEST_F(PaneAgentControl, anAgentThatCannotBeRunIsAFailureAndTheStateStays)
{
    putAgent();
    controllingPane().setAgentVisualsOff();
    QFile::setPermissions(agentProgram(), QFile::ReadOwner);
    failure(63, QStringLiteral("Can't Launch Lumaroo.agent"));
    EXPECT_EQ(switchState(), NSOffState);
}

TEST_F(PaneAgentControl, anAgentWithABrokenInfoDictionaryIsAFailure)
{
    putAgent();
    bundle().writeFile(QStringLiteral("Contents/Resources/LumarooAgent.app/Contents/Info.plist"), "<plist><dict>");
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

TEST_F(PaneAgentControl, aFirstRunWithoutAnAgentEndsTheLoadingThere)
{
    paneWithoutView().carryOut({QStringLiteral("startAgent")});
    EXPECT_THROW(pane(), AssertionFailure);
    EXPECT_EQ(paneWithoutView().loadedVersion(), 0);
    EXPECT_EQ(text("versionField"), QString());
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
