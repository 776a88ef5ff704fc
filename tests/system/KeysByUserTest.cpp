// The real settings, the real agent and a user who gives actions their keys without a mouse.

#include "AgentProgram.h"
#include "KTXConstants.h"
#include "KeyPress.h"
#include "ProductOnHotKeyPage.h"
#include "Wait.h"

#include <linux/input-event-codes.h>

namespace {

class KeysByUser : public ProductOnHotKeyPage
{
protected:
    void start()
    {
        open();
        turnToKeys();
        goToKeyForUp();
        remember();
    }
};

} // namespace

TEST_F(KeysByUser, aKeyPressedInAFieldIsStoredAnnouncedAndReadByTheAgent)
{
    start();
    pressKey(KEY_B);
    expectStored(KTXUpPref, 11);
    pressKey(KEY_ENTER);
    pressKey(KEY_KPENTER);
    expectStored(KTXLeftPref, 76);
    pressKey(KEY_ENTER, {KEY_LEFTSHIFT});
    pressKey(KEY_KP8);
    expectStored(KTXUpPref, 91);
    pressKey(KEY_Q, {KEY_LEFTCTRL, KEY_LEFTALT}); // as it will be pressed later
    expectStored(KTXUpPref, 12);
}

TEST_F(KeysByUser, theWindowsShortcutsActInAFieldAndOtherKeysAreTaken)
{
    start();
    pressKey(KEY_A, {KEY_LEFTMETA});
    expectStored(KTXUpPref, 0);
    pressKey(KEY_ESC);
    EXPECT_TRUE(settings->isRunning());
    before = domain();
    pressKey(KEY_Q, {KEY_LEFTCTRL});
    EXPECT_EQ(settings->exitStatus(), 0);
    EXPECT_EQ(domain(), before);
}

TEST_F(KeysByUser, aKeyInUseIsRefusedAndTheNextIsTaken)
{
    start();
    pressKey(KEY_SPACE);
    ASSERT_TRUE(settings->waitForWindows(2));
    pressKey(KEY_ENTER);
    ASSERT_TRUE(settings->waitForWindows(1));
    EXPECT_EQ(domain(), before);
    EXPECT_TRUE(bus.names().isEmpty());
    pressKey(KEY_X);
    expectStored(KTXUpPref, 7);
}

TEST_F(KeysByUser, aNewKeyIsThereAfterTheSettingsWereClosedAndOpened)
{
    start();
    pressKey(KEY_B);
    expectStored(KTXUpPref, 11);
    pressKey(KEY_TAB, {KEY_LEFTSHIFT});
    pressKey(KEY_Q, {KEY_LEFTCTRL});
    EXPECT_EQ(settings->exitStatus(), 0);
    EXPECT_EQ(domain().value(KTXUpPref), QVariant(hotKey(11)));
    SettingsProgram again({pane()});
    ASSERT_TRUE(again.waitForWindows(1));
    again.settledPicture();
    EXPECT_EQ(domain().value(KTXUpPref), QVariant(hotKey(11)));
    EXPECT_EQ(runningAgentsSetting(KTXUpPref).toObject().value(KTXKeycode), QJsonValue("11"));
}
