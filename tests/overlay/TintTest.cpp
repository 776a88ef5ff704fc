// With a compositor the frame is seen through, and a tint lies inside it.

#include "Compositor.h"
#include "MarkOnGround.h"

namespace {

constexpr int rounding = 3; // of the compositor

class Tint : public Mark
{
protected:
    void SetUp() override { ASSERT_TRUE(compositor_.isThere()); }
    /// As it is to be with an alpha.
    ExpectedFrame composited(const QRect &rect, double alpha) const
    {
        ExpectedFrame frame = expected(rect);
        frame.opacity = std::max(0.6, alpha);
        frame.tint = alpha / 4;
        return frame;
    }

    Compositor compositor_;
};

} // namespace

TEST_P(Tint, isAQuarterOfTheColoursAlpha)
{
    useColor(blue, 0.8);
    mark({100, 80, 400, 300});
    EXPECT_TRUE(showsOnScreen(composited({100, 80, 400, 300}, 0.8), rounding));
}

TEST_P(Tint, ofAFaintColourLeavesTheFrameVisible)
{
    useColor(blue, 0.2);
    mark({100, 80, 400, 300});
    EXPECT_TRUE(showsOnScreen(composited({100, 80, 400, 300}, 0.2), rounding));
    useColor(blue, 0);
    mark({100, 80, 400, 300});
    EXPECT_TRUE(showsOnScreen(composited({100, 80, 400, 300}, 0), rounding));
}

TEST_P(Tint, goesWithTheFrame)
{
    useColor(blue, 0.8);
    mark({100, 80, 400, 300});
    mark({150, 90, 400, 300});
    EXPECT_TRUE(showsOnScreen(composited({150, 90, 400, 300}, 0.8), rounding));
    mark({10, 20, 200, 100});
    EXPECT_TRUE(showsOnScreen(composited({10, 20, 200, 100}, 0.8), rounding));
    mark({10, 20, 16, 16});
    EXPECT_TRUE(showsOnScreen(composited({10, 20, 16, 16}, 0.8), rounding)) << "no room inside";
}

TEST_P(Tint, isHiddenWithTheFrame)
{
    mark({100, 80, 400, 300});
    ASSERT_TRUE(showsOnScreen(composited({100, 80, 400, 300}, 1), rounding));
    hide();
    EXPECT_TRUE(showsOnScreen(ground));
}

TEST_P(Tint, endsWithTheCompositor)
{
    mark({100, 80, 400, 300});
    ASSERT_TRUE(showsOnScreen(composited({100, 80, 400, 300}, 1), rounding));
    compositor_.end();
    mark({100, 80, 400, 300});
    EXPECT_TRUE(showsOnScreen(expected({100, 80, 400, 300})));
}

TEST_P(Tint, comesWithACompositorThatStartsLater)
{
    compositor_.end();
    mark({100, 80, 400, 300});
    ASSERT_TRUE(showsOnScreen(expected({100, 80, 400, 300})));
    Compositor later;
    ASSERT_TRUE(later.isThere());
    mark({100, 80, 400, 300});
    EXPECT_TRUE(showsOnScreen(composited({100, 80, 400, 300}, 1), rounding));
}

INSTANTIATE_TEST_SUITE_P(Ground, Tint, testing::Values(lightGround, darkGround));
