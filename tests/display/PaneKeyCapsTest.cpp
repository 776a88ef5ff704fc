// The keys as caps: what they are drawn with, what they say while one waits for a key, and the combination at each.

#include "PaneOnHotKeyPage.h"
#include "Wait.h"

#include "KTXConstants.h"
#include "platform/appkit/controls/KeyCapField.h"

#include <QAccessible>
#include <QImage>
#include <linux/input-event-codes.h>

namespace {

class PaneKeyCapsOnPage : public PaneOnHotKeyPage
{
protected:
    QImage drawn(int row) { return field(row)->grab().toImage(); }
    bool isWaiting(int row) { return field(row)->findChild<KeyCapField *>()->isWaiting(); }
    QString told(int row) { return QAccessible::queryAccessibleInterface(field(row))->text(QAccessible::Description); }
};

} // namespace

TEST_F(PaneKeyCapsOnPage, aKeyWaitsFromItsGettingTheKeyboardUntilItHasBeenPressed)
{
    showPage();
    EXPECT_FALSE(isWaiting(Up));
    focus(Up);
    EXPECT_TRUE(isWaiting(Up));
    EXPECT_EQ(shown(Up), "↑");
    const QImage waiting = drawn(Up);
    press(KEY_B);
    EXPECT_FALSE(isWaiting(Up));
    EXPECT_NE(drawn(Up), waiting);
    focus(Down);
    EXPECT_TRUE(isWaiting(Down));
    EXPECT_FALSE(isWaiting(Up));
}

TEST_F(PaneKeyCapsOnPage, aRefusedKeyLeavesItWaiting)
{
    store().set(KTXSuppressHKeyTaken, true);
    showPage();
    pressIn(Up, KEY_SPACE);
    EXPECT_TRUE(isWaiting(Up));
    press(KEY_UP);
    EXPECT_FALSE(isWaiting(Up)) << "its own key is shown again";
}

TEST_F(PaneKeyCapsOnPage, aKeyLooksOtherwiseWithTheKeyboardAndWithAnotherText)
{
    showPage();
    const QImage atFirst = drawn(Up);
    field(Up)->setText("X");
    EXPECT_NE(drawn(Up), atFirst);
    field(Up)->setText("↑");
    EXPECT_EQ(drawn(Up), atFirst);
    focus(Up);
    EXPECT_NE(drawn(Up), atFirst);
}

TEST_F(PaneKeyCapsOnPage, eachKeyTellsItsCombinationInSignsAndInNames)
{
    showPage();
    EXPECT_EQ(field(Up)->toolTip(), "⌃⌥↑\nClick here, then press the new key");
    EXPECT_EQ(told(Up), "Control Alt ↑. Press a key");
    performClick(control("shiftCheckBox"));
    EXPECT_EQ(field(Up)->toolTip(), "⇧⌃⌥↑\nClick here, then press the new key");
    EXPECT_EQ(told(Up), "Shift Control Alt ↑. Press a key");
    pressIn(Up, KEY_B);
    EXPECT_EQ(field(Up)->toolTip(), "⇧⌃⌥B\nClick here, then press the new key");
    EXPECT_EQ(told(Up), "Shift Control Alt B. Press a key");
}

TEST_F(PaneKeyCapsOnPage, theModifiersAreSpokenWithoutTheirSigns)
{
    showPage();
    const QAccessibleInterface *modifier = QAccessible::queryAccessibleInterface(control("controlCheckBox"));
    EXPECT_EQ(modifier->text(QAccessible::Name), "Control");
    EXPECT_EQ(text("controlCheckBox").remove('&'), "Control ⌃");
}
