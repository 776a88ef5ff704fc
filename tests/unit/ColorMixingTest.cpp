#include "platform/appkit/colors/ColorMixing.h"

#include <gtest/gtest.h>

TEST(AMixedColor, liesBetweenTheTwoByTheShareOfTheOther)
{
    const QColor one(0, 100, 200), other(100, 0, 200);
    EXPECT_EQ(mixed(one, other, 0).rgb(), one.rgb());
    EXPECT_EQ(mixed(one, other, 1).rgb(), other.rgb());
    EXPECT_EQ(mixed(one, other, 0.25f).rgb(), QColor(25, 75, 200).rgb());
}

TEST(AMixedColor, isOpaque)
{
    EXPECT_EQ(mixed(QColor(0, 0, 0, 0), QColor(0, 0, 0, 0), 0.5f).alpha(), 255);
}
