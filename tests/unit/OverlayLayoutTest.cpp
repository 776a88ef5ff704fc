#include "agent/overlay/OverlayLayout.h"
#include "agent/overlay/OverlayLengths.h"

#include <QRandomGenerator>
#include <QRegion>
#include <gtest/gtest.h>

namespace {

const Monitor monitor{{0, 0, 1920, 1080}, 1, 60};

OverlayView viewOf(const QRect &rect, const Monitor &on = monitor)
{
    OverlayView view;
    view.windowRect = rect;
    view.monitor = on;
    return view;
}

QRegion regionOf(const QList<QRect> &rects)
{
    QRegion region;
    for (const QRect &rect : rects)
        region += rect;
    return region;
}

int areaOf(const QList<QRect> &rects)
{
    int area = 0;
    for (const QRect &rect : rects)
        area += rect.width() * rect.height();
    return area;
}

int areaOf(const QRegion &region)
{
    return areaOf(QList<QRect>(region.begin(), region.end()));
}

QRect stripOf(const OverlayView &view, int width)
{
    return stripPlaceOf(view).rectOf({width, stripHeight(view.monitor.scale)}, view.monitor.rect);
}

} // namespace

TEST(OverlayLayout, aFrameAndItsInsideAreTheWholeRectangle)
{
    for (const double scale : {0.5, 1.0, 1.25, 1.5, 2.0, 3.0}) {
        for (const QSize size :
            {QSize(1, 1), QSize(2, 500), QSize(15, 15), QSize(17, 18), QSize(49, 60), QSize(1920, 1080)}) {
            const QRect rect(QPoint(-7, 30), size);
            const FrameParts parts = framePartsIn(rect, scale);
            const QRegion frame = regionOf(parts.frame);
            EXPECT_EQ(areaOf(parts.frame), areaOf(frame)) << "no part on another";
            EXPECT_EQ(frame + parts.inside, QRegion(rect));
            EXPECT_TRUE((frame & parts.inside).isEmpty());
            EXPECT_EQ(regionOf(parts.lines) - frame, QRegion());
            EXPECT_LT(areaOf(regionOf(parts.lines)), areaOf(frame)) << "something of the colour is seen";
        }
    }
}

TEST(OverlayLayout, theStripHangsBelowTheFramesUpperEdge)
{
    EXPECT_EQ(stripOf(viewOf({100, 100, 800, 600}), 200), QRect(399, 107, 200, 30));
    EXPECT_EQ(stripPlaceOf(viewOf({100, 100, 800, 600})).corners, RoundCorners::Lower);
}

TEST(OverlayLayout, theStripOfASmallWindowStandsOutside)
{
    EXPECT_EQ(stripOf(viewOf({500, 400, 80, 60}), 200), QRect(439, 370, 200, 30)) << "above";
    EXPECT_EQ(stripOf(viewOf({500, 10, 80, 60}), 200), QRect(439, 70, 200, 30)) << "below";
    EXPECT_EQ(stripOf(viewOf({0, 400, 80, 60}), 200).left(), 0);
    EXPECT_EQ(stripOf(viewOf({1840, 400, 80, 60}), 200).right(), 1919);
}

TEST(OverlayLayout, nothingToldLeavesTheMonitor)
{
    QRandomGenerator random(7);
    const Monitor right{{1920, 0, 1280, 1024}, 1.5, 60};
    for (int time = 0; time < 2000; ++time) {
        const QRect rect(
            random.bounded(-300, 3300), random.bounded(-300, 1200), random.bounded(0, 2500), random.bounded(0, 1500));
        OverlayView view = viewOf(rect & right.rect, right);
        view.isCovered = true;
        const StripPlace place = stripPlaceOf(view);
        ASSERT_GT(place.longest, 100);
        ASSERT_TRUE(right.rect.contains(stripOf(view, random.bounded(50, place.longest))));
        ASSERT_TRUE(right.rect.contains(iconPlaceOf(view)) || iconPlaceOf(view).isEmpty());
    }
}

TEST(OverlayLayout, aWindowOnTwoMonitorsTellsOnTheOneThatShowsMost)
{
    EXPECT_EQ(stripOf(viewOf({1120, 100, 1600, 600}), 201).center().x(), (1120 + 1919) / 2);
}

TEST(OverlayLayout, theIconStandsInTheMiddleOfWhatIsCovered)
{
    OverlayView view = viewOf({100, 100, 800, 600});
    EXPECT_TRUE(iconPlaceOf(view).isEmpty());
    view.isCovered = true;
    EXPECT_EQ(iconPlaceOf(view), QRect(451, 351, 96, 96));
    view.windowRect = {100, 100, 90, 60};
    EXPECT_EQ(iconPlaceOf(view).size(), QSize(30, 30));
    view.windowRect = {100, 100, 40, 40};
    EXPECT_TRUE(iconPlaceOf(view).isEmpty());
}

TEST(OverlayLayout, theIconOfWhatShowsNowhereStandsInTheMonitorsMiddleWithItsTitleBelow)
{
    const OverlayView view = viewOf({});
    EXPECT_EQ(iconPlaceOf(view), QRect(911, 491, 96, 96));
    EXPECT_EQ(stripOf(view, 200), QRect(858, 595, 200, 30));
}

TEST(OverlayLayout, labelsStandAtTheCornersAndNeverOnOneAnother)
{
    OverlayView view = viewOf({100, 100, 800, 600});
    for (int digit = 1; digit <= 9; ++digit)
        view.labels += {digit, QRect(100 + digit % 3, 100, 800, 600)};
    const QList<QRect> places = labelPlacesOf(view);
    EXPECT_EQ(places.size(), 9);
    EXPECT_EQ(places.first(), QRect(116, 115, 36, 36));
    for (int one = 0; one < 9; ++one) {
        for (int other = 0; other < one; ++other)
            EXPECT_FALSE(places.at(one).intersects(places.at(other)));
    }
    view.labels = {{1, {300, 300, 30, 20}}};
    EXPECT_EQ(labelPlacesOf(view).first().center(), QPoint(313, 308)) << "a small window's middle";
}
