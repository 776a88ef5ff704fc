// Windows on several monitors, on each window manager.

#include "WindowsOnDesktop.h"

using testing::ElementsAre;

namespace {

class Monitors : public WindowsOnDesktop
{
protected:
    QList<QRect> rects()
    {
        QList<QRect> all;
        for (const Monitor &monitor : world().monitors)
            all += monitor.rect;
        return all;
    }
    /// A window of that place, without a frame, as it is read.
    QRect placed(const QRect &place)
    {
        WindowOfAnotherProgram window("Window", place);
        window.setUndecorated();
        EXPECT_TRUE(window.show());
        EXPECT_TRUE(waitUntil([&] { return described(window.id()).windowRect.width() == place.width(); }));
        EXPECT_TRUE(described(window.id()).isCandidate());
        return described(window.id()).windowRect;
    }
};

const QRect left(0, 0, 640, 1024), right(640, 0, 640, 1024);
const QRect upper(0, 0, 1280, 512), lower(0, 512, 1280, 512);

} // namespace

TEST_F(Monitors, areTheWholeScreenWhereThereIsOne)
{
    setMonitors({QRect(0, 0, 1280, 1024)});
    const WindowWorld now = world();
    EXPECT_THAT(rects(), ElementsAre(QRect(0, 0, 1280, 1024)));
    EXPECT_GT(now.monitors.first().refreshRate, 10);
    EXPECT_EQ(now.monitors.first().scale, 1);
}

TEST_F(Monitors, standSideBySideOrAboveEachOther)
{
    setMonitors({left, right});
    EXPECT_THAT(rects(), ElementsAre(left, right));
    setMonitors({upper, lower});
    EXPECT_THAT(rects(), ElementsAre(upper, lower));
}

TEST_F(Monitors, togetherHoldWhatIsSeenOfAWindow)
{
    // Nothing is at the lower right.
    setMonitors({left, QRect(640, 0, 640, 512)});
    EXPECT_EQ(placed({300, 100, 200, 200}), QRect(300, 100, 200, 200));
    EXPECT_EQ(placed({540, 100, 200, 200}), QRect(540, 100, 200, 200));
    EXPECT_EQ(placed({700, 400, 200, 200}).height(), 112);
}

TEST_F(Monitors, allHaveWindowsThatCanBeSelected)
{
    setMonitors({left, right});
    EXPECT_EQ(placed({100, 100, 200, 200}), QRect(100, 100, 200, 200));
    EXPECT_EQ(placed({900, 100, 200, 200}), QRect(900, 100, 200, 200));
    setMonitors({upper, lower});
    EXPECT_EQ(placed({100, 700, 200, 200}), QRect(100, 700, 200, 200));
}
