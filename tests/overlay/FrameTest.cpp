#include "MarkOnGround.h"

using Frame = Mark;

TEST_P(Frame, isDrawnInTheColourWithALineOnBothSides)
{
    mark({100, 80, 400, 300});
    EXPECT_TRUE(showsOnScreen(expected({100, 80, 400, 300})));
}

TEST_P(Frame, ofALightColourHasBlackLines)
{
    useColor(yellow);
    mark({100, 80, 400, 300});
    EXPECT_TRUE(showsOnScreen(ExpectedFrame{{100, 80, 400, 300}, GetParam(), yellow, black}));
}

TEST_P(Frame, isNotSeenThroughWithoutACompositor)
{
    useColor(blue, 0.2);
    mark({100, 80, 400, 300});
    EXPECT_TRUE(showsOnScreen(expected({100, 80, 400, 300})));
}

TEST_P(Frame, isAsWideAsTheMonitorIsDense)
{
    ExpectedFrame frame = expected({100, 80, 400, 300});
    mark(frame.rect, 2);
    frame.line = 2;
    frame.band = 12;
    EXPECT_TRUE(showsOnScreen(frame));
    mark(frame.rect, 1.5);
    frame.band = 9;
    EXPECT_TRUE(showsOnScreen(frame));
    mark(frame.rect, 0.1);
    frame.line = frame.band = 1;
    EXPECT_TRUE(showsOnScreen(frame));
}

TEST_P(Frame, goesWhereItIsShownNext)
{
    mark({100, 80, 400, 300});
    mark({200, 150, 400, 300});
    EXPECT_TRUE(showsOnScreen(expected({200, 150, 400, 300})));
    mark({0, 0, 120, 460});
    EXPECT_TRUE(showsOnScreen(expected({0, 0, 120, 460})));
}

TEST_P(Frame, takesAnotherColourAtTheNextShowing)
{
    const QRect rect(100, 80, 400, 300);
    useColor(yellow);
    mark(rect);
    useColor(blue);
    EXPECT_TRUE(showsOnScreen(ExpectedFrame{rect, GetParam(), yellow, black}));
    mark(rect);
    EXPECT_TRUE(showsOnScreen(expected(rect)));
}

TEST_P(Frame, reachesOverTheWholeDesktop)
{
    const QRect desktop = screenPicture().rect();
    mark(desktop);
    EXPECT_TRUE(showsOnScreen(expected(desktop)));
}

TEST_P(Frame, ofASmallWindowFillsIt)
{
    for (int side = 1; side <= 20; ++side) {
        ExpectedFrame frame = expected({100, 80, side, side + 3});
        mark(frame.rect);
        if (side <= 2)
            frame.line = 0; // a line would leave nothing of the colour
        EXPECT_TRUE(showsOnScreen(frame)) << side;
    }
}

TEST_P(Frame, thatIsHiddenLeavesNothing)
{
    const QImage before = screenPicture();
    mark({100, 80, 400, 300});
    EXPECT_TRUE(showsOnScreen(expected({100, 80, 400, 300})));
    hide();
    EXPECT_TRUE(waitUntil([&before] { return screenPicture() == before; }));
    hide();
    EXPECT_EQ(screenPicture(), before);
}

TEST_P(Frame, isGoneWithItsOwner)
{
    const QImage before = screenPicture();
    mark({100, 80, 400, 300});
    EXPECT_TRUE(showsOnScreen(expected({100, 80, 400, 300})));
    overlay_.reset();
    EXPECT_TRUE(waitUntil([&before] { return screenPicture() == before; }));
}

TEST_P(Frame, comesAboveWhatCameUpMeanwhile)
{
    const QRect rect(100, 80, 400, 300);
    mark(rect);
    ASSERT_TRUE(showsOnScreen(expected(rect)));
    const ScreenGround above(darkGround);
    ASSERT_TRUE(showsOnScreen([](QPoint) { return darkGround; }));
    mark(rect);
    EXPECT_TRUE(showsOnScreen(ExpectedFrame{rect, darkGround, blue, white}));
}

INSTANTIATE_TEST_SUITE_P(Ground, Frame, testing::Values(lightGround, darkGround));
