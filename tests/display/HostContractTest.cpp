// The order in which the host calls a pane, in every way of showing and leaving one.

#include "CapturedLog.h"
#include "PaneBundle.h"
#include "Wait.h"
#include "host/SettingsApplication.h"

#include <QApplication>
#include <QDialog>
#include <QPushButton>
#include <QSignalSpy>
#include <QTimer>
#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

class AHostWithTwoPanes : public testing::Test
{
protected:
    void show(PaneBundle &pane)
    {
        host.open(pane.identifier(), QString());
        ASSERT_TRUE(waitUntil([&] { return pane.calls().contains("didSelect shown"); }));
    }
    void showFirst()
    {
        host.start(first.identifier());
        ASSERT_TRUE(waitUntil([&] { return first.calls().contains("didSelect shown"); }));
        first.takeCalls();
    }
    void click(const char *button) { host.window()->findChild<QPushButton *>(button)->click(); }
    QString shownPage() { return host.window()->windowTitle(); }

    /// Runs the program's event loop, starting with `wish`, until the host ends it.
    void runUntilItEnds(const std::function<void()> &wish)
    {
        QTimer::singleShot(0, wish);
        QTimer::singleShot(20000, &host, [] { QCoreApplication::exit(1); });
        EXPECT_EQ(QCoreApplication::exec(), 0);
        host.finish();
    }

    PaneBundle first{"First"};
    PaneBundle second{"Second"};
    SettingsApplication host{{first.folder(), second.folder()}};
};

TEST_F(AHostWithTwoPanes, showsAPaneInTheContractsOrder)
{
    host.start(first.identifier());
    ASSERT_TRUE(waitUntil([&] { return first.calls().contains("didSelect shown"); }));
    EXPECT_THAT(first.calls(),
        ElementsAre("initialize", "initWithBundle", "mainViewDidLoad hidden", "willSelect hidden", "didSelect shown"));
}

TEST_F(AHostWithTwoPanes, loadsTheViewBeforeTheEventLoopRunsAgain)
{
    first.wish("initWithBundle", "post");
    host.start(first.identifier());
    ASSERT_TRUE(waitUntil([&] { return first.calls().contains("run loop"); }));
    EXPECT_LT(first.calls().indexOf("mainViewDidLoad hidden"), first.calls().indexOf("run loop"));
}

TEST_F(AHostWithTwoPanes, goesBackToTheOverviewInTheContractsOrder)
{
    showFirst();
    host.showOverview();
    EXPECT_THAT(first.takeCalls(), ElementsAre("shouldUnselect shown", "willUnselect shown", "didUnselect hidden"));
    EXPECT_EQ(shownPage(), "Settings");
}

TEST_F(AHostWithTwoPanes, keepsALoadedPaneAndShowsItAgain)
{
    showFirst();
    host.showOverview();
    first.takeCalls();
    host.open(first.path(), QString());
    ASSERT_TRUE(waitUntil([&] { return first.calls().count("didSelect shown") == 2; }));
    EXPECT_THAT(first.takeCalls(), ElementsAre("willSelect hidden", "didSelect shown"));
}

TEST_F(AHostWithTwoPanes, asksNothingOfAPaneThatIsShownAlready)
{
    showFirst();
    host.open(first.identifier(), QString());
    runPendingEvents();
    EXPECT_THAT(first.takeCalls(), IsEmpty());
}

TEST_F(AHostWithTwoPanes, leavesOnePaneWhollyBeforeItLoadsTheNext)
{
    const QString both = first.folder() + "/both";
    qputenv("LUMAROO_TEST_CALLS", both.toUtf8());
    showFirst();
    show(second);
    qunsetenv("LUMAROO_TEST_CALLS");
    EXPECT_THAT(linesOf(both).mid(5),
        ElementsAre("First shouldUnselect", "First willUnselect", "First didUnselect", "Second initialize",
            "Second initWithBundle", "Second mainViewDidLoad", "Second willSelect", "Second didSelect"));
}

TEST_F(AHostWithTwoPanes, endsWithTheWindowAndReleasesThePane)
{
    showFirst();
    runUntilItEnds([&] { host.window()->close(); });
    EXPECT_THAT(
        first.takeCalls(), ElementsAre("shouldUnselect shown", "willUnselect shown", "didUnselect hidden", "dealloc"));
    EXPECT_FALSE(host.window()->isVisible());
}

TEST_F(AHostWithTwoPanes, releasesEveryLoadedPaneWhenItQuits)
{
    showFirst();
    show(second);
    first.takeCalls();
    second.takeCalls();
    runUntilItEnds([&] { host.terminate(); });
    EXPECT_THAT(first.takeCalls(), ElementsAre("dealloc"));
    EXPECT_THAT(
        second.takeCalls(), ElementsAre("shouldUnselect shown", "willUnselect shown", "didUnselect hidden", "dealloc"));
}

TEST_F(AHostWithTwoPanes, keepsAPaneThatRefusesToBeLeft)
{
    showFirst();
    first.wish("shouldUnselect", "cancel");
    const std::function<void()> waysOfLeaving[] = {[&] { host.showOverview(); },
        [&] { host.open(second.path(), QString()); }, [&] { host.window()->close(); }, [&] { host.terminate(); }};
    for (const auto &leave : waysOfLeaving) {
        leave();
        runPendingEvents();
        EXPECT_THAT(first.takeCalls(), ElementsAre("shouldUnselect shown"));
        EXPECT_EQ(shownPage(), "First");
        EXPECT_TRUE(host.window()->isVisible());
    }
    EXPECT_THAT(second.calls(), IsEmpty());
}

TEST_F(AHostWithTwoPanes, waitsForAnAnswerThatComesLater)
{
    showFirst();
    first.wish("shouldUnselect", "later");
    host.showOverview();
    runPendingEvents();
    EXPECT_THAT(first.takeCalls(), ElementsAre("shouldUnselect shown"));
    EXPECT_EQ(shownPage(), "First");
    click("yes");
    EXPECT_THAT(first.takeCalls(), ElementsAre("willUnselect shown", "didUnselect hidden"));
    EXPECT_EQ(shownPage(), "Settings");
}

TEST_F(AHostWithTwoPanes, staysWhenTheLaterAnswerIsNo)
{
    showFirst();
    first.wish("shouldUnselect", "later");
    host.showOverview();
    click("no");
    EXPECT_THAT(first.takeCalls(), ElementsAre("shouldUnselect shown"));
    EXPECT_EQ(shownPage(), "First");
    // An answer that nobody awaits changes nothing.
    click("yes");
    EXPECT_THAT(first.takeCalls(), IsEmpty());
    EXPECT_EQ(shownPage(), "First");
}

TEST_F(AHostWithTwoPanes, takesAnAnswerGivenWithinTheQuestion)
{
    showFirst();
    first.wish("shouldUnselect", "reply at once");
    host.showOverview();
    EXPECT_THAT(first.takeCalls(), ElementsAre("shouldUnselect shown", "willUnselect shown", "didUnselect hidden"));
}

TEST_F(AHostWithTwoPanes, goesWhereTheUserLastWantedOnceTheAnswerComes)
{
    showFirst();
    first.wish("shouldUnselect", "later");
    host.showOverview();
    host.open(second.path(), QString());
    EXPECT_EQ(first.takeCalls().count("shouldUnselect shown"), 1);
    click("yes");
    EXPECT_EQ(shownPage(), "Second");
}

TEST_F(AHostWithTwoPanes, servesARequestOnceThePaneWasKeptThoughItWasToEnd)
{
    const QSignalSpy ending(&host, &SettingsApplication::ending);
    showFirst();
    first.wish("shouldUnselect", "later");
    host.terminate();
    host.showOverview();
    host.open(second.path(), QString());
    EXPECT_THAT(first.takeCalls(), ElementsAre("shouldUnselect shown"));
    EXPECT_EQ(shownPage(), "First");
    first.wish("shouldUnselect", "");
    click("no");
    EXPECT_TRUE(waitUntil([&] { return shownPage() == "Second"; }));
    EXPECT_EQ(host.requestLeft(), "");
    EXPECT_EQ(ending.count(), 0);
}

TEST_F(AHostWithTwoPanes, leavesARequestToAnotherWhenItEnds)
{
    const QSignalSpy ending(&host, &SettingsApplication::ending);
    showFirst();
    first.wish("shouldUnselect", "later");
    runUntilItEnds([&] {
        host.terminate();
        host.open(second.path(), QString());
        EXPECT_EQ(ending.count(), 0);
        click("yes");
        EXPECT_EQ(ending.count(), 1);
    });
    EXPECT_EQ(host.requestLeft(), second.path());
    EXPECT_THAT(second.calls(), IsEmpty());
}

TEST_F(AHostWithTwoPanes, leavesNoRequestWhenTheSessionEnds)
{
    const QSignalSpy ending(&host, &SettingsApplication::ending);
    showFirst();
    first.wish("shouldUnselect", "later");
    runUntilItEnds([&] {
        host.terminate();
        host.open(second.path(), QString());
        host.terminateAtOnce();
        host.open(second.path(), QString());
    });
    EXPECT_EQ(ending.count(), 1);
    EXPECT_EQ(host.requestLeft(), "");
}

TEST_F(AHostWithTwoPanes, asksNobodyWhenTheSessionEnds)
{
    showFirst();
    first.wish("shouldUnselect", "cancel");
    runUntilItEnds([&] { host.terminateAtOnce(); });
    EXPECT_THAT(first.takeCalls(), ElementsAre("willUnselect shown", "didUnselect hidden", "dealloc"));
}

TEST_F(AHostWithTwoPanes, endsAPanesQuestionBeforeItReleasesThePane)
{
    showFirst();
    first.wish("shouldUnselect", "ask");
    QTimer sessionEnd;
    sessionEnd.callOnTimeout([&] {
        if (QApplication::activeModalWidget())
            host.terminateAtOnce();
    });
    sessionEnd.start(0);
    runUntilItEnds([&] { host.showOverview(); });
    EXPECT_THAT(first.takeCalls(),
        ElementsAre("shouldUnselect shown", "question ended", "willUnselect shown", "didUnselect hidden", "dealloc"));
}

TEST_F(AHostWithTwoPanes, asksOnlyOnceAWindowThatBlocksItIsGone)
{
    showFirst();
    QDialog dialog;
    dialog.setModal(true);
    dialog.show();
    ASSERT_TRUE(waitUntil([&] { return QApplication::activeModalWidget() == &dialog; }));
    host.open(second.identifier(), QString());
    runPendingEvents();
    EXPECT_THAT(first.takeCalls(), IsEmpty());
    dialog.close();
    ASSERT_TRUE(waitUntil([&] { return second.calls().contains("didSelect shown"); }));
    EXPECT_EQ(shownPage(), "Second");
}

TEST_F(AHostWithTwoPanes, logsWhatAPaneThrowsAndCarriesOn)
{
    CapturedLog log;
    const char *const calls[] = {
        "mainViewDidLoad", "willSelect", "didSelect", "shouldUnselect", "willUnselect", "didUnselect"};
    for (const char *call : calls)
        first.wish(call, "throw");
    showFirst();
    EXPECT_EQ(shownPage(), "First");
    host.showOverview();
    EXPECT_EQ(shownPage(), "Settings");
    for (const char *call : calls)
        EXPECT_EQ(log.linesContaining(QString("TestException: %1").arg(call)).size(), 1) << call;
}

TEST_F(AHostWithTwoPanes, initialisesThePrincipalClassOnceThoughThePaneFailsFirst)
{
    first.wish("initWithBundle", "fail");
    host.start(first.identifier());
    first.wish("initWithBundle", "");
    show(first);
    EXPECT_EQ(first.calls().count("initialize"), 1);
    EXPECT_EQ(first.calls().count("initWithBundle"), 2);
}
