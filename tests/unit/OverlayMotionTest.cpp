#include "agent/overlay/OverlayMotion.h"

#include <gtest/gtest.h>
#include <limits>

TEST(OverlayMotion, goesFromStartToEndByTheTimeThatHasPassed)
{
    const OverlayMotion motion{{0, 0, 100, 50}, {120, 80, 300, 250}};
    EXPECT_EQ(motion.rectAt(-1), motion.from);
    EXPECT_EQ(motion.rectAt(0), motion.from);
    EXPECT_EQ(motion.rectAt(120), motion.to);
    EXPECT_EQ(motion.rectAt(std::numeric_limits<qint64>::max()), motion.to);
    QRect before = motion.from;
    for (int elapsed = 1; elapsed < 120; ++elapsed) {
        const QRect rect = motion.rectAt(elapsed);
        EXPECT_GE(rect.x(), before.x());
        EXPECT_GE(rect.width(), before.width());
        before = rect;
    }
    EXPECT_GT(motion.rectAt(60).x(), 60) << "fast at first";
}

TEST(OverlayMotion, keepsASizeThatStays)
{
    const OverlayMotion motion{{0, 0, 333, 77}, {-900, 41, 333, 77}};
    for (int elapsed = 0; elapsed <= 120; ++elapsed)
        EXPECT_EQ(motion.rectAt(elapsed).size(), QSize(333, 77));
}

TEST(OverlayMotion, stepsNoOftenerThanEightTimesAndTheMonitorRefreshes)
{
    EXPECT_EQ(OverlayMotion::stepInterval(60), 17);
    EXPECT_EQ(OverlayMotion::stepInterval(144), 15);
    EXPECT_EQ(OverlayMotion::stepInterval(30), 34);
    for (const double odd : {0.0, -5.0, std::numeric_limits<double>::quiet_NaN(), 1e300, 1e-300})
        EXPECT_EQ(OverlayMotion::stepInterval(odd), 15);
    EXPECT_EQ(OverlayMotion::stepInterval(1), 120);
}
