// What the page of the keys offers beside its fields: which action has a key that is refused, and the first keys back.

#include "KeyPress.h"
#include "OpenAlert.h"
#include "PaneOnHotKeyPage.h"
#include "Wait.h"

#include "KTXActionKeys.h"
#include "KTXConstants.h"
#include "KTXSettings.h"
#include "platform/foundation/propertylists/PropertyList.h"

#include <QAccessible>
#include <QMenu>
#include <linux/input-event-codes.h>

namespace {

constexpr int codeOfB = 11;
constexpr int codeOfLeft = 123;

class PaneKeysPage : public PaneOnHotKeyPage
{
protected:
    QString line() { return text("keyUseField"); }
    QString told(int row) { return QAccessible::queryAccessibleInterface(field(row))->text(QAccessible::Description); }
    bool offersUndo() { return !isHidden(control("undoRestoringButton")); }
    QVariant stored(int row) { return store().value(KTXActionKeys().at(size_t(row)).preferenceName); }
    static QVariant defaultEntry(int row) { return KTXDefaultValue(KTXActionKeys().at(size_t(row)).preferenceName); }
    /// The menu of the key that has the focus.
    QMenu *menu()
    {
        return waitUntil([] { return qobject_cast<QMenu *>(QApplication::activePopupWidget()) != nullptr; })
            ? qobject_cast<QMenu *>(QApplication::activePopupWidget())
            : nullptr;
    }
    void restoreFromMenu(int row)
    {
        focus(row);
        press(KEY_COMPOSE);
        ASSERT_TRUE(menu());
        pressKey(KEY_ENTER);
        ASSERT_TRUE(waitUntil([] { return !QApplication::activePopupWidget(); }));
        runPendingEvents();
    }
};

} // namespace

TEST_F(PaneKeysPage, aLineNamesTheActionThatHasAKey)
{
    store().set(KTXSuppressHKeyTaken, true);
    storeKey(Left, codeOfB);
    showPage();
    EXPECT_EQ(line(), QString());
    pressIn(Up, KEY_B);
    EXPECT_EQ(line(), "B is used for “Left”.");
    EXPECT_TRUE(told(Up).startsWith("B is used for “Left”."));
    press(KEY_SPACE);
    EXPECT_EQ(line(), "Space is used for “Show a preview”.");
}

TEST_F(PaneKeysPage, theLineGoesWithTheNextKey)
{
    store().set(KTXSuppressHKeyTaken, true);
    showPage();
    pressIn(Up, KEY_SPACE);
    EXPECT_FALSE(line().isEmpty());
    pressIn(Down, KEY_B);
    EXPECT_EQ(line(), QString());
    EXPECT_FALSE(told(Up).contains("Space"));
}

TEST_F(PaneKeysPage, theLineStandsBelowTheAlert)
{
    showPage();
    focus(Up);
    pressKey(KEY_SPACE);
    ASSERT_TRUE(alertComesUp());
    EXPECT_EQ(line(), "Space is used for “Show a preview”.");
    pressKey(KEY_ESC);
    ASSERT_TRUE(alertGoesBackTo(window()));
}

TEST_F(PaneKeysPage, allKeysAreRestoredAndAnnounced)
{
    storeNoKeys();
    showPage();
    performClick(control("restoreAllKeysButton"));
    for (int row = 0; row < RowCount; ++row) {
        EXPECT_TRUE(isEqualPropertyList(stored(row), defaultEntry(row))) << row;
        EXPECT_EQ(keyCode(row), int(KTXActionKeys().at(size_t(row)).defaultKeyCode.number())) << row;
    }
    EXPECT_EQ(shown(Left), "←");
    EXPECT_EQ(line(), "All keys are restored.");
    ASSERT_FALSE(bus().names().isEmpty());
    EXPECT_EQ(bus().names().constFirst(), KTXLMPrefsChanged);
}

TEST_F(PaneKeysPage, restoringTakesTheMarksAway)
{
    store().set(KTXsuppressHKeysTaken, true);
    storeKey(Under, codeOfLeft);
    showPage();
    ASSERT_EQ(markedRows(), (QList<int>{Left, Under}));
    performClick(control("restoreAllKeysButton"));
    EXPECT_EQ(markedRows(), QList<int>());
}

TEST_F(PaneKeysPage, undoBringsBackWhatWasStoredAndWhatWasNot)
{
    storeKey(Up, codeOfB);
    showPage();
    EXPECT_FALSE(offersUndo());
    performClick(control("restoreAllKeysButton"));
    ASSERT_TRUE(offersUndo());
    performClick(control("undoRestoringButton"));
    EXPECT_EQ(shown(Up), "B");
    EXPECT_EQ(keyCode(Up), codeOfB);
    EXPECT_EQ(stored(Up), QVariant(QVariantMap{{KTXKeycode, QString::number(codeOfB)}}));
    EXPECT_FALSE(stored(Down).isValid());
    EXPECT_FALSE(offersUndo());
    EXPECT_EQ(line(), "The keys are as they were before.");
}

TEST_F(PaneKeysPage, undoBringsThemBackAlsoWhereTheyWereRestoredTwice)
{
    storeKey(Up, codeOfB);
    showPage();
    performClick(control("restoreAllKeysButton"));
    performClick(control("restoreAllKeysButton"));
    ASSERT_TRUE(offersUndo());
    performClick(control("undoRestoringButton"));
    EXPECT_EQ(keyCode(Up), codeOfB);
    EXPECT_EQ(stored(Up), QVariant(QVariantMap{{KTXKeycode, QString::number(codeOfB)}}));
}

TEST_F(PaneKeysPage, undoLeavesWhatOthersHaveSetMeanwhile)
{
    storeKey(Up, codeOfB);
    storeKey(Down, codeOfB + 1);
    showPage();
    performClick(control("restoreAllKeysButton"));
    storeKey(Up, codeOfB + 2);
    performClick(control("undoRestoringButton"));
    EXPECT_EQ(keyCode(Up), codeOfB + 2);
    EXPECT_EQ(keyCode(Down), codeOfB + 1);
}

TEST_F(PaneKeysPage, undoLeavesTheKeyboardAtTheOtherButton)
{
    showPage();
    performClick(control("restoreAllKeysButton"));
    control("undoRestoringButton")->setFocus();
    performClick(control("undoRestoringButton"));
    EXPECT_EQ(QApplication::focusWidget(), control("restoreAllKeysButton"));
}

TEST_F(PaneKeysPage, aKeyThatIsSetAfterwardsIsNotUndone)
{
    showPage();
    performClick(control("restoreAllKeysButton"));
    pressIn(Up, KEY_B);
    EXPECT_FALSE(offersUndo());
    EXPECT_EQ(line(), QString());
}

TEST_F(PaneKeysPage, theMenuKeyRestoresTheKeyThatHasTheFocus)
{
    storeKey(Up, codeOfB);
    storeKey(Down, codeOfB + 1);
    showPage();
    restoreFromMenu(Up);
    EXPECT_EQ(shown(Up), "↑");
    EXPECT_TRUE(isEqualPropertyList(stored(Up), defaultEntry(Up)));
    EXPECT_EQ(keyCode(Down), codeOfB + 1);
    EXPECT_EQ(line(), "The key for “Up” is restored.");
    EXPECT_EQ(bell.rings(), 0);
}

TEST_F(PaneKeysPage, shiftAndF10OpenTheMenuToo)
{
    storeKey(Up, codeOfB);
    showPage();
    pressIn(Up, KEY_F10, {KEY_LEFTSHIFT});
    QMenu *opened = menu();
    ASSERT_TRUE(opened);
    EXPECT_EQ(opened->actions().constFirst()->text(), "Restore this key");
    EXPECT_TRUE(opened->actions().constFirst()->isEnabled());
    opened->close();
    EXPECT_EQ(bell.rings(), 0);
}

TEST_F(PaneKeysPage, aFirstKeyOffersNothingToRestore)
{
    showPage();
    pressIn(Up, KEY_F10, {KEY_LEFTSHIFT});
    QMenu *opened = menu();
    ASSERT_TRUE(opened);
    EXPECT_FALSE(opened->actions().constFirst()->isEnabled());
    opened->close();
}

TEST_F(PaneKeysPage, aFirstKeyThatAnotherActionHasIsRefusedInALine)
{
    storeKey(Up, codeOfLeft);
    storeKey(Left, codeOfB);
    showPage();
    restoreFromMenu(Left);
    EXPECT_EQ(line(), "← is used for “Up”. Change that key first.");
    EXPECT_EQ(keyCode(Left), codeOfB);
    EXPECT_FALSE(offersUndo());
    EXPECT_FALSE(openAlert());
    expectNothingStored();
}

TEST_F(PaneKeysPage, aGermanUserReadsItInGerman)
{
    QLocale::setDefault(QLocale(QStringLiteral("de_DE")));
    store().set(KTXSuppressHKeyTaken, true);
    storeKey(Left, codeOfB);
    showPage();
    pressIn(Up, KEY_B);
    EXPECT_EQ(line(), "B ist schon für „Links“ belegt.");
    EXPECT_EQ(text("restoreAllKeysButton").remove('&'), "Alle Tasten zurücksetzen");
}
