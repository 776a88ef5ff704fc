#include "PaneOnRealStore.h"
#include "Wait.h"

#include "KTXConstants.h"
#include "platform/foundation/bundles/NSBundle.h"
#include "platform/foundation/propertylists/PropertyList.h"

#include <QSignalSpy>

namespace {

const QString bundleVersion = QStringLiteral("CFBundleVersion");
const BusNotification launched{
    QStringLiteral("Lumaroo PrefPane Launched"), QStringLiteral("com.quorvane.Lumaroo"), {}, true};
const BusNotification changed{
    QStringLiteral("Lumaroo Preferences Changed"), QStringLiteral("com.quorvane.Lumaroo"), {}, true};

class PaneLifeCycle : public PaneOnRealStore
{
protected:
    /// Opens the pane as loaded in one version while another one lies on disk; how often it restarts because of that.
    qsizetype relaunchesWith(const QVariant &loaded, const QVariant &onDisk)
    {
        changeInfo({{bundleVersion, loaded}});
        paneWithoutView();
        changeInfo({{bundleVersion, onDisk}});
        pane();
        EXPECT_EQ(calls.count(QStringLiteral("relaunch")), 0) << "the restart waits for the host's call to end";
        runPendingEvents();
        return calls.count(QStringLiteral("relaunch"));
    }
};

} // namespace

TEST_F(PaneLifeCycle, withoutABundleThePaneFailsAndDoesNothingElse)
{
    RecordingPane unbundled(&calls);
    EXPECT_FALSE(unbundled.initWithBundle(nullptr));
    EXPECT_TRUE(unbundled.keyCodePrefNames().isEmpty());
    EXPECT_EQ(unbundled.defaultKeyCodes(), nullptr);
    EXPECT_TRUE(bus().notifications().isEmpty());
    bus().post(KTXLMPrefPaneLaunchAgent, {});
    bus().notifications();
    runPendingEvents();
    EXPECT_TRUE(calls.isEmpty()) << "no observer was registered";
}

TEST_F(PaneLifeCycle, aNewPaneAnnouncesItselfOnce)
{
    paneWithoutView();
    EXPECT_EQ(bus().notifications(), QList<BusNotification>{launched});
}

TEST_F(PaneLifeCycle, aNewPaneReadsNoSettingAndTouchesNoAgent)
{
    paneWithoutView();
    EXPECT_FALSE(QFile::exists(StoreOnDisk::path()));
    EXPECT_TRUE(calls.isEmpty());
    EXPECT_EQ(paneWithoutView().loadedVersion(), 0);
    destroyPane();
    store().set({{KTXModifierMask, 0x1B00}, {KTXUpPref, QVariantMap{{KTXKeycode, QStringLiteral("7")}}}});
    EXPECT_EQ(paneWithoutView().modifierGlyphs(), QString());
    EXPECT_EQ(paneWithoutView().keyCodes(), nullptr);
    EXPECT_EQ(paneWithoutView().defaultKeyCodes()->first(), 126);
}

TEST_F(PaneLifeCycle, aNewPaneHasTheKeyTablesButNoWorkingCopy)
{
    const QStringList names{"moveUpHotKey", "moveRightHotKey", "moveDownHotKey", "moveLeftHotKey", "moveUnderHotKey",
        "openPrefPane", "takeScreenshot", "closeWindow", "showPreview", "CancelSelection", "SnapToSelection"};
    EXPECT_EQ(paneWithoutView().keyCodePrefNames(), names);
    EXPECT_EQ(
        *paneWithoutView().defaultKeyCodes(), (QList<VirtualKeyCode>{126, 124, 125, 123, 44, 43, 1, 13, 49, 53, 36}));
    EXPECT_EQ(paneWithoutView().keyCodes(), nullptr);
}

TEST_F(PaneLifeCycle, aNewPaneHasThirteenHelpAnchors)
{
    const QStringList anchors{"activate", "movement", "action", "updates", "ordering", "alerts", "alerts", "alerts",
        "alerts", "alerts", "other", "other", "access"};
    EXPECT_EQ(paneWithoutView().helpAnchors(), anchors);
}

TEST_F(PaneLifeCycle, onAFreshAccountTheAgentIsAskedToStopAndThenStarted)
{
    pane();
    EXPECT_EQ(calls, (QStringList{"stopAgent", "startAgent"}));
    EXPECT_FALSE(store().domain().contains(KTXFirstLaunch)) << "that record is the agent's";
}

TEST_F(PaneLifeCycle, afterAnyFirstLaunchRecordNothingIsStartedAtLoad)
{
    for (const QVariant &record :
        {QVariant(false), QVariant(qlonglong(0)), QVariant(QString()), QVariant(QVariantMap())}) {
        store().set(KTXFirstLaunch, record);
        pane();
        EXPECT_TRUE(calls.isEmpty()) << calls.join(u' ').toStdString();
        destroyPane();
    }
}

TEST_F(PaneLifeCycle, aNewerInstalledVersionRestartsOnceAfterTheHostsCall)
{
    EXPECT_EQ(relaunchesWith(QStringLiteral("120"), QStringLiteral("121")), 1);
    EXPECT_EQ(pane().loadedVersion(), 120);
}

TEST_F(PaneLifeCycle, theSameInstalledVersionRestartsNothing)
{
    EXPECT_EQ(relaunchesWith(QStringLiteral("120"), QStringLiteral("120")), 0);
}

TEST_F(PaneLifeCycle, anOlderInstalledVersionRestartsNothing)
{
    EXPECT_EQ(relaunchesWith(QStringLiteral("120"), QStringLiteral("119")), 0);
}

TEST_F(PaneLifeCycle, versionsAreComparedAsNumbers)
{
    EXPECT_EQ(relaunchesWith(QStringLiteral("99"), QStringLiteral("100")), 1);
}

TEST_F(PaneLifeCycle, ofAVersionOnlyItsLeadingNumberCounts)
{
    EXPECT_EQ(relaunchesWith(QStringLiteral("12b"), QStringLiteral("12c")), 0);
    EXPECT_EQ(pane().loadedVersion(), 12);
}

TEST_F(PaneLifeCycle, aMissingInstalledVersionRestartsNothing)
{
    EXPECT_EQ(relaunchesWith(QStringLiteral("120"), QVariant()), 0);
}

TEST_F(PaneLifeCycle, anInfoDictionaryThatBecameUnreadableRestartsNothing)
{
    const CapturedLog log;
    changeInfo({{bundleVersion, QStringLiteral("120")}});
    paneWithoutView();
    bundle().writeFile(QStringLiteral("Contents/Info.plist"), "torn");
    pane();
    runPendingEvents();
    EXPECT_EQ(calls.count(QStringLiteral("relaunch")), 0);
}

TEST_F(PaneLifeCycle, aMissingLoadedVersionCountsAsZero)
{
    EXPECT_EQ(relaunchesWith(QVariant(), QStringLiteral("1")), 1);
    EXPECT_EQ(pane().loadedVersion(), 0);
}

TEST_F(PaneLifeCycle, aPaneThatIsGoneRestartsNothing)
{
    changeInfo({{bundleVersion, QStringLiteral("120")}});
    paneWithoutView();
    changeInfo({{bundleVersion, QStringLiteral("121")}});
    pane();
    destroyPane();
    runPendingEvents();
    EXPECT_EQ(calls.count(QStringLiteral("relaunch")), 0);
}

TEST_F(PaneLifeCycle, theUpdateCheckBoxShowsWhatIsStored)
{
    for (const bool isChecking : {true, false}) {
        store().set(SUEnableAutomaticChecks, QVariant(isChecking));
        EXPECT_EQ(state(control("autoUpdateButton")), isChecking);
        destroyPane();
    }
}

TEST_F(PaneLifeCycle, withoutAStoredChoiceTheUpdateCheckBoxIsOffAndNothingIsWritten)
{
    EXPECT_EQ(state(control("autoUpdateButton")), NSOffState);
    EXPECT_FALSE(store().domain().contains(SUEnableAutomaticChecks));
}

TEST_F(PaneLifeCycle, oneShowingAnnouncesTheReadingAndTheZeroCell)
{
    pane();
    bus().clear();
    showPane();
    EXPECT_EQ(bus().notifications(), (QList<BusNotification>{changed, changed}));
}

TEST_F(PaneLifeCycle, theZeroCellIsClickedOnlyAfterTheHostsCall)
{
    auto *matrix = control<NSMatrix>("modifierCheckboxMatrix");
    const QSignalSpy clicks(matrix, &NSMatrix::cellClicked);
    pane().willSelect();
    EXPECT_EQ(clicks.count(), 0);
    runPendingEvents();
    EXPECT_EQ(clicks.count(), 1);
    EXPECT_EQ(tag(matrix->selectedCell()), 0);
}

TEST_F(PaneLifeCycle, theZeroCellChangesNoModifier)
{
    store().set(KTXModifierMask, 0xB00);
    showPane();
    EXPECT_EQ(store().value(KTXModifierMask), QVariant(qlonglong(0xB00)));
    EXPECT_EQ(text("modifiersField"), QStringLiteral("⇧⌥⌘"));
}

TEST_F(PaneLifeCycle, theAgentsStateIsShownAfterTheSettingsAtEachShowing)
{
    pane();
    QList<int> shownThen;
    pane().atAgentVisuals = [&] { shownThen += state(control("enableHorizontalWrapButton")); };
    calls.clear();
    for (const bool isWrapping : {false, true}) {
        store().set(KTXHWrap, QVariant(isWrapping));
        pane().willSelect();
    }
    EXPECT_EQ(calls, (QStringList{"updateAgentVisuals", "updateAgentVisuals"}));
    EXPECT_EQ(shownThen, (QList<int>{NSOffState, NSOnState}));
}

TEST_F(PaneLifeCycle, aPaneThatIsGoneClicksNothing)
{
    pane().willSelect();
    destroyPane();
    bus().clear();
    runPendingEvents();
    EXPECT_TRUE(bus().notifications().isEmpty());
}
