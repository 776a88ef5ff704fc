// What the hot key page shows and says of conflicts when it is refreshed.

#include "KeyPress.h"
#include "OpenAlert.h"
#include "PaneOnHotKeyPage.h"

#include "KTXConstants.h"

#include <linux/input-event-codes.h>

namespace {

const QString conflictMessage = QStringLiteral("There are conflicts with the marked keys.");
const QString conflictInformation = QStringLiteral(
    "The marked keys have multiple actions assigned to them. Please change them to remove the conflicts.");

class HotKeyRefresh : public PaneOnHotKeyPage
{
};

} // namespace

TEST_F(HotKeyRefresh, showsTheMovementKeysInCapitalsAndTheirMarkers)
{
    store().set(KTXsuppressHKeysTaken, true);
    storeKey(Up, 115);
    storeKey(Right, 115);
    storeKey(OpenPrefPane, 119);
    storeKey(Preview, 119);
    showPage();
    pane().readUserPrefs();
    EXPECT_EQ(shown(Up), "Home");
    rememberStore();
    pane().updateHotKeyFields();
    EXPECT_EQ(shown(Up), "HOME");
    EXPECT_EQ(shown(Right), "HOME");
    EXPECT_EQ(shown(OpenPrefPane), "End") << "only the movement keys are refreshed";
    EXPECT_EQ(markedRows(), (QList<int>{Up, Right}));
    EXPECT_TRUE(noAlertComesUpOn(window())) << "suppressed it stays silent";
    EXPECT_EQ(bell.rings(), 0);
    expectNothingStored();
}

TEST_F(HotKeyRefresh, tellsOfConflicts)
{
    storeKey(Under, 53);
    store().set(KTXsuppressHKeysTaken, true);
    showPage();
    store().set(KTXsuppressHKeysTaken, QVariant());
    rememberStore();
    focus(Right);
    field(Right)->selectAll();
    int alerts = 0;
    const AtAlert look([&] {
        ++alerts;
        EXPECT_EQ(field(Right)->palette().color(QPalette::Base), QColor(Qt::white));
        EXPECT_EQ(field(Right)->selectedText(), QString());
    });
    pane().updateHotKeyFields();
    ASSERT_TRUE(alertComesUp());
    EXPECT_EQ(alerts, 1);
    EXPECT_EQ(textsOfAlert(), (QStringList{conflictMessage, conflictInformation}));
    EXPECT_NE(partOfAlert("suppression"), nullptr);
    EXPECT_EQ(partOfAlert("help"), nullptr);
    EXPECT_EQ(markedRows(), QList<int>{Under});
    EXPECT_EQ(field(Right)->selectedText(), "→");
    pressKey(KEY_ESC);
    ASSERT_TRUE(alertGoesBackTo(window()));
    expectNothingStored();
}

TEST_F(HotKeyRefresh, comesWithATurnToThePage)
{
    store().set(KTXsuppressHKeysTaken, true);
    storeKey(Up, 115);
    storeKey(Right, 115);
    showPage();
    EXPECT_EQ(shown(Up), "HOME");
    EXPECT_EQ(markedRows(), (QList<int>{Up, Right}));
}

TEST_F(HotKeyRefresh, withoutAConflictAsksNothing)
{
    storeKey(OpenPrefPane, 53);
    showPage();
    pane().updateHotKeyFields();
    EXPECT_TRUE(noAlertComesUpOn(window()));
    EXPECT_TRUE(markedRows().isEmpty());
    expectNothingStored();
}

TEST_F(HotKeyRefresh, beforeTheFirstReadingDoesNothing)
{
    pane().updateHotKeyFields();
    EXPECT_TRUE(markedRows().isEmpty());
}
