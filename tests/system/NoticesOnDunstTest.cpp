// What the agent tells by itself, on a real notification server.

#include "AgentProgram.h"
#include "AgentSession.h"
#include "DesktopWindows.h"
#include "Dunst.h"
#include "KTXConstants.h"
#include "OtherClient.h"
#include "RunningPrograms.h"
#include "TutorialSession.h"

#include <linux/input-event-codes.h>

namespace {

class NoticesOnDunst : public AgentSession
{
protected:
    void SetUp() override
    {
        if (!Dunst::isInstalled())
            GTEST_SKIP() << "the package dunst is not installed";
    }
    /// The tutorial that was asked for outlives the agent.
    void TearDown() override { killProcessesOf(TutorialProgram::builtExecutable()); }
};

} // namespace

TEST_F(NoticesOnDunst, welcomeAndShowTheTutorial)
{
    const Dunst dunst("Show me");
    ASSERT_TRUE(Dunst::isThere());
    AgentProgram agent;
    ASSERT_TRUE(waitUntil([] { return Dunst::shown() == 1; }));
    EXPECT_TRUE(waitUntil([&] {
        Dunst::press();
        return agent.lines().contains("tutorial requested");
    }));
    EXPECT_EQ(agent.errors(), "");
}

TEST_F(NoticesOnDunst, welcomeAndOpenTheSettings)
{
    const Dunst dunst("nothing");
    ASSERT_TRUE(Dunst::isThere());
    AgentProgram agent;
    ASSERT_TRUE(waitUntil([] { return Dunst::shown() == 1; }));
    EXPECT_TRUE(waitUntil([&] {
        Dunst::click();
        return agent.lines().contains("settings opened");
    }));
    ASSERT_TRUE(waitUntil([] { return activeWindowTitle() == "Lumaroo"; }));
    askToClose(activeWindow());
    EXPECT_TRUE(waitUntil([] { return listedWindows().isEmpty(); }));
}

TEST_F(NoticesOnDunst, goOnWithAServerThatWasKilled)
{
    OtherClient other;
    ASSERT_TRUE(other.grabKey(KEY_LEFT, XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_1));
    store({{KTXFirstLaunch, true}});
    Dunst first("Use");
    AgentProgram agent;
    ASSERT_TRUE(waitForLaunchOf(agent));
    ASSERT_TRUE(waitUntil([] { return Dunst::shown() == 1; }));
    first.end();
    const Dunst second("Use");
    ASSERT_TRUE(other.grabKey(KEY_LEFT, XCB_MOD_MASK_CONTROL));
    store({{KTXFirstLaunch, true}, {KTXModifierMask, 0x1000}});
    paneAnnounces(KTXLMPrefsChanged);
    ASSERT_TRUE(waitUntil([] { return Dunst::shown() == 1; }));
    EXPECT_TRUE(waitUntil([&] {
        Dunst::press();
        return stored().value(KTXModifierMask) == 0x1100;
    })) << "its button works";
}
