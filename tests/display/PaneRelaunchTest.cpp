// What the pane does to bring newer code in, with a stand-in for the launcher; with the real one it is tested as a
// whole program.

#include "CapturedLog.h"
#include "HostProgram.h"
#include "PaneBundle.h"
#include "PaneOnRealStore.h"
#include "RunningPrograms.h"
#include "TestApplication.h"
#include "Wait.h"

#include "KTXConstants.h"
#include "platform/appkit/NSApplication.h"
#include "platform/foundation/NSException.h"
#include "platform/foundation/notifications/NSNotificationCenter.h"

namespace {

class PaneRelaunch : public PaneOnRealStore
{
protected:
    PaneRelaunch()
    {
        NSApplication::sharedApplication()->setTerminationHandler([this] { ++terminations; });
    }
    ~PaneRelaunch() override { NSApplication::sharedApplication()->setTerminationHandler({}); }

    /// A launcher that writes its arguments and where its input comes from to a file beside it, and ends.
    void putLauncher() const
    {
        bundle().writeScript(QStringLiteral("Contents/Resources/launcher"),
            "printf '%s\\n' \"$@\" >\"$0.new\"\n"
            "readlink /proc/$$/fd/0 >>\"$0.new\"\n"
            "mv \"$0.new\" \"$0.done\"\n");
    }

    void relaunch()
    {
        pane().carryOut({QStringLiteral("relaunch")});
        pane().relaunch();
    }

    QStringList launcherReport()
    {
        const QString report = bundle().resourcePath() + QStringLiteral("/launcher.done");
        EXPECT_TRUE(waitUntil([&] { return QFile::exists(report); }));
        return linesOf(report);
    }

    int terminations = 0;
};

} // namespace

TEST_F(PaneRelaunch, startsTheLauncherWithTwoArgumentsAndAPipeAndAsksTheHostToEnd)
{
    putLauncher();
    relaunch();
    EXPECT_EQ(terminations, 1);
    const QStringList report = launcherReport();
    ASSERT_EQ(report.size(), 3);
    EXPECT_EQ(report[0], bundle().path());
    EXPECT_EQ(report[1], QStringLiteral("No"));
    EXPECT_TRUE(report[2].startsWith(QStringLiteral("pipe:")));
}

TEST_F(PaneRelaunch, tellsTheLauncherWhetherItIsDebugging)
{
    putLauncher();
    pane();
    store().set(KTXShouldDebug, QVariant(true));
    CapturedLog log;
    relaunch();
    EXPECT_EQ(launcherReport().value(1), QStringLiteral("Yes"));
    EXPECT_EQ(log.lines(),
        (QStringList{
            QStringLiteral("Lumaroo prefPane: relaunch"), QStringLiteral("Lumaroo prefPane: relaunch -- path found")}));
}

TEST_F(PaneRelaunch, withoutALauncherNothingHappens)
{
    pane();
    store().set(KTXShouldDebug, QVariant(true));
    CapturedLog log;
    relaunch();
    EXPECT_EQ(terminations, 0);
    EXPECT_EQ(log.lines(),
        (QStringList{QStringLiteral("Lumaroo prefPane: relaunch"),
            QStringLiteral("Lumaroo prefPane: relaunch -- no path found for launcher")}));
}

TEST_F(PaneRelaunch, withoutDebuggingItLogsNothing)
{
    pane();
    CapturedLog log;
    relaunch();
    putLauncher();
    relaunch();
    EXPECT_EQ(log.lines(), QStringList());
}

TEST_F(PaneRelaunch, aLauncherThatCannotBeRunDoesNotEndTheHost)
{
    putLauncher();
    QFile::setPermissions(bundle().resourcePath() + QStringLiteral("/launcher"), QFile::ReadOwner);
    EXPECT_THROW(relaunch(), NSException);
    EXPECT_EQ(terminations, 0);
}

TEST_F(PaneRelaunch, theLauncherRunsBeforeTheHostIsAskedToEnd)
{
    bundle().copyProgram(QStringLiteral("Contents/Resources/launcher"), TestApplication::idleProgram());
    const QString launcher = bundle().resourcePath() + QStringLiteral("/launcher");
    QList<pid_t> launchersThen;
    NSApplication::sharedApplication()->setTerminationHandler([&] { launchersThen = processesOf(launcher); });
    relaunch();
    EXPECT_EQ(launchersThen.size(), 1);
    killProcessesOf(launcher);
}

TEST_F(PaneRelaunch, anAgentIsShownOnAlsoWhereItsLauncherCannotBeRun)
{
    putLauncher();
    QFile::setPermissions(bundle().resourcePath() + QStringLiteral("/launcher"), QFile::ReadOwner);
    pane().carryOut({QStringLiteral("setAgentVisualsOn:"), QStringLiteral("relaunch")});
    int told = 0;
    QObject observer;
    NSNotificationCenter::defaultCenter()->addObserverSelectorNameObject(
        &observer, [&told](const NSNotification &) { ++told; }, KTXLMAgentLaunched);
    const CapturedLog log;
    pane().setAgentVisualsOn({KTXLMAgentLaunched, KTXLMAgentID, {{KTXLMAgentVersion, 100000}}});
    EXPECT_EQ(told, 1);
    EXPECT_EQ(state(control("toggleStateButton")), NSOnState);
    EXPECT_EQ(text("enabledState"), QStringLiteral("Lumaroo Enabled"));
    EXPECT_EQ(log.linesContaining(QStringLiteral("cannot be run")).size(), 1);
    EXPECT_EQ(terminations, 0);
}

TEST_F(PaneRelaunch, aHigherVersionOnDiskThanWasLoadedRelaunchesOnTheNextTurn)
{
    changeInfo({{QStringLiteral("CFBundleVersion"), QStringLiteral("120")}});
    paneWithoutView();
    changeInfo({{QStringLiteral("CFBundleVersion"), QStringLiteral("121")}});
    putLauncher();
    paneWithoutView().carryOut({QStringLiteral("relaunch")});
    pane();
    EXPECT_EQ(terminations, 0);
    runPendingEvents();
    EXPECT_EQ(terminations, 1);
}
