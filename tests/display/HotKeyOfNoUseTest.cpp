// A key that no field takes, and what the user is told about it.

#include "KeyPress.h"
#include "OpenAlert.h"
#include "PaneOnHotKeyPage.h"
#include "Wait.h"

#include <QToolTip>
#include <linux/input-event-codes.h>

namespace {

class HotKeyOfNoUse : public PaneOnHotKeyPage
{
protected:
    /// Before it would have gone by itself, which is after ten seconds.
    static bool lineGoes()
    {
        constexpr int milliseconds = 6000;
        return waitUntil([] { return !QToolTip::isVisible(); }, milliseconds);
    }
};

} // namespace

TEST_F(HotKeyOfNoUse, isToldByABeepAndALineAtTheField)
{
    showPage();
    int beeps = 0;
    for (const int key : {KEY_F12, KEY_INSERT, KEY_DELETE, KEY_BACKSPACE, KEY_HOME, KEY_PAGEDOWN, KEY_ESC}) {
        pressIn(Screenshot, key);
        EXPECT_EQ(bell.rings(), ++beeps) << key;
        EXPECT_TRUE(QToolTip::isVisible()) << key;
        EXPECT_TRUE(QToolTip::text().startsWith("This key cannot be used.")) << key;
        press(KEY_LEFTSHIFT);
        EXPECT_TRUE(lineGoes()) << key;
    }
    EXPECT_EQ(shown(Screenshot), "S");
    expectNothingStored();
    EXPECT_FALSE(openAlert());
}

TEST_F(HotKeyOfNoUse, isForgottenWhenAKeyIsTaken)
{
    showPage();
    pressIn(Screenshot, KEY_F12);
    EXPECT_TRUE(QToolTip::isVisible());
    press(KEY_B);
    expectTaken(Screenshot, 11, "B");
    EXPECT_TRUE(lineGoes());
    EXPECT_EQ(bell.rings(), 1);
}

TEST_F(HotKeyOfNoUse, isNoModifierNoLockAndNothingThatMovesTheFocus)
{
    showPage();
    for (const int key : {KEY_LEFTSHIFT, KEY_RIGHTCTRL, KEY_LEFTALT, KEY_LEFTMETA, KEY_CAPSLOCK, KEY_CAPSLOCK,
             KEY_NUMLOCK, KEY_NUMLOCK, KEY_TAB, KEY_ENTER})
        pressIn(Screenshot, key);
    EXPECT_EQ(bell.rings(), 0);
    EXPECT_FALSE(QToolTip::isVisible());
    expectNothingStored();
}

TEST_F(HotKeyOfNoUse, isToldOfOnceWhileItStaysDown)
{
    showPage();
    focus(Screenshot);
    const KeyReleases releases;
    keyDown(KEY_F12);
    EXPECT_TRUE(waitUntil([&] { return releases.withRepeats() >= 3; })) << "it repeats";
    keyUp(KEY_F12);
    runPendingEvents();
    EXPECT_EQ(bell.rings(), 1);
}
