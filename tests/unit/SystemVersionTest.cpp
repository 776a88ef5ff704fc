// The system's version, as its own file tells it and in one number.

#include "platform/foundation/machine/internal/SystemVersion.h"

#include <gtest/gtest.h>

namespace {

using Version = std::optional<SystemVersion>;

quint32 packed(quint32 major, quint32 minor, quint32 bugFix)
{
    return packedSystemVersion({major, minor, bugFix});
}

} // namespace

TEST(SystemVersionOf, isTheVersionsNumberWithItsParts)
{
    EXPECT_EQ(systemVersionOf("NAME=\"A\"\nVERSION_ID=\"12\"\nVERSION=\"13\"\n"), Version({12, 0, 0}));
    EXPECT_EQ(systemVersionOf("VERSION_ID=22.04"), Version({22, 4, 0}));
    EXPECT_EQ(systemVersionOf("VERSION_ID='10.3.9'"), Version({10, 3, 9}));
    EXPECT_EQ(systemVersionOf("VERSION_ID=1.2.3.4"), Version({1, 2, 3}));
    EXPECT_EQ(systemVersionOf("VERSION_ID=12b"), Version({12, 0, 0}));
    EXPECT_EQ(systemVersionOf("VERSION_ID=99999999999.1"), Version({0xFFFFFFFF, 1, 0}));
}

TEST(SystemVersionOf, takesTheLastOfSeveralLines)
{
    EXPECT_EQ(systemVersionOf("VERSION_ID=1\n  VERSION_ID=\"2\" \r\n"), Version({2, 0, 0}));
}

TEST(SystemVersionOf, isNoneWithoutANumber)
{
    for (const char *file : {"", "VERSION=12", "VERSION_ID=", "VERSION_ID=\"", "VERSION_ID=\"\"", "VERSION_ID=sid",
             "VERSION_ID=.5", "#VERSION_ID=12", "MY_VERSION_ID=12"})
        EXPECT_EQ(systemVersionOf(file), Version()) << file;
}

TEST(SystemVersionInOneNumber, hasTheMajorVersionInTwoDecimalDigits)
{
    EXPECT_EQ(packed(12, 0, 0), 0x1200U);
    EXPECT_EQ(packed(10, 3, 9), 0x1039U);
    EXPECT_EQ(packed(4, 1, 0), 0x0410U);
    EXPECT_EQ(packed(0, 0, 0), 0U);
}

TEST(SystemVersionInOneNumber, holdsWhatItHasRoomFor)
{
    EXPECT_EQ(packed(22, 16, 400), 0x22FFU);
    EXPECT_EQ(packed(2026, 1, 1), 0x9911U);
}
