// The tray's menu in use: its lines do what they say to keys and windows.

#include "KTXConstants.h"
#include "OtherClient.h"
#include "SelectionSession.h"
#include "TrayHost.h"
#include "Wait.h"

#include <gmock/gmock.h>
#include <linux/input-event-codes.h>

using testing::IsEmpty;

namespace {

enum Line { OnOff = 1, Settings = 3 };

class TrayByUser : public SelectionSession
{
protected:
    void switchOff()
    {
        host.choose(OnOff);
        ASSERT_TRUE(agent.waitForLine("off for now"));
    }
    void switchOn()
    {
        host.choose(OnOff);
        ASSERT_TRUE(agent.waitForLine("on again"));
    }
    static bool isHeld(int key)
    {
        const bool isAlt = modifiers().contains(KEY_LEFTALT);
        return OtherClient().isHeldElsewhere(key, XCB_MOD_MASK_CONTROL | (isAlt ? XCB_MOD_MASK_1 : XCB_MOD_MASK_4));
    }

    TrayHost host;
};

} // namespace

TEST_F(TrayByUser, tellsWhatToPress)
{
    open();
    ASSERT_TRUE(host.hasIcon());
    EXPECT_EQ(host.toolTip(), "Lumaroo|Hold ⌃⌥ and press ← → ↑ ↓");
    QVariantMap settings = stored();
    settings.insert({{KTXActivateDoubleClick, true}, {KTXModifierMask, 0x1100}});
    store(settings);
    paneAnnounces(KTXLMPrefsChanged);
    EXPECT_TRUE(waitUntil([this] { return host.toolTip() == "Lumaroo|Press ⌃⌘ twice, then press ← → ↑ ↓"; }));
}

TEST_F(TrayByUser, givesAllKeysToOthersUntilItIsOnAgain)
{
    open();
    ASSERT_TRUE(host.hasIcon());
    ASSERT_TRUE(isHeld(KEY_LEFT));
    ASSERT_TRUE(isHeld(KEY_ENTER));
    switchOff();
    EXPECT_FALSE(isHeld(KEY_LEFT));
    EXPECT_FALSE(isHeld(KEY_ENTER));
    // Settings that change meanwhile take nothing.
    paneAnnounces(KTXLMPrefsChanged);
    ASSERT_TRUE(agent.waitForLine("settings read (2)"));
    EXPECT_FALSE(isHeld(KEY_LEFT));
    pressKey(KEY_RIGHT, modifiers());
    pressModifiersTwice();
    switchOn();
    EXPECT_TRUE(isHeld(KEY_LEFT));
    EXPECT_THAT(steps(), IsEmpty()) << "nothing came of what was pressed meanwhile";
    pressModifiersTwice();
    EXPECT_TRUE(says({"began"}));
    pressKey(KEY_RIGHT);
    pressKey(KEY_ENTER);
    EXPECT_TRUE(isActive("middle"));
}

TEST_F(TrayByUser, followsSettingsThatChangedWhileItWasOff)
{
    open();
    ASSERT_TRUE(host.hasIcon());
    switchOff();
    QVariantMap settings = stored();
    settings.insert(KTXLeftPref, QVariantMap{{KTXKeycode, "38"}}); // J
    store(settings);
    paneAnnounces(KTXLMPrefsChanged);
    ASSERT_TRUE(agent.waitForLine("settings read (2)"));
    EXPECT_FALSE(isHeld(KEY_J));
    switchOn();
    EXPECT_TRUE(isHeld(KEY_J));
    EXPECT_FALSE(isHeld(KEY_LEFT));
}

TEST_F(TrayByUser, endsTheSelectionThatIsOn)
{
    open();
    ASSERT_TRUE(host.hasIcon());
    pressModifiersTwice();
    ASSERT_TRUE(says({"began"}));
    switchOff();
    EXPECT_TRUE(says({"began", "cancelled"}));
    EXPECT_TRUE(waitUntil([] { return marksOnScreen() == 0; }));
    EXPECT_TRUE(OtherClient().grabKeyboard());
}

TEST_F(TrayByUser, opensTheSettings)
{
    open();
    ASSERT_TRUE(host.hasIcon());
    host.choose(Settings);
    ASSERT_TRUE(agent.waitForLine("settings opened"));
    ASSERT_TRUE(waitUntil([] { return activeWindowTitle() == "Lumaroo"; }));
    const quint32 settings = activeWindow();
    turnToWindow(desktopWindows().first().id);
    ASSERT_TRUE(isActive("left"));
    host.call("Activate", {10, 10});
    EXPECT_TRUE(waitUntil([&] { return activeWindow() == settings; })) << "as a click on the icon does";
    askToClose(settings);
    EXPECT_TRUE(waitUntil([&] { return !listedWindows().contains(settings); }));
}
