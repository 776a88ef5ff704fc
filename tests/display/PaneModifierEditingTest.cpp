// The activation modifiers as the user changes them.

#include "PaneOnModifiers.h"

namespace {

class PaneModifierEditing : public PaneOnModifiers
{
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
    const QStringList titles{"Shift ⇧", "Control ⌃", "Alt ⌥", "Super ⌘"};
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

TEST_F(PaneModifierEditing, aBoxShowsTheNewModifiersBeforeTheyAreStoredAndTheAgentIsTold)
{
    showModifiers(0x1800);
    QStringList glyphsWhenTold;
    pane().atAgentTold = [&] {
        expectStoredMask(0x1A00, 1);
        glyphsWhenTold += glyphs();
    };
    watchWriting();
    click("shiftCheckBox");
    pane().atAgentTold = [] {};
    EXPECT_EQ(glyphsAtWriting, QStringList{QStringLiteral("⇧⌃⌥")});
    EXPECT_EQ(glyphsWhenTold, QStringList{QStringLiteral("⇧⌃⌥")});
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

TEST_F(PaneModifierEditing, withoutModifiersTheFirstOneIsTaken)
{
    store().set(KTXSuppressModAlert, true);
    showModifiers(0);
    click("commandCheckBox");
    expectStoredMask(0x100, 1);
    EXPECT_EQ(glyphs(), QStringLiteral("⌘"));
}

TEST_F(PaneModifierEditing, theSheetsAreGermanForAGermanUser)
{
    QLocale::setDefault(QLocale(QStringLiteral("de_DE")));
    showModifiers(0x800);
    EXPECT_EQ(box("optionCheckBox")->text().remove('&'), QStringLiteral("Alt ⌥"));
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
