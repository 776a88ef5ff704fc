// Turning pages, being asked to come forward, and asking the agent for its tutorial.

#include "BellListener.h"
#include "CapturedLog.h"
#include "PaneWithAgent.h"
#include "Wait.h"

#include "KTXActionKeys.h"
#include "KTXConstants.h"
#include "KeyCodeTranslator.h"
#include "platform/foundation/NSException.h"
#include "platform/foundation/notifications/NSNotificationCenter.h"
#include "platform/foundation/preferences/CFPreferences.h"

#include <QTabBar>

namespace {

class PaneTabs : public PaneWithAgent
{
protected:
    PaneTabs() { store().set(KTXFirstLaunch, QVariant(true)); }

    void turnTo(int page)
    {
        selectTabViewItemAtIndex(control("tabbedView"), page);
        runPendingEvents();
    }

    QWidget *marker(int row) { return viewWithTag(pane().mainView(), row + 5); }

    /// A pane that really starts an agent, which then announces itself only where the test does it for it.
    RecordingPane &paneWithAgent()
    {
        putAgent();
        return paneThatCarriesOut({QStringLiteral("startAgent"), QStringLiteral("setAgentVisualsOn:")});
    }

    void agentAnnouncesItself()
    {
        const qsizetype before = calls.count(QStringLiteral("setAgentVisualsOn:"));
        bus().post(KTXLMAgentLaunched, KTXLMAgentID);
        ASSERT_TRUE(waitUntil([&] { return calls.count(QStringLiteral("setAgentVisualsOn:")) > before; }));
    }

    QList<BusNotification> requests()
    {
        QList<BusNotification> posted = bus().notifications();
        posted.removeIf([](const BusNotification &notification) { return notification.name != KTXLMRunTutorial; });
        return posted;
    }

    const QList<BusNotification> oneRequest{{KTXLMRunTutorial, KTXLMAppID, {}, true}};
};

} // namespace

TEST_F(PaneTabs, everyPageReadsTheSettingsAndOnlyTheFirstTheAgentsState)
{
    showPane();
    const QList<int> pages{1, 2, 3, 4, 5, 0};
    for (const int page : pages) {
        store().set(KTXAnimate, QVariant(!store().value(KTXAnimate).toBool()));
        calls.clear();
        bus().clear();
        turnTo(page);
        EXPECT_EQ(state(control("animateButton")) == NSOnState, store().value(KTXAnimate).toBool()) << "page " << page;
        EXPECT_EQ(bus().names(), QStringList(KTXLMPrefsChanged));
        EXPECT_EQ(calls, page == 0 ? QStringList(QStringLiteral("updateAgentVisuals")) : QStringList());
    }
}

TEST_F(PaneTabs, onlyTheSecondPageRefreshesTheFieldsAndMarkersOfTheHotKeys)
{
    // Movement keys 0 and 1 on one key; space is written in capitals by the refresh alone.
    const QVariantMap space{{KTXKeycode, QStringLiteral("49")}};
    store().set({{KTXFirstLaunch, true}, {KTXsuppressHKeysTaken, true}, {KTXActionKeys()[0].preferenceName, space},
        {KTXActionKeys()[1].preferenceName, space}});
    showPane();
    const QString asRead = KeyCodeTranslator::stringForKeyCodeWithModifierFlags(49, 0);
    ASSERT_NE(asRead, asRead.toUpper());
    for (const int page : {2, 1, 3, 0, 4, 1, 5}) {
        for (const int row : {0, 1})
            setHidden(marker(row), true);
        turnTo(page);
        for (const int row : {0, 1}) {
            EXPECT_EQ(stringValue(keyField(row)), page == 1 ? asRead.toUpper() : asRead) << page;
            EXPECT_EQ(isHidden(marker(row)), page != 1) << page;
        }
    }
}

TEST_F(PaneTabs, aPageTheUserClicksReadsTheSettingsOnce)
{
    showPane();
    bus().clear();
    QTabBar *bar = control<QTabWidget>("tabbedView")->tabBar();
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(3).center());
    EXPECT_EQ(selectedTabIndex(control("tabbedView")), 3);
    EXPECT_EQ(bus().names(), QStringList(KTXLMPrefsChanged));
}

TEST_F(PaneTabs, turningPagesLogsTheIndexWhileDebugging)
{
    showPane();
    store().set(KTXShouldDebug, QVariant(true));
    const CapturedLog log;
    turnTo(4);
    EXPECT_EQ(log.lines(), QStringList(QStringLiteral("Lumaroo prefPane: tabView:didSelectTabVewItem 4")));
}

TEST_F(PaneTabs, aRequestForAPageRingsNoBellAndLeavesThePage)
{
    showPane();
    BellListener bell;
    const QString identifier = control<QTabWidget>("tabbedView")->widget(2)->property("identifier").toString();
    ASSERT_FALSE(identifier.isEmpty());
    store().set(KTXShouldDebug, QVariant(true));
    const CapturedLog log;
    bus().post(KTXPrefPaneToTab, identifier);
    ASSERT_TRUE(waitUntil([&] { return !log.lines().isEmpty(); }));
    EXPECT_EQ(log.lines(), QStringList(QStringLiteral("Lumaroo prefPane: switchToTab: 2")));
    EXPECT_EQ(bell.rings(), 0);
    EXPECT_EQ(selectedTabIndex(control("tabbedView")), 0);
}

TEST_F(PaneTabs, aRequestForNoPageRingsTheBellAndLeavesEverythingAsItIs)
{
    showPane();
    store().set(KTXShouldDebug, QVariant(true));
    BellListener bell;
    int rings = 0;
    for (const QString &object : {QStringLiteral("no page"), QString()}) {
        const CapturedLog log;
        bus().post(KTXPrefPaneToTab, object);
        ASSERT_TRUE(waitUntil([&] { return !log.lines().isEmpty(); }));
        EXPECT_EQ(log.lines(), QStringList(QStringLiteral("Lumaroo prefPane: switchToTab: -1")));
        EXPECT_TRUE(waitUntil([&] { return bell.rings() == rings + 1; }));
        ++rings;
        EXPECT_EQ(selectedTabIndex(control("tabbedView")), 0);
    }
}

TEST_F(PaneTabs, beforeTheViewIsLoadedARequestForAnyPageIsOneForTheFirst)
{
    store().set(KTXShouldDebug, QVariant(true));
    BellListener bell;
    const CapturedLog log;
    paneWithoutView().switchToTab({KTXPrefPaneToTab, QStringLiteral("no page"), {}});
    EXPECT_EQ(log.linesContaining(QStringLiteral("switchToTab")),
        QStringList(QStringLiteral("Lumaroo prefPane: switchToTab: 0")));
    EXPECT_EQ(bell.rings(), 0);
}

TEST_F(PaneTabs, theTutorialIsAskedForAtOnceWhileTheAgentRuns)
{
    paneWithAgent().startAgent();
    calls.clear();
    performClick(control("tutorialButton"));
    EXPECT_EQ(calls, QStringList());
    EXPECT_EQ(requests(), oneRequest);
    agentAnnouncesItself();
    EXPECT_EQ(requests(), oneRequest) << "nothing is left behind";
}

TEST_F(PaneTabs, theTutorialStartsTheAgentAndIsAskedForOnceItHasAnnouncedItself)
{
    paneWithAgent();
    performClick(control("tutorialButton"));
    EXPECT_EQ(calls, QStringList(QStringLiteral("startAgent")));
    EXPECT_TRUE(requests().isEmpty());
    agentAnnouncesItself();
    EXPECT_EQ(requests(), oneRequest);
    agentAnnouncesItself();
    EXPECT_EQ(requests(), oneRequest) << "announced twice";
}

TEST_F(PaneTabs, anAgentThatNeverAnnouncesItselfIsAskedForNothing)
{
    paneWithAgent();
    performClick(control("tutorialButton"));
    runPendingEvents();
    EXPECT_TRUE(requests().isEmpty());
    destroyPane();
    NSNotificationCenter::defaultCenter()->postNotificationNameObject(KTXLMAgentLaunched);
    EXPECT_TRUE(requests().isEmpty()) << "it waited in vain until it was released";
}

TEST_F(PaneTabs, threePressesInARowAskOnce)
{
    pane().carryOut({QStringLiteral("setAgentVisualsOn:")});
    calls.clear();
    bus().clear();
    for (int times = 0; times < 3; ++times)
        performClick(control("tutorialButton"));
    EXPECT_EQ(calls.count(QStringLiteral("startAgent")), 3) << "each tries";
    paneWithAgent().startAgent();
    agentAnnouncesItself();
    EXPECT_EQ(requests(), oneRequest) << "the first answer takes back every registration";
}

TEST_F(PaneTabs, anAgentThatOnlySaysItWereThereIsStartedAgainAndAskedOnceItIs)
{
    pane().carryOut({QStringLiteral("setAgentVisualsOn:")});
    performClick(control("tutorialButton"));
    calls.clear();
    bus().clear();
    bus().post(KTXLMAgentLaunched, QStringLiteral("com.example.Another"));
    ASSERT_TRUE(waitUntil([this] { return calls.contains(QStringLiteral("startAgent")); }));
    EXPECT_EQ(calls, (QStringList{QStringLiteral("setAgentVisualsOn:"), QStringLiteral("startAgent")}));
    EXPECT_TRUE(requests().isEmpty()) << "none runs";
    paneWithAgent().startAgent();
    bus().post(KTXLMAgentLaunched, QStringLiteral("com.example.Another"));
    EXPECT_TRUE(waitUntil([this] { return !requests().isEmpty(); })) << "any sender is believed";
    EXPECT_EQ(requests(), oneRequest);
}

TEST_F(PaneTabs, showingThePaneWhileTheAgentRunsSendsAPendingRequest)
{
    pane().carryOut({QStringLiteral("setAgentVisualsOn:"), QStringLiteral("updateAgentVisuals")});
    performClick(control("tutorialButton"));
    paneWithAgent().startAgent();
    pane().willSelect();
    EXPECT_EQ(requests(), oneRequest);
}

TEST_F(PaneTabs, anAgentThatCannotBeStartedLeavesNoRequestBehind)
{
    pane().carryOut({QStringLiteral("startAgent"), QStringLiteral("setAgentVisualsOn:")});
    const CapturedLog log;
    EXPECT_THROW(pane().runTutorial(nullptr), AssertionFailure);
    agentAnnouncesItself();
    EXPECT_TRUE(requests().isEmpty());
}
