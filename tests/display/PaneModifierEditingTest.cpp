// The activation modifiers as the user changes them.

#include "BellListener.h"
#include "KeyPress.h"
#include "OpenAlert.h"
#include "PaneOnRealStore.h"
#include "SystemCallFaults.h"
#include "Wait.h"

#include "KTXConstants.h"
#include "platform/appkit/SystemColors.h"
#include "platform/foundation/PropertyList.h"

#include <QLineEdit>
#include <linux/input-event-codes.h>

namespace {

constexpr int hotKeyPage = 1;
constexpr int movementKeys = 5;

const QString lastModifierMessage = QStringLiteral("At least one modifier must be set");
const QString lastModifierInformation = QStringLiteral(
    "At least one modifier must be set to activate Lumaroo. Please select another modifier before unselecting this "
    "one.");
const QString conflictMessage = QStringLiteral("There are conflicts with the marked keys.");
const QString conflictInformation =
    QStringLiteral("Please change the marked HotKeys in the programs using them before setting them in Lumaroo.");

class PaneModifierEditing : public PaneOnRealStore
{
protected:
    ~PaneModifierEditing() override
    {
        systemCalls() = calls_;
        QLocale::setDefault(QLocale::c());
    }

    /// The hot key page with a mask, on screen.
    void showModifiers(int mask)
    {
        store().set(KTXModifierMask, mask);
        showPane();
        selectTabViewItemAtIndex(control("tabbedView"), hotKeyPage);
        ASSERT_TRUE(waitUntil([this] { return control("shiftCheckBox")->isVisible(); }));
        rememberStore();
    }
    void giveUpAndRightTheSameKey() const { store().set(KTXUpPref, QVariantMap{{KTXKeycode, QStringLiteral("124")}}); }
    void rememberStore()
    {
        before_ = store().domain();
        bus().clear();
    }
    /// The whole domain is as it was but for the mask, and the agent has been told this often.
    void expectStoredMask(int mask, int notifications)
    {
        QVariantMap expected = before_;
        expected.insert(KTXModifierMask, qlonglong(mask));
        EXPECT_TRUE(isEqualPropertyList(store().domain(), expected));
        EXPECT_EQ(
            bus().notifications(), (QList<BusNotification>(notifications, {KTXLMPrefsChanged, KTXLMAppID, {}, true})));
        before_ = expected;
        bus().clear();
    }
    void expectNothingStored() { expectStoredMask(before_.value(KTXModifierMask).toInt(), 0); }

    QAbstractButton *box(const char *name) { return control<QAbstractButton>(name); }
    void click(const char *name)
    {
        const bool wasOn = box(name)->isChecked();
        clickOn(box(name));
        ASSERT_TRUE(waitUntil([&] { return box(name)->isChecked() != wasOn; })) << name;
    }
    /// Clears a box that comes back on by itself.
    void clickInVain(const char *name)
    {
        QStringList states;
        const auto connection = QObject::connect(box(name), &QAbstractButton::toggled,
            [&states](bool isOn) { states += isOn ? QStringLiteral("on") : QStringLiteral("off"); });
        clickOn(box(name));
        EXPECT_TRUE(waitUntil([&] { return states.size() == 2; }));
        EXPECT_EQ(states, (QStringList{QStringLiteral("off"), QStringLiteral("on")}));
        QObject::disconnect(connection);
    }
    void clickCell(int cellTag) { performClick(cell(cellTag)); }
    QAbstractButton *cell(int cellTag) { return control<NSMatrix>("modifierCheckboxMatrix")->cellWithTag(cellTag); }
    void closeAlert()
    {
        pressKey(KEY_ENTER);
        EXPECT_TRUE(alertGoesBackTo(window()));
    }
    bool isNothingAsked() { return noAlertComesUpOn(window()); }
    QWidget *window() { return pane().mainView()->window(); }
    QString glyphs() { return text("modifiersField"); }
    QList<int> markedRows()
    {
        QList<int> rows;
        for (int row = 0; row < movementKeys; ++row) {
            if (!isHidden(viewWithTag(pane().mainView(), row + movementKeys)))
                rows += row;
        }
        return rows;
    }
    /// What the glyph field shows whenever the settings file is written.
    QStringList glyphsAtWriting;
    void watchWriting()
    {
        observe(&SystemCalls::rename, [this] { glyphsAtWriting += glyphs(); });
    }

    BellListener bell;

private:
    SystemCalls calls_ = systemCalls();
    QVariantMap before_;
};

struct Modifier
{
    const char *box;
    int mask;
    int mnemonic;
};

constexpr Modifier modifiers[] = {{"shiftCheckBox", 0x200, KEY_I}, {"controlCheckBox", 0x1000, KEY_C},
    {"optionCheckBox", 0x800, KEY_L}, {"commandCheckBox", 0x100, KEY_E}};

} // namespace

TEST_F(PaneModifierEditing, theFirstShowingStoresControlAndAlt)
{
    showPane();
    EXPECT_TRUE(isEqualPropertyList(store().value(KTXModifierMask), qlonglong(0x1800)));
    EXPECT_EQ(glyphs(), QStringLiteral("⌃⌥"));
    EXPECT_TRUE(box("controlCheckBox")->isChecked() && box("optionCheckBox")->isChecked());
    EXPECT_FALSE(box("shiftCheckBox")->isChecked() || box("commandCheckBox")->isChecked());
}

TEST_F(PaneModifierEditing, bitsThatDoNotExistAreCleanedAway)
{
    store().set(KTXModifierMask, 0x1B01);
    showPane();
    EXPECT_TRUE(isEqualPropertyList(store().value(KTXModifierMask), qlonglong(0x1B00)));
}

TEST_F(PaneModifierEditing, theBoxesAreCalledAsOnThisDesktop)
{
    const QStringList titles{"⇧ Shift", "⌃ Control", "⌥ Alt", "⌘ Super"};
    for (int index = 0; index < titles.size(); ++index)
        EXPECT_EQ(box(modifiers[index].box)->text().remove('&'), titles[index]);
}

TEST_F(PaneModifierEditing, tickingABoxAddsItsModifierAndTellsTheAgentOnce)
{
    showModifiers(0x1800);
    click("shiftCheckBox");
    expectStoredMask(0x1A00, 1);
    EXPECT_EQ(glyphs(), QStringLiteral("⇧⌃⌥"));
    click("commandCheckBox");
    expectStoredMask(0x1B00, 1);
    EXPECT_EQ(glyphs(), QStringLiteral("⇧⌃⌥⌘"));
    EXPECT_EQ(bell.rings(), 0);
    EXPECT_TRUE(isNothingAsked());
}

TEST_F(PaneModifierEditing, clearingABoxRemovesItsModifierAndTellsTheAgentOnce)
{
    showModifiers(0x1B00);
    int mask = 0x1B00;
    for (const Modifier &modifier : {modifiers[1], modifiers[3], modifiers[0]}) {
        click(modifier.box);
        mask &= ~modifier.mask;
        expectStoredMask(mask, 1);
    }
    EXPECT_EQ(glyphs(), QStringLiteral("⌥"));
    EXPECT_TRUE(isNothingAsked());
}

TEST_F(PaneModifierEditing, eachBoxWorksByItsMnemonicAndBySpace)
{
    for (const Modifier &modifier : modifiers) {
        const int other = modifier.mask == 0x800 ? 0x1000 : 0x800;
        showModifiers(other);
        pressKey(modifier.mnemonic, {KEY_LEFTALT});
        ASSERT_TRUE(waitUntil([&] { return box(modifier.box)->isChecked(); })) << modifier.box;
        expectStoredMask(other | modifier.mask, 1);
        ASSERT_TRUE(waitUntil([&] { return box(modifier.box)->hasFocus(); }));
        pressKey(KEY_SPACE);
        ASSERT_TRUE(waitUntil([&] { return !box(modifier.box)->isChecked(); })) << modifier.box;
        expectStoredMask(other, 1);
    }
}

TEST_F(PaneModifierEditing, aBoxShowsTheNewModifiersBeforeTheyAreStored)
{
    showModifiers(0x1800);
    watchWriting();
    click("shiftCheckBox");
    EXPECT_EQ(glyphsAtWriting, QStringList{QStringLiteral("⇧⌃⌥")});
}

TEST_F(PaneModifierEditing, whatABoxChangedIsAnnouncedOnlyWhenItIsOnTheDisk)
{
    showModifiers(0x1800);
    QStringList announcedAtWriting;
    observe(&SystemCalls::rename, [&] { announcedAtWriting += bus().names(); });
    click("shiftCheckBox");
    EXPECT_EQ(announcedAtWriting, QStringList());
    expectStoredMask(0x1A00, 1);
}

TEST_F(PaneModifierEditing, tickingABoxWhoseModifierIsSetAlreadyKeepsIt)
{
    showModifiers(0x1800);
    setState(box("optionCheckBox"), NSOffState);
    click("optionCheckBox");
    expectStoredMask(0x1800, 1);
    EXPECT_EQ(glyphs(), QStringLiteral("⌃⌥"));
}

TEST_F(PaneModifierEditing, clearingABoxWhoseModifierIsNotSetSetsIt)
{
    showModifiers(0x1800);
    setState(box("shiftCheckBox"), NSOnState);
    click("shiftCheckBox");
    expectStoredMask(0x1A00, 1);
    EXPECT_EQ(glyphs(), QStringLiteral("⇧⌃⌥"));
}

TEST_F(PaneModifierEditing, theLastModifierStaysAndASheetSaysWhy)
{
    for (const Modifier &modifier : modifiers) {
        showModifiers(modifier.mask);
        const QString shown = glyphs();
        clickInVain(modifier.box);
        ASSERT_TRUE(alertComesUp()) << modifier.box;
        EXPECT_EQ(textsOfAlert(), (QStringList{lastModifierMessage, lastModifierInformation}));
        EXPECT_TRUE(partOfAlert("suppression"));
        EXPECT_FALSE(partOfAlert("help"));
        closeAlert();
        EXPECT_TRUE(waitUntil([&] { return box(modifier.box)->hasFocus(); }));
        EXPECT_TRUE(box(modifier.box)->isChecked());
        EXPECT_EQ(glyphs(), shown);
        expectNothingStored();
        EXPECT_EQ(bell.rings(), 0);
    }
}

TEST_F(PaneModifierEditing, theLastModifierIsRefusedToTheKeyboardToo)
{
    showModifiers(0x800);
    box("optionCheckBox")->setFocus();
    pressKey(KEY_SPACE);
    ASSERT_TRUE(alertComesUp());
    pressKey(KEY_ESC);
    ASSERT_TRUE(alertGoesBackTo(window()));
    EXPECT_TRUE(box("optionCheckBox")->isChecked());
    expectNothingStored();
}

TEST_F(PaneModifierEditing, aRefusedBoxIsOnAgainOnTheNextTurn)
{
    showModifiers(0x800);
    performClick(box("optionCheckBox"));
    EXPECT_FALSE(box("optionCheckBox")->isChecked());
    runPendingEvents();
    EXPECT_TRUE(box("optionCheckBox")->isChecked());
    ASSERT_TRUE(alertComesUp());
    closeAlert();
    expectNothingStored();
}

TEST_F(PaneModifierEditing, aRefusedClickSurvivesTheEndOfThePane)
{
    showModifiers(0x800);
    performClick(box("optionCheckBox"));
    destroyPane();
    runPendingEvents();
    EXPECT_FALSE(openAlert());
    EXPECT_TRUE(isEqualPropertyList(store().value(KTXModifierMask), qlonglong(0x800)));
}

TEST_F(PaneModifierEditing, theLastModifierRingsTheBellOnceTheSheetIsSuppressed)
{
    showModifiers(0x800);
    clickInVain("optionCheckBox");
    ASSERT_TRUE(alertComesUp());
    tickAlert();
    closeAlert();
    EXPECT_TRUE(isEqualPropertyList(store().value(KTXSuppressModAlert), true));
    EXPECT_EQ(bus().names(), QStringList{KTXLMPrefsChanged});
    rememberStore();
    EXPECT_EQ(bell.rings(), 0);
    clickInVain("optionCheckBox");
    EXPECT_EQ(bell.rings(), 1);
    EXPECT_TRUE(isNothingAsked());
    EXPECT_EQ(glyphs(), QStringLiteral("⌥"));
    expectNothingStored();
}

TEST_F(PaneModifierEditing, aSuppressionThatIsNoBooleanSuppressesNothing)
{
    store().set(KTXSuppressModAlert, 1);
    showModifiers(0x800);
    clickInVain("optionCheckBox");
    ASSERT_TRUE(alertComesUp());
    closeAlert();
    EXPECT_EQ(bell.rings(), 0);
    expectNothingStored();
}

TEST_F(PaneModifierEditing, afterARefusalAnotherModifierCanTakeItsPlace)
{
    showModifiers(0x800);
    clickInVain("optionCheckBox");
    ASSERT_TRUE(alertComesUp());
    closeAlert();
    click("shiftCheckBox");
    expectStoredMask(0xA00, 1);
    click("optionCheckBox");
    expectStoredMask(0x200, 1);
    EXPECT_TRUE(isNothingAsked());
}

TEST_F(PaneModifierEditing, aCellTogglesItsModifierWhateverItShows)
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

TEST_F(PaneModifierEditing, aCellStoresBeforeTheNewModifiersAreShown)
{
    showModifiers(0x1800);
    watchWriting();
    clickCell(0x200);
    EXPECT_EQ(glyphsAtWriting, QStringList{QStringLiteral("⌃⌥")});
    EXPECT_EQ(glyphs(), QStringLiteral("⇧⌃⌥"));
}

TEST_F(PaneModifierEditing, aMatrixWithoutASelectedCellStoresTheMaskAgain)
{
    showModifiers(0x1800);
    NSMatrix untouched;
    setStringValue(control("modifiersField"), QStringLiteral("-"));
    pane().updateButtonStates(&untouched);
    expectStoredMask(0x1800, 1);
    EXPECT_EQ(glyphs(), QStringLiteral("⌃⌥"));
}

TEST_F(PaneModifierEditing, theZeroCellStoresTheMaskAgainAndMarksConflicts)
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

TEST_F(PaneModifierEditing, aConflictAmongTheOtherKeysIsNeitherMarkedNorAskedAbout)
{
    store().set(KTXOpenPrefPanePref, QVariantMap{{KTXKeycode, QStringLiteral("36")}});
    showModifiers(0x1800);
    clickCell(0x200);
    EXPECT_TRUE(pane().hotKeyIsDuplicateAtIndex(5));
    EXPECT_EQ(markedRows(), QList<int>());
    EXPECT_TRUE(isNothingAsked());
}

TEST_F(PaneModifierEditing, aCellSaysThatKeysAreInConflict)
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

TEST_F(PaneModifierEditing, aSuppressedConflictOfTheWrongKindIsSaid)
{
    store().set(KTXsuppressHKeysTaken, 1);
    giveUpAndRightTheSameKey();
    showPane();
    ASSERT_TRUE(alertComesUp());
    EXPECT_EQ(textsOfAlert(), (QStringList{conflictMessage, conflictInformation}));
    closeAlert();
}

TEST_F(PaneModifierEditing, everyShowingSaysThatKeysAreInConflict)
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

TEST_F(PaneModifierEditing, theCellOfTheLastModifierIsRefusedAndASheetSaysWhy)
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

TEST_F(PaneModifierEditing, theCellOfTheLastModifierRingsTheBellWhenTheSheetIsSuppressed)
{
    store().set(KTXSuppressModAlert, true);
    showModifiers(0x800);
    clickCell(0x800);
    EXPECT_EQ(bell.rings(), 1);
    EXPECT_TRUE(isNothingAsked());
    EXPECT_TRUE(cell(0x800)->isChecked());
    expectNothingStored();
}

TEST_F(PaneModifierEditing, withoutModifiersEveryShowingSaysThatOneIsNeededAndStoresNothing)
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

TEST_F(PaneModifierEditing, withoutModifiersEveryShowingRingsTheBellWhenTheSheetIsSuppressed)
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

TEST_F(PaneModifierEditing, withoutModifiersTheFirstOneIsTaken)
{
    store().set(KTXSuppressModAlert, true);
    showModifiers(0);
    click("commandCheckBox");
    expectStoredMask(0x100, 1);
    EXPECT_EQ(glyphs(), QStringLiteral("⌘"));
}

TEST_F(PaneModifierEditing, aFieldThatIsBeingEditedWaitsMarkedUnderTheSheets)
{
    store().set(KTXsuppressHKeysTaken, true);
    giveUpAndRightTheSameKey();
    showModifiers(0x800);
    store().set(KTXsuppressHKeysTaken, false);
    auto *field = qobject_cast<QLineEdit *>(keyField(0));
    for (const int cellTag : {0x800, 0x200}) {
        field->setFocus();
        field->deselect();
        clickCell(cellTag);
        ASSERT_TRUE(alertComesUp());
        EXPECT_EQ(field->palette().color(QPalette::Base), liveColor(NSColor::selectedTextBackgroundColor()));
        EXPECT_EQ(field->selectedText(), field->text());
        closeAlert();
    }
}

TEST_F(PaneModifierEditing, aSecondRefusalWhileASheetIsOpenIsSaidAfterIt)
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

TEST_F(PaneModifierEditing, theSheetsAreGermanForAGermanUser)
{
    QLocale::setDefault(QLocale(QStringLiteral("de_DE")));
    showModifiers(0x800);
    EXPECT_EQ(box("optionCheckBox")->text().remove('&'), QStringLiteral("⌥ Alt"));
    performClick(box("optionCheckBox"));
    ASSERT_TRUE(alertComesUp());
    EXPECT_EQ(textsOfAlert(),
        (QStringList{QStringLiteral("Mindestens eine Zusatztaste muss gewählt sein"),
            QStringLiteral("Lumaroo lässt sich nur mit mindestens einer Zusatztaste aktivieren. Bitte wählen Sie eine "
                           "andere Zusatztaste, bevor Sie diese abwählen.")}));
    closeAlert();
}

TEST_F(PaneModifierEditing, theSettingsThatItDoesNotOwnStayUntouched)
{
    store().set(KTXsuppressMissionControl, QStringLiteral("as it is"));
    showModifiers(0x1800);
    const bool doubleTap = box("doubleTapCheckBox")->isChecked();
    click("shiftCheckBox");
    clickCell(0x100);
    expectStoredMask(0x1B00, 2);
    EXPECT_EQ(box("doubleTapCheckBox")->isChecked(), doubleTap);
}
