#include "agent/actions/PreviewLayout.h"

#include <gtest/gtest.h>

namespace {

const QRect monitor(1000, 0, 1000, 800);

} // namespace

TEST(PreviewLayout, fillsNineTenthsOfTheMonitorInTheWindowsShape)
{
    EXPECT_EQ(previewRect({500, 200}, monitor), QRect(1050, 220, 900, 360));
    EXPECT_EQ(previewRect({300, 400}, monitor), QRect(1230, 40, 540, 720));
}

TEST(PreviewLayout, makesWindowsThatAreLargerSmaller)
{
    EXPECT_EQ(previewRect({2000, 1000}, monitor).size(), QSize(900, 450));
}

TEST(PreviewLayout, enlargesFourTimesAtMost)
{
    const QRect rect = previewRect({60, 40}, monitor);
    EXPECT_EQ(rect.size(), QSize(240, 160));
    EXPECT_EQ(rect.center(), monitor.center());
}

TEST(PreviewLayout, isNeverEmpty)
{
    EXPECT_FALSE(previewRect({1, 30000}, monitor).isEmpty());
    EXPECT_FALSE(previewRect({0, 0}, monitor).isEmpty());
}
