// What the pane does when it is left, and when it goes for good.

#include "PaneOnRealStore.h"
#include "Wait.h"

#include "KTXConstants.h"
#include "platform/foundation/notifications/NSDistributedNotificationCenter.h"
#include "platform/foundation/notifications/NSNotificationCenter.h"
#include "platform/foundation/preferences/CFPreferences.h"

namespace {

const BusNotification changed{
    QStringLiteral("Lumaroo Preferences Changed"), QStringLiteral("com.quorvane.Lumaroo"), {}, true};

using PaneLeaving = PaneOnRealStore;

/// Counts what an observer hears of a name in this process and from others.
void observeBoth(QObject *observer, const QString &name, int *count)
{
    const NotificationHandler handler = [count](const NSNotification &) { ++*count; };
    NSNotificationCenter::defaultCenter()->addObserverSelectorNameObject(observer, handler, name);
    NSDistributedNotificationCenter::defaultCenter()->addObserverSelectorNameObject(observer, handler, name, {});
}

} // namespace

TEST_F(PaneLeaving, leavingFlushesAndAnnouncesWhateverThePage)
{
    for (const int page : {0, 1, 2}) {
        selectTabViewItemAtIndex(control("tabbedView"), page);
        CFPreferencesSetAppValue(QStringLiteral("hideBetaNotes1"), QVariant(qlonglong(page)), KTXLMAppID);
        bus().clear();
        pane().didUnselect();
        EXPECT_EQ(bus().notifications(), QList<BusNotification>{changed});
        EXPECT_EQ(store().value(QStringLiteral("hideBetaNotes1")), QVariant(qlonglong(page)));
    }
}

TEST_F(PaneLeaving, leavingTheHotKeyPageTakesTheHighlightFromTheMovementKeys)
{
    selectTabViewItemAtIndex(control("tabbedView"), 1);
    for (int row = 0; row <= 5; ++row)
        setBackgroundColor(keyField(row), Qt::blue);
    pane().didUnselect();
    for (int row = 0; row <= 4; ++row)
        EXPECT_EQ(keyField(row)->palette().color(QPalette::Base), QColor(Qt::white)) << row;
    EXPECT_EQ(keyField(5)->palette().color(QPalette::Base), QColor(Qt::blue));
}

TEST_F(PaneLeaving, leavingTheHotKeyPageTellsTheAgentOnceTheHighlightIsTaken)
{
    selectTabViewItemAtIndex(control("tabbedView"), 1);
    setBackgroundColor(keyField(0), Qt::blue);
    QList<QColor> colorsWhenTold;
    pane().atAgentTold = [&] { colorsWhenTold += keyField(0)->palette().color(QPalette::Base); };
    pane().didUnselect();
    EXPECT_EQ(colorsWhenTold, QList<QColor>{Qt::white});
}

TEST_F(PaneLeaving, leavingAnotherPageLeavesTheFieldsColoursAlone)
{
    selectTabViewItemAtIndex(control("tabbedView"), 0);
    setBackgroundColor(keyField(0), Qt::blue);
    pane().didUnselect();
    EXPECT_EQ(keyField(0)->palette().color(QPalette::Base), QColor(Qt::blue));
}

TEST_F(PaneLeaving, aPaneThatIsGoneHearsNothing)
{
    pane();
    runPendingEvents();
    int heard = 0, heardByAnother = 0;
    QObject another;
    observeBoth(&pane(), KTXLMAgentLaunched, &heard);
    observeBoth(&another, KTXLMAgentLaunched, &heardByAnother);
    // Its view is the last of it to go.
    QObject::connect(pane().mainView(), &QObject::destroyed, &another, [&] {
        calls.clear();
        NSNotificationCenter::defaultCenter()->postNotificationNameObject(KTXLMAgentLaunched);
        bus().post(KTXLMAgentLaunched, {});
        EXPECT_TRUE(waitUntil([&] { return heardByAnother == 2; }));
    });
    destroyPane();
    EXPECT_EQ(heardByAnother, 2);
    EXPECT_TRUE(calls.isEmpty());
    for (const QString &name :
        {KTXPrefPaneToTab, KTXLMAgentLaunched, KTXLMPrefPaneLaunchAgent, KTXLMAgentIsTerminating})
        bus().post(name, {});
    bus().post(KTXLMPrefsChanged, KTXLMAgentID);
    NSNotificationCenter::defaultCenter()->postNotificationNameObject(KTXLMAgentLaunched);
    bus().notifications();
    runPendingEvents();
    EXPECT_TRUE(calls.isEmpty());
    EXPECT_EQ(heard, 0);
}

TEST_F(PaneLeaving, aPaneMayGoWithoutItsViewEverLoaded)
{
    paneWithoutView().willSelect();
    paneWithoutView().didSelect();
    EXPECT_EQ(paneWithoutView().shouldUnselect(), NSUnselectNow);
    paneWithoutView().didUnselect();
    destroyPane();
}
