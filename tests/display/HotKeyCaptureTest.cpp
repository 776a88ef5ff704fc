// A user gives actions their keys by pressing them in the actions' fields.

#include "KeyPress.h"
#include "OpenAlert.h"
#include "PaneOnHotKeyPage.h"
#include "Wait.h"

#include "KTXConstants.h"

#include <linux/input-event-codes.h>

namespace {

class HotKeyCapture : public PaneOnHotKeyPage
{
protected:
    /// Without the alert that the showing would raise about it.
    void giveTwoMovementKeysTheSameCode() const
    {
        store().set(KTXsuppressHKeysTaken, true);
        storeKey(Right, 126);
    }
};

} // namespace

TEST_F(HotKeyCapture, eachOfTheElevenFieldsTakesAKey)
{
    const QList<int> keys{KEY_1, KEY_2, KEY_3, KEY_4, KEY_5, KEY_6, KEY_7, KEY_8, KEY_9, KEY_0, KEY_MINUS};
    const QList<int> codes{18, 19, 20, 21, 23, 22, 26, 28, 25, 29, 27};
    const QString labels("1234567890-");
    showPage();
    for (int row = 0; row < RowCount; ++row) {
        pressIn(row, keys[row]);
        expectTaken(row, codes[row], labels.mid(row, 1));
    }
}

TEST_F(HotKeyCapture, theEntryIsReplacedAsAWhole)
{
    store().set(KTXScreenshotPref,
        QVariantMap{{KTXKeycode, "1"}, {KTXUnichar, "s"}, {KTXRepeat, true}, {QStringLiteral("other"), "kept?"}});
    showPage();
    pressIn(Screenshot, KEY_A);
    EXPECT_EQ(store().value(KTXScreenshotPref), QVariant(QVariantMap{{"keycode", "0"}}));
    expectTaken(Screenshot, 0, "A");
}

TEST_F(HotKeyCapture, whatTheAgentStoresBesidesIsKept)
{
    store().set(KTXShowHidden, true);
    store().set(QStringLiteral("unknown"), QVariantMap{{"deep", QVariantList{1.5, "x"}}});
    showPage();
    pressIn(Screenshot, KEY_A);
    expectTaken(Screenshot, 0, "A");
    EXPECT_EQ(store().value(KTXShowHidden), QVariant(true));
}

TEST_F(HotKeyCapture, theRowsOwnKeyChangesNothingAndRaisesNoAlert)
{
    showPage();
    pressIn(Up, KEY_UP);
    EXPECT_EQ(shown(Up), "↑");
    expectNothingStored();
    EXPECT_FALSE(openAlert());
    EXPECT_EQ(bell.rings(), 0);
}

TEST_F(HotKeyCapture, theRowsOwnKeyDoesNotEvenRefreshTheMarkers)
{
    giveTwoMovementKeysTheSameCode();
    showPage();
    setHidden(viewWithTag(pane().mainView(), 5), true);
    pressIn(Up, KEY_UP);
    EXPECT_FALSE(markedRows().contains(Up));
    expectNothingStored();
}

TEST_F(HotKeyCapture, aCodeBeyond16BitsIsNotTheKeyOfItsLowBits)
{
    storeKey(Screenshot, 0x10000 + 8);
    showPage();
    pressIn(Screenshot, KEY_C);
    expectTaken(Screenshot, 8, "C");
}

TEST_F(HotKeyCapture, theKeypadsEnterIsTakenAndNotTakenForReturn)
{
    showPage();
    pressIn(Under, KEY_KPENTER);
    expectTaken(Under, 76, "⌅");
    EXPECT_EQ(focusedRow(), Under);
}

TEST_F(HotKeyCapture, returnMovesTheFocusOnAndShiftReturnBack)
{
    showPage();
    for (const auto &[key, back] : {std::pair{KEY_TAB, KEY_TAB}, std::pair{KEY_ENTER, KEY_ENTER}}) {
        focus(Up);
        press(key);
        EXPECT_EQ(focusedRow(), Left);
        press(key);
        EXPECT_EQ(focusedRow(), Under);
        press(back, {KEY_LEFTSHIFT});
        EXPECT_EQ(focusedRow(), Left);
        press(back, {KEY_RIGHTSHIFT});
        EXPECT_EQ(focusedRow(), Up);
    }
    expectNothingStored();
}

TEST_F(HotKeyCapture, returnLeavesTheFieldsAlsoWhenItsRowHasLostIt)
{
    showPage();
    pressIn(Snap, KEY_R);
    expectTaken(Snap, 15, "R");
    press(KEY_ENTER);
    EXPECT_NE(focusedRow(), Snap);
    expectNothingStored();
}

TEST_F(HotKeyCapture, theAgentIsToldBeforeTheTableChanges)
{
    showPage();
    QList<int> codesWhenTold;
    pane().atAgentTold = [&] {
        // The bus itself has carried it by now.
        EXPECT_EQ(bus().notifications(), (QList<BusNotification>{{KTXLMPrefsChanged, KTXLMAppID, {}, true}}));
        EXPECT_EQ(store().value(KTXScreenshotPref), QVariant(QVariantMap{{"keycode", "0"}}));
        codesWhenTold += keyCode(Screenshot);
    };
    pressIn(Screenshot, KEY_A);
    pane().atAgentTold = [] {};
    EXPECT_EQ(codesWhenTold, QList<int>{1});
    expectTaken(Screenshot, 0, "A");
}

TEST_F(HotKeyCapture, theFieldShowsTheNewKeyBeforeTheAgentIsTold)
{
    giveTwoMovementKeysTheSameCode();
    showPage();
    QStringList shownWhenTold;
    QList<QList<int>> markedWhenTold;
    pane().atAgentTold = [&] {
        shownWhenTold += shown(Right);
        markedWhenTold += markedRows();
    };
    pressIn(Right, KEY_R);
    pane().atAgentTold = [] {};
    EXPECT_EQ(shownWhenTold, QStringList{"R"});
    EXPECT_EQ(markedWhenTold, QList<QList<int>>{QList<int>{Up}}) << "the other rows are looked at afterwards";
    expectTaken(Right, 15, "R");
    EXPECT_TRUE(markedRows().isEmpty());
}

TEST_F(HotKeyCapture, theDefaultsTakeTheKeyTooForTheyAreTheSameTable)
{
    showPage();
    pressIn(Screenshot, KEY_A);
    EXPECT_EQ(pane().defaultKeyCodes(), pane().keyCodes());
    EXPECT_EQ(pane().defaultKeyCodes()->at(Screenshot), 0);
    store().set(KTXScreenshotPref, QVariant());
    pane().readUserPrefs();
    EXPECT_EQ(keyCode(Screenshot), 0) << "the factory's default is gone";
}

TEST_F(HotKeyCapture, aKeyThatItsRowGaveUpIsFreeForAnother)
{
    showPage();
    pressIn(Screenshot, KEY_A);
    expectTaken(Screenshot, 0, "A");
    pressIn(Up, KEY_S);
    expectTaken(Up, 1, "S");
}

TEST_F(HotKeyCapture, resolvingAConflictTakesAwayBothMarkers)
{
    giveTwoMovementKeysTheSameCode();
    showPage();
    EXPECT_EQ(markedRows(), (QList<int>{Up, Right}));
    pressIn(Right, KEY_R);
    expectTaken(Right, 15, "R");
    EXPECT_TRUE(markedRows().isEmpty());
}

TEST_F(HotKeyCapture, ofThreeEqualKeysTwoStayMarked)
{
    giveTwoMovementKeysTheSameCode();
    storeKey(Cancel, 126);
    showPage();
    pressIn(Right, KEY_R);
    expectTaken(Right, 15, "R");
    EXPECT_EQ(markedRows(), QList<int>{Up});
    EXPECT_TRUE(pane().hotKeyIsDuplicateAtIndex(Cancel));
}

TEST_F(HotKeyCapture, conflictsAmongTheOtherKeysAreNeverMarked)
{
    storeKey(OpenPrefPane, 49);
    showPage();
    pressIn(Screenshot, KEY_A);
    EXPECT_TRUE(markedRows().isEmpty());
    EXPECT_TRUE(pane().hotKeyIsDuplicateAtIndex(OpenPrefPane));
    EXPECT_TRUE(pane().hotKeyIsDuplicateAtIndex(Preview));
}

TEST_F(HotKeyCapture, aClickIntoAFieldThenAKeyIsAllItTakes)
{
    showPage();
    clickOn(field(CloseWindow));
    ASSERT_TRUE(waitUntil([this] { return focusedRow() == CloseWindow; }));
    press(KEY_X);
    expectTaken(CloseWindow, 7, "X");
}

TEST_F(HotKeyCapture, aKeyWhereNoFieldHasTheFocusStoresNothing)
{
    showPage();
    control<QTabWidget>("tabbedView")->tabBar()->setFocus();
    press(KEY_X);
    expectNothingStored();
}

TEST_F(HotKeyCapture, aNewKeyIsShownByTheNameOfItsLayoutAfterTheNextReading)
{
    showPage();
    pressIn(Preview, KEY_A);
    expectTaken(Preview, 0, "A");
    pressIn(Under, KEY_SPACE);
    expectTaken(Under, 49, "___");
    pane().readUserPrefs();
    EXPECT_EQ(shown(Under), "Space");
}
