// The keys at a glance, on the page with the help.

#include "PaneOnRealStore.h"
#include "Wait.h"

#include "KTXConstants.h"
#include "KTXHotKeyEntry.h"

#include <QAccessible>
#include <QCheckBox>
#include <QTest>

namespace {

class PaneKeySheet : public PaneOnRealStore
{
protected:
    PaneKeySheet() { store().set(KTXFirstLaunch, QVariant(true)); }

    QString told(const char *name) { return control(name)->accessibleName(); }
};

} // namespace

TEST_F(PaneKeySheet, namesEveryKeyWithItsAction)
{
    showPane();
    EXPECT_EQ(told("moveLeftCap"), "Left: ←");
    EXPECT_EQ(told("takeScreenshotCap"), "Make a screenshot: S");
    EXPECT_EQ(told("keySheetModifiers"), "Hold Control Alt and press:");
}

TEST_F(PaneKeySheet, followsTheKeysAsTheyAreStored)
{
    showPane();
    store().set(KTXScreenshotPref, QVariant(hotKeyEntry(0x0F)));
    pane().readUserPrefs();
    EXPECT_EQ(told("takeScreenshotCap"), "Make a screenshot: R");
}

TEST_F(PaneKeySheet, followsTheModifiersAsTheyAreChosen)
{
    showPane();
    control<QCheckBox>("shiftCheckBox")->click();
    EXPECT_EQ(told("keySheetModifiers"), "Hold Shift Control Alt and press:");
    store().set(KTXModifierMask, 0);
    pane().readUserPrefs();
    EXPECT_EQ(told("keySheetModifiers"), "Press:");
}
