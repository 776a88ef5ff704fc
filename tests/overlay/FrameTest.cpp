#include "ExpectedFrame.h"
#include "KeyPress.h"
#include "OtherClient.h"
#include "ScreenPicture.h"
#include "Wait.h"
#include "agent/overlay/Overlay.h"

#include <QGuiApplication>
#include <QScreen>
#include <gtest/gtest.h>

namespace {

constexpr QRgb light = 0xfff4f4f4, dark = 0xff101418, blue = 0xff2060c0, yellow = 0xffffe040, black = 0xff000000,
               white = 0xffffffff;

NSColorRef colorOf(QRgb color, float alpha = 1)
{
    return NSColor::colorWithDeviceRGBA(
        float(qRed(color)) / 255, float(qGreen(color)) / 255, float(qBlue(color)) / 255, alpha);
}

OverlayView viewOf(const QRect &rect, double scale = 1)
{
    OverlayView view;
    view.windowRect = rect;
    view.monitor = {QGuiApplication::primaryScreen()->geometry(), scale, 60};
    return view;
}

/// The mark over a plain ground, without a compositor: nothing is seen through.
class Frame : public testing::TestWithParam<QRgb>
{
protected:
    void mark(const QRect &rect, double scale = 1) { overlay_->showOverlay(viewOf(rect, scale)); }
    void useColor(QRgb color, float alpha = 1) { overlay_->setStyle({colorOf(color, alpha), false}); }
    ExpectedFrame expected(const QRect &rect) const { return {rect, GetParam(), blue, white}; }

    ScreenGround ground_{GetParam()};
    std::unique_ptr<Overlay> overlay_ = overlay();
};

} // namespace

TEST_P(Frame, isDrawnInTheColourWithALineOnBothSides)
{
    useColor(blue);
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
    useColor(blue, 0.2F);
    mark({100, 80, 400, 300});
    EXPECT_TRUE(showsOnScreen(expected({100, 80, 400, 300})));
}

TEST_P(Frame, isAsWideAsTheMonitorIsDense)
{
    useColor(blue);
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
    useColor(blue);
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
    useColor(blue);
    mark(desktop);
    EXPECT_TRUE(showsOnScreen(expected(desktop)));
}

TEST_P(Frame, ofASmallWindowFillsIt)
{
    useColor(blue);
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
    useColor(blue);
    mark({100, 80, 400, 300});
    EXPECT_TRUE(showsOnScreen(expected({100, 80, 400, 300})));
    overlay_->hideOverlay();
    EXPECT_TRUE(waitUntil([&before] { return screenPicture() == before; }));
    overlay_->hideOverlay();
    EXPECT_EQ(screenPicture(), before);
}

TEST_P(Frame, isGoneWithItsOwner)
{
    const QImage before = screenPicture();
    useColor(blue);
    mark({100, 80, 400, 300});
    EXPECT_TRUE(showsOnScreen(expected({100, 80, 400, 300})));
    overlay_.reset();
    EXPECT_TRUE(waitUntil([&before] { return screenPicture() == before; }));
}

TEST_P(Frame, comesAboveWhatCameUpMeanwhile)
{
    const QRect rect(100, 80, 400, 300);
    useColor(blue);
    mark(rect);
    ASSERT_TRUE(showsOnScreen(expected(rect)));
    const ScreenGround above(dark);
    const auto plain = [](QPoint) { return dark; };
    ASSERT_TRUE(showsOnScreen(plain));
    mark(rect);
    EXPECT_TRUE(showsOnScreen(ExpectedFrame{rect, dark, blue, white}));
}

INSTANTIATE_TEST_SUITE_P(Ground, Frame, testing::Values(light, dark));
