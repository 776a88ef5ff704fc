// The preview of the active window, where no selection's end takes it away.

#include "KTXConstants.h"
#include "LivingWindow.h"
#include "SelectionSession.h"
#include "TrayHost.h"
#include "Wait.h"

#include <linux/input-event-codes.h>

namespace {

constexpr int onOff = 1; // the line of the icon's menu

class PreviewByUser : public SelectionSession
{
protected:
    void SetUp() override
    {
        open();
        ASSERT_TRUE(window.show());
        turnToWindow(window.id());
        ASSERT_TRUE(waitUntil([&] { return activeWindow() == window.id(); }));
    }
    void show()
    {
        pressKey(KEY_SPACE, modifiers());
        ASSERT_TRUE(agent.waitForLine("preview shown"));
        ASSERT_TRUE(waitUntil([] { return marksOnScreen() == 1; }));
    }
    bool hasEnded()
    {
        return agent.waitForLine("preview ended") && waitUntil([] { return marksOnScreen() == 0; });
    }
    void change(const QString &setting, const QVariant &value)
    {
        QVariantMap all = stored();
        all.insert(setting, value);
        store(all);
        paneAnnounces(KTXLMPrefsChanged);
    }

    LivingWindow window{"Shown", {500, 400, 300, 200}};
};

} // namespace

TEST_F(PreviewByUser, endsWhenLumarooIsSwitchedOff)
{
    const TrayHost host;
    ASSERT_TRUE(host.hasIcon());
    ASSERT_NO_FATAL_FAILURE(show());
    host.choose(onOff);
    ASSERT_TRUE(agent.waitForLine("off for now"));
    EXPECT_TRUE(hasEnded());
}

TEST_F(PreviewByUser, endsWithoutModifiersForItsKey)
{
    ASSERT_NO_FATAL_FAILURE(show());
    change(KTXModifierMask, 0);
    EXPECT_TRUE(hasEnded());
}

TEST_F(PreviewByUser, staysWithAnotherChangeOfTheSettings)
{
    ASSERT_NO_FATAL_FAILURE(show());
    change(KTXAnimate, true);
    ASSERT_TRUE(agent.waitForLine("settings read (2)"));
    EXPECT_FALSE(agent.lines().contains("preview ended"));
    pressKey(KEY_SPACE, modifiers());
    EXPECT_TRUE(hasEnded());
}

TEST_F(PreviewByUser, makesWayForTheSettings)
{
    ASSERT_NO_FATAL_FAILURE(show());
    pressKey(KEY_COMMA, modifiers());
    EXPECT_TRUE(hasEnded());
    ASSERT_TRUE(waitUntil([] { return activeWindowTitle() == "Lumaroo"; }));
    const quint32 settings = activeWindow();
    askToClose(settings);
    EXPECT_TRUE(waitUntil([&] { return !listedWindows().contains(settings); }));
}

TEST_F(PreviewByUser, comesAlsoWhileAButtonOfTheMouseIsDown)
{
    movePointerTo({550, 450});
    mouseDown();
    EXPECT_NO_FATAL_FAILURE(show());
    mouseUp();
}
