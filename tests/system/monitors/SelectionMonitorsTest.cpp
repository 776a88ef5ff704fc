// The real agent on two monitors, which the window manager has known from its start.

#include "KTXConstants.h"
#include "SelectionSession.h"
#include "Wait.h"

#include <linux/input-event-codes.h>

namespace {

const QRect leftMonitor(0, 0, 640, 1024), rightMonitor(640, 0, 640, 1024);

class SelectionMonitors : public SelectionSession
{
protected:
    static bool isMarked(const QRect &rect)
    {
        return waitUntil([&rect] { return marks().contains(rect); });
    }
    /// A window on each monitor that fills it; the left one has the focus.
    void fillMonitors()
    {
        open();
        for (const char *title : {"right", "left"}) {
            ASSERT_TRUE(window(title).takesState("FULLSCREEN"));
            ASSERT_TRUE(window(title).takesFocus());
        }
    }
};

} // namespace

TEST_F(SelectionMonitors, areWalkedFromOneToTheOtherAndBack)
{
    open();
    holdModifiers();
    for (const int key : {KEY_RIGHT, KEY_RIGHT, KEY_LEFT, KEY_LEFT})
        pressKey(key);
    EXPECT_TRUE(says({"began", "moved to middle", "moved to right", "moved to middle", "moved to left"}));
    pressKey(KEY_LEFT);
    EXPECT_TRUE(waitUntil([this] { return steps().last() == u"moved to right"; })) << "round across both";
    releaseModifiers();
    EXPECT_TRUE(isActive("right"));
}

TEST_F(SelectionMonitors, haveNoWayRoundWithoutWrapping)
{
    open({{KTXHWrap, false}});
    ASSERT_TRUE(window("right").takesFocus());
    pressKey(KEY_RIGHT, modifiers());
    EXPECT_TRUE(says({"began", "accepted right"}));
}

TEST_F(SelectionMonitors, eachHaveAWindowThatFillsThem)
{
    if (qEnvironmentVariable("LUMAROO_SESSION_WINDOW_MANAGER") == u"xfwm4")
        GTEST_SKIP() << "xfwm4 has a window on the right monitor fill the left one, where both are parts of one output";
    fillMonitors();
    holdModifiers();
    pressKey(KEY_RIGHT);
    EXPECT_TRUE(says({"began", "moved to right"})) << "what they cover does not count";
    EXPECT_TRUE(isMarked(rightMonitor));
    pressKey(KEY_RIGHT);
    EXPECT_TRUE(says({"began", "moved to right", "moved to left"}));
    EXPECT_TRUE(isMarked(leftMonitor));
    pressKey(KEY_LEFT);
    EXPECT_TRUE(isMarked(rightMonitor));
    releaseModifiers();
    EXPECT_TRUE(isActive("right"));
    EXPECT_TRUE(windowStates(window("left").id()).contains("_NET_WM_STATE_FULLSCREEN"));
}
