// The modifiers' matrix, which is not shown, and what each showing of the pane does with its zero cell.

#include "PaneOnModifiers.h"
#include "platform/appkit/colors/SystemColors.h"

#include <QLineEdit>

namespace {

class PaneModifierMatrix : public PaneOnModifiers
{
};

} // namespace

TEST_F(PaneModifierMatrix, aCellTogglesItsModifierWhateverItShows)
{
    showModifiers(0x1800);
    for (const bool shows : {false, true}) {
        setState(cell(0x200), shows);
        clickCell(0x200);
        expectStoredMask(shows ? 0x1800 : 0x1A00, 1);
        EXPECT_EQ(glyphs(), shows ? QStringLiteral("⌃⌥") : QStringLiteral("⇧⌃⌥"));
    }
    EXPECT_TRUE(isNothingAsked());
}

TEST_F(PaneModifierMatrix, aCellStoresAndTellsTheAgentBeforeTheNewModifiersAreShown)
{
    store().set(KTXsuppressHKeysTaken, true);
    giveUpAndRightTheSameKey();
    showModifiers(0x1800);
    for (int row = 0; row < movementKeys; ++row)
        setHidden(viewWithTag(pane().mainView(), row + movementKeys), true);
    QStringList glyphsWhenTold;
    pane().atAgentTold = [&] {
        expectStoredMask(0x1A00, 1);
        glyphsWhenTold += glyphs();
        EXPECT_EQ(markedRows(), QList<int>()) << "conflicts are looked for last";
    };
    watchWriting();
    clickCell(0x200);
    pane().atAgentTold = [] {};
    EXPECT_EQ(glyphsAtWriting, QStringList{QStringLiteral("⌃⌥")});
    EXPECT_EQ(glyphsWhenTold, QStringList{QStringLiteral("⌃⌥")});
    EXPECT_EQ(glyphs(), QStringLiteral("⇧⌃⌥"));
    EXPECT_EQ(markedRows(), (QList<int>{0, 1}));
}

TEST_F(PaneModifierMatrix, aMatrixWithoutASelectedCellStoresTheMaskAgain)
{
    showModifiers(0x1800);
    NSMatrix untouched;
    setStringValue(control("modifiersField"), QStringLiteral("-"));
    pane().updateButtonStates(&untouched);
    expectStoredMask(0x1800, 1);
    EXPECT_EQ(glyphs(), QStringLiteral("⌃⌥"));
}

TEST_F(PaneModifierMatrix, withoutModifiersAMatrixWithoutASelectedCellSaysThatOneIsNeeded)
{
    store().set(KTXSuppressModAlert, true);
    showModifiers(0);
    const int rings = bell.rings();
    NSMatrix untouched;
    setStringValue(control("modifiersField"), QStringLiteral("-"));
    pane().updateButtonStates(&untouched);
    EXPECT_EQ(glyphs(), QString());
    EXPECT_EQ(bell.rings(), rings + 1);
    EXPECT_TRUE(isNothingAsked());
    expectNothingStored();
    store().set(KTXSuppressModAlert, QVariant());
    rememberStore();
    pane().updateButtonStates(&untouched);
    ASSERT_TRUE(alertComesUp());
    EXPECT_EQ(textsOfAlert(), (QStringList{lastModifierMessage, lastModifierInformation}));
    closeAlert();
    EXPECT_EQ(bell.rings(), rings + 1);
    expectNothingStored();
}

TEST_F(PaneModifierMatrix, theZeroCellStoresTheMaskAgainAndMarksConflicts)
{
    store().set(KTXsuppressHKeysTaken, true);
    giveUpAndRightTheSameKey();
    showModifiers(0x1800);
    for (int row = 0; row < movementKeys; ++row)
        setHidden(viewWithTag(pane().mainView(), row + movementKeys), row < 2);
    clickCell(0);
    expectStoredMask(0x1800, 1);
    EXPECT_EQ(markedRows(), (QList<int>{0, 1}));
    EXPECT_TRUE(isNothingAsked());
    EXPECT_EQ(bell.rings(), 0) << "a suppressed conflict stays silent";
}

TEST_F(PaneModifierMatrix, aConflictAmongTheOtherKeysIsNeitherMarkedNorAskedAbout)
{
    store().set(KTXOpenPrefPanePref, QVariantMap{{KTXKeycode, QStringLiteral("36")}});
    showModifiers(0x1800);
    clickCell(0x200);
    EXPECT_TRUE(pane().hotKeyIsDuplicateAtIndex(5));
    EXPECT_EQ(markedRows(), QList<int>());
    EXPECT_TRUE(isNothingAsked());
}

TEST_F(PaneModifierMatrix, aCellSaysThatKeysAreInConflict)
{
    store().set(KTXsuppressHKeysTaken, true);
    giveUpAndRightTheSameKey();
    showModifiers(0x1800);
    store().set(KTXsuppressHKeysTaken, false);
    rememberStore();
    clickCell(0x100);
    ASSERT_TRUE(alertComesUp());
    EXPECT_EQ(textsOfAlert(), (QStringList{conflictMessage, conflictInformation}));
    EXPECT_TRUE(partOfAlert("suppression"));
    EXPECT_FALSE(partOfAlert("help"));
    expectStoredMask(0x1900, 1);
    EXPECT_EQ(markedRows(), (QList<int>{0, 1}));
    tickAlert();
    closeAlert();
    EXPECT_TRUE(isEqualPropertyList(store().value(KTXsuppressHKeysTaken), true));
    clickCell(0x100);
    EXPECT_TRUE(isNothingAsked());
    EXPECT_EQ(bell.rings(), 0);
}

TEST_F(PaneModifierMatrix, aSuppressedConflictOfTheWrongKindIsSaid)
{
    giveUpAndRightTheSameKey();
    for (const QVariant &value : {QVariant(1LL), QVariant("true"), QVariant(1.0), QVariant(QVariantList{true}),
             QVariant(QByteArray("1")), QVariant(false)}) {
        store().set(KTXsuppressHKeysTaken, value);
        showPane();
        ASSERT_TRUE(alertComesUp()) << value.typeName();
        EXPECT_EQ(textsOfAlert(), (QStringList{conflictMessage, conflictInformation}));
        closeAlert();
        EXPECT_EQ(bell.rings(), 0);
        EXPECT_TRUE(isEqualPropertyList(store().value(KTXsuppressHKeysTaken), value)) << "it is left as it is";
    }
}

TEST_F(PaneModifierMatrix, everyShowingSaysThatKeysAreInConflict)
{
    giveUpAndRightTheSameKey();
    for (int showing = 0; showing < 2; ++showing) {
        showPane();
        ASSERT_TRUE(alertComesUp());
        EXPECT_EQ(textsOfAlert(), (QStringList{conflictMessage, conflictInformation}));
        EXPECT_EQ(markedRows(), (QList<int>{0, 1}));
        closeAlert();
        EXPECT_TRUE(isNothingAsked());
    }
}

TEST_F(PaneModifierMatrix, theCellOfTheLastModifierIsRefusedAndASheetSaysWhy)
{
    showModifiers(0x800);
    setState(cell(0x800), NSOnState);
    setStringValue(control("modifiersField"), QStringLiteral("-"));
    clickCell(0x800);
    EXPECT_EQ(glyphs(), QStringLiteral("⌥"));
    EXPECT_FALSE(cell(0x800)->isChecked());
    runPendingEvents();
    EXPECT_TRUE(cell(0x800)->isChecked());
    ASSERT_TRUE(alertComesUp());
    EXPECT_EQ(textsOfAlert(), (QStringList{lastModifierMessage, lastModifierInformation}));
    closeAlert();
    expectNothingStored();
}

TEST_F(PaneModifierMatrix, theCellOfTheLastModifierRingsTheBellWhenTheSheetIsSuppressed)
{
    store().set(KTXSuppressModAlert, true);
    showModifiers(0x800);
    clickCell(0x800);
    EXPECT_EQ(bell.rings(), 1);
    EXPECT_TRUE(isNothingAsked());
    EXPECT_TRUE(cell(0x800)->isChecked());
    expectNothingStored();
}

TEST_F(PaneModifierMatrix, withoutModifiersEveryShowingSaysThatOneIsNeededAndStoresNothing)
{
    store().set(KTXModifierMask, 0);
    for (int showing = 0; showing < 2; ++showing) {
        pane().willSelect();
        rememberStore();
        showWindow();
        pane().didSelect();
        ASSERT_TRUE(alertComesUp());
        EXPECT_EQ(textsOfAlert(), (QStringList{lastModifierMessage, lastModifierInformation}));
        closeAlert();
        EXPECT_EQ(glyphs(), QString());
        expectNothingStored();
    }
}

TEST_F(PaneModifierMatrix, withoutModifiersEveryShowingRingsTheBellWhenTheSheetIsSuppressed)
{
    store().set({{KTXModifierMask, 0}, {KTXSuppressModAlert, true}});
    for (int showing = 1; showing <= 2; ++showing) {
        pane().willSelect();
        rememberStore();
        showWindow();
        pane().didSelect();
        EXPECT_TRUE(isNothingAsked());
        EXPECT_EQ(bell.rings(), showing);
        expectNothingStored();
    }
}

TEST_F(PaneModifierMatrix, aFieldThatIsBeingEditedWaitsMarkedUnderTheSheets)
{
    store().set(KTXsuppressHKeysTaken, true);
    giveUpAndRightTheSameKey();
    showModifiers(0x800);
    store().set(KTXsuppressHKeysTaken, false);
    auto *field = qobject_cast<QLineEdit *>(keyField(0));
    for (const int cellTag : {0x800, 0x200}) {
        field->setFocus();
        field->selectAll();
        int alerts = 0;
        const AtAlert look([&] {
            ++alerts;
            EXPECT_EQ(field->palette().color(QPalette::Base), QColor(Qt::white));
            EXPECT_EQ(field->selectedText(), QString());
        });
        clickCell(cellTag);
        ASSERT_TRUE(alertComesUp());
        EXPECT_EQ(alerts, 1);
        EXPECT_EQ(field->palette().color(QPalette::Base), liveColor(NSColor::selectedTextBackgroundColor()));
        EXPECT_EQ(field->selectedText(), field->text());
        closeAlert();
    }
}

TEST_F(PaneModifierMatrix, aSecondRefusalWhileASheetIsOpenIsSaidAfterIt)
{
    showModifiers(0x800);
    performClick(box("optionCheckBox"));
    performClick(cell(0x800));
    ASSERT_TRUE(alertComesUp());
    pressKey(KEY_ENTER);
    ASSERT_TRUE(waitUntil([first = QPointer<QDialog>(openAlert())] { return openAlert() && openAlert() != first; }));
    ASSERT_TRUE(alertComesUp());
    closeAlert();
    EXPECT_TRUE(isNothingAsked());
    expectNothingStored();
}
