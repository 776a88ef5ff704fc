// The agent's icon on a real panel, used with the mouse and the keyboard.

#include "AgentProgram.h"
#include "AgentSession.h"
#include "KTXConstants.h"
#include "KeyPress.h"
#include "OtherClient.h"
#include "Panel.h"
#include "ScreenPicture.h"
#include "Wait.h"

#include <linux/input-event-codes.h>
#include <optional>

namespace {

class TrayOnPanel : public AgentSessionAfterFirstLaunch
{
protected:
    void SetUp() override
    {
        if (!Panel::isInstalled())
            GTEST_SKIP() << "the package xfce4-panel is not installed";
    }

    /// Where the icon stands with its colours; nothing where there is none.
    static std::optional<QPoint> icon()
    {
        const auto isOfItsFrame = [](QRgb pixel) {
            return qRed(pixel) > 230 && qGreen(pixel) > 150 && qGreen(pixel) < 200 && qBlue(pixel) < 110;
        };
        const QImage screen = screenPicture();
        for (int y = 0; y < 45; ++y) {
            for (int x = 0; x < 300; ++x) {
                if (isOfItsFrame(screen.pixel(x, y)))
                    return QPoint(x, y);
            }
        }
        return {};
    }
    static bool showsIcon(bool shows)
    {
        return waitUntil([shows] { return icon().has_value() == shows; });
    }
    /// A menu has the whole keyboard while it is open. A panel that has just begun shows the icon before it has the
    /// menu, and nobody can see when it has: its user clicks again.
    static bool openMenu(QPoint place)
    {
        constexpr int mostClicks = 5, patience = 3000;
        for (int clicks = 0; clicks < mostClicks; ++clicks) {
            clickAt(place, MouseButton::Right);
            if (waitUntil([] { return !OtherClient().grabKeyboard(); }, patience))
                return true;
        }
        return false;
    }
    /// The first line.
    static void chooseOnOff()
    {
        pressKey(KEY_DOWN);
        pressKey(KEY_ENTER);
    }
};

} // namespace

TEST_F(TrayOnPanel, switchesLumarooOffAndOnAlsoOnAPanelThatWasRestarted)
{
    AgentProgram agent;
    ASSERT_TRUE(waitForLaunchOf(agent));
    std::optional<Panel> panel(std::in_place);
    ASSERT_TRUE(Panel::hasTray());
    ASSERT_TRUE(showsIcon(true));
    const QPoint place = *icon();
    ASSERT_TRUE(openMenu(place));
    chooseOnOff();
    EXPECT_TRUE(agent.waitForLine("off for now"));
    EXPECT_TRUE(showsIcon(false)) << "it has lost its colours";

    panel.reset();
    panel.emplace();
    ASSERT_TRUE(Panel::hasTray());
    ASSERT_TRUE(waitUntil([&] { return screenPicture().pixel(place) == qRgb(0x6b, 0x6e, 0x79); })) << "still off";
    ASSERT_TRUE(openMenu(place));
    chooseOnOff();
    EXPECT_TRUE(agent.waitForLine("on again"));
    EXPECT_TRUE(showsIcon(true));
}

TEST_F(TrayOnPanel, goesWhenItIsNotWanted)
{
    const Panel panel;
    ASSERT_TRUE(Panel::hasTray());
    AgentProgram agent;
    ASSERT_TRUE(waitForLaunchOf(agent));
    ASSERT_TRUE(showsIcon(true));
    store({{KTXFirstLaunch, true}, {KTXShowInTray, false}});
    paneAnnounces(KTXLMPrefsChanged);
    EXPECT_TRUE(showsIcon(false));
}
