// Hot keys on an X server with several screens.

#include "HotKeySession.h"
#include "KeyPress.h"
#include "SecondDisplay.h"

#include <linux/input-event-codes.h>
#include <optional>

namespace {

constexpr quint32 A = 0;
constexpr quint16 control = XCB_MOD_MASK_CONTROL;

/// The server is there before anything of the test connects to it.
class Screens : public testing::Test
{
public:
    Screens()
    {
        qputenv("DISPLAY", display.name());
        session.emplace();
    }

    SecondDisplay display{{"-screen", "0", "800x600x24", "-screen", "1", "800x600x24"}};
    struct Session : HotKeySession
    {
        void TestBody() override { }
    };
    std::optional<Session> session;
};

} // namespace

TEST_F(Screens, allGiveTheirPressesToAHotKey)
{
    ASSERT_EQ(session->add(A, controlKey), noErr);
    for (const int screen : {0, 1, 0}) {
        session->other.takeFocus(screen);
        pressKey(KEY_A, {KEY_LEFTCTRL});
        EXPECT_EQ(session->pressed(), QList<quint32>{1}) << screen;
    }
}

TEST_F(Screens, eachMayRefuseAHotKeyWhichIsThenHeldOnNone)
{
    for (const int screen : {1, 0}) {
        ASSERT_TRUE(session->other.grabKey(KEY_A, control, screen));
        EXPECT_EQ(session->add(A, controlKey), eventHotKeyExistsErr) << screen;
        EXPECT_FALSE(session->other.isHeldElsewhere(KEY_A, control, 1 - screen)) << screen;
        session->other.ungrabKey(KEY_A, control, screen);
    }
}

TEST_F(Screens, allHoldAHotKeyUntilItIsGivenUp)
{
    ASSERT_EQ(session->add(A, controlKey), noErr);
    for (const int screen : {0, 1})
        EXPECT_TRUE(session->other.isHeldElsewhere(KEY_A, control, screen)) << screen;
    ASSERT_EQ(UnregisterEventHotKey(session->last()), noErr);
    for (const int screen : {0, 1})
        EXPECT_FALSE(session->other.isHeldElsewhere(KEY_A, control, screen)) << screen;
}
