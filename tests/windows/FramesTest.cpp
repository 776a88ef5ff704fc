// Where windows are seen: what the agent reads is what the screen shows, on each window manager.

#include "WindowsOnDesktop.h"

#include <QGuiApplication>
#include <QScreen>

namespace {

std::string textOf(const QRect &rect)
{
    return QStringLiteral("%1x%2+%3+%4").arg(rect.width()).arg(rect.height()).arg(rect.x()).arg(rect.y()).toStdString();
}

/// On a ground whose colour no window has.
class Frames : public WindowsOnDesktop
{
protected:
    void SetUp() override
    {
        ground_.setType("DESKTOP").setColor(groundColor);
        ASSERT_TRUE(ground_.show());
        ASSERT_TRUE(waitUntil([] { return seenOnGround().isEmpty(); }));
    }
    /// Both may take a moment.
    void expectSeenAsRead(const WindowOfAnotherProgram &window)
    {
        const auto read = [&] { return described(window.id()).windowRect; };
        EXPECT_TRUE(waitUntil([&] { return !read().isEmpty() && seenOnGround() == read(); }, 5000))
            << textOf(seenOnGround()) << " is seen, " << textOf(read()) << " was read";
    }

    static QRect screen() { return QGuiApplication::primaryScreen()->geometry(); }

private:
    WindowOfAnotherProgram ground_{"Ground", screen()};
};

} // namespace

TEST_F(Frames, areReadWithTitleBarAndBorders)
{
    WindowOfAnotherProgram window("Framed");
    ASSERT_TRUE(window.show());
    expectSeenAsRead(window);
    const QRect frame = described(window.id()).windowRect;
    EXPECT_GT(frame.height(), 200 + 10);
    EXPECT_GE(frame.width(), 300);
}

TEST_F(Frames, areTheContentWhereThereAreNone)
{
    WindowOfAnotherProgram window("Bare", {200, 150, 300, 200});
    window.setUndecorated();
    ASSERT_TRUE(window.show());
    expectSeenAsRead(window);
    EXPECT_EQ(described(window.id()).windowRect.size(), QSize(300, 200));
}

TEST_F(Frames, areWithinTheShadowsThatProgramsDraw)
{
    // The shadow itself is the ground's colour here, as if it were seen through.
    WindowOfAnotherProgram window("Shadow", {200, 150, 300, 200});
    window.setUndecorated().set("_GTK_FRAME_EXTENTS", "CARDINAL", {20, 30, 10, 40});
    ASSERT_TRUE(window.show());
    const QRect content(QPoint(0, 0), QSize(300 - 50, 200 - 50));
    EXPECT_TRUE(waitUntil([&] { return described(window.id()).windowRect.size() == content.size(); }));
    EXPECT_TRUE(waitUntil([&] { return seenOnGround().contains(described(window.id()).windowRect); }));
    const QRect seen = seenOnGround(), read = described(window.id()).windowRect;
    EXPECT_EQ(read.topLeft() - seen.topLeft(), QPoint(20, 10));
}

TEST_F(Frames, areTheWholeMonitorInFullscreen)
{
    WindowOfAnotherProgram window("Fullscreen");
    ASSERT_TRUE(window.show());
    ASSERT_TRUE(window.takesState("FULLSCREEN"));
    expectSeenAsRead(window);
    EXPECT_EQ(described(window.id()).windowRect, screen());
}

TEST_F(Frames, areReadWhereTheyAreMaximised)
{
    WindowOfAnotherProgram window("Maximised");
    ASSERT_TRUE(window.show());
    ASSERT_TRUE(window.takesState("MAXIMIZED_VERT", "MAXIMIZED_HORZ"));
    expectSeenAsRead(window);
}

TEST_F(Frames, areTheTitleBarOfAShadedWindow)
{
    WindowOfAnotherProgram window("Shaded");
    ASSERT_TRUE(window.show());
    ASSERT_TRUE(window.takesState("SHADED"));
    EXPECT_TRUE(described(window.id()).isCandidate());
    EXPECT_FALSE(described(window.id()).isMinimised);
    EXPECT_TRUE(waitUntil([&] { return described(window.id()).windowRect.height() < 100; }));
    EXPECT_TRUE(waitUntil([&] { return described(window.id()).windowRect.contains(seenOnGround()); }));
}

TEST_F(Frames, endWhereTheMonitorsEnd)
{
    WindowOfAnotherProgram window("Partly outside", {-100, 900, 300, 400});
    window.setUndecorated();
    ASSERT_TRUE(window.show());
    expectSeenAsRead(window);
    EXPECT_TRUE(screen().contains(described(window.id()).windowRect));
}
