// What --print-windows says, on each window manager.

#include "AgentProgram.h"
#include "KTXConstants.h"
#include "WindowsOnDesktop.h"
#include "platform/foundation/preferences/CFPreferences.h"

using testing::ContainsRegex;
using testing::HasSubstr;

namespace {

using WindowTable = WindowsOnDesktop;

void store(const QString &key, const QVariant &value)
{
    CFPreferencesSetAppValue(key, value, KTXLMAppID);
    ASSERT_TRUE(CFPreferencesAppSynchronize(KTXLMAppID));
}

std::string table()
{
    const ProgramResult result = runAgent({"--print-windows"});
    EXPECT_EQ(result.status, 0) << result.errors;
    return result.output;
}

} // namespace

TEST_F(WindowTable, tellsWhyWindowsAreLeftOut)
{
    WindowOfAnotherProgram panel("The panel"), editor("The editor"), player("The player");
    panel.setType("DOCK").setClass("panel", "Panel");
    editor.setClass("editor", "Editor");
    player.setClass("player", "Player");
    for (WindowOfAnotherProgram *window : {&panel, &editor, &player})
        ASSERT_TRUE(window->show());
    minimise(player.id());
    ASSERT_TRUE(waitUntil([&] { return windowStates(player.id()).contains("_NET_WM_STATE_HIDDEN"); }));
    EXPECT_THAT(table(), ContainsRegex("Panel +no: a panel, a menu or the like +[0-9x+]+ +The panel\n"));
    EXPECT_THAT(table(), ContainsRegex("Editor +yes +[0-9x+]+ +The editor\n"));
    // Some managers let it fly to its icon, and that may lead past the screen's border.
    EXPECT_TRUE(waitUntil(
        [&] { return testing::Value(table(), ContainsRegex("Player +no: minimised +[0-9x+]+ +The player\n")); }));
    EXPECT_THAT(table(), HasSubstr("\n1 of 3 windows can be selected; * has the focus\nmonitor 1280x1024+0+0, "));

    ASSERT_TRUE(editor.takesFocus());
    EXPECT_THAT(table(), ContainsRegex("\n[*] +0x[0-9a-f]+ +Editor"));
    EXPECT_THAT(table(), ContainsRegex("\n  +0x[0-9a-f]+ +Panel"));

    store(KTXShowHidden, true);
    store(KTXExcludedApplications, QVariantList{"Editor"});
    EXPECT_THAT(table(), ContainsRegex("Player +yes "));
    EXPECT_THAT(table(), ContainsRegex("Editor +no: its program is excluded "));
}
