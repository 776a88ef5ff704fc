// What the settings of repeating mean in time.

#include "RepeatTiming.h"
#include "KTXConstants.h"

#include <gtest/gtest.h>
#include <limits>

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

qint64 delay(double initialDelay)
{
    return repeatTiming({{KTXInitialDelay, initialDelay}}).delay.count();
}

qint64 interval(double repeatRate)
{
    return repeatTiming({{KTXRepeatRate, repeatRate}}).interval.count();
}

} // namespace

TEST(RepeatTiming, waitsAsLongAsTheDelaySaysButAQuarterOfASecondAtLeast)
{
    EXPECT_EQ(delay(0), 250);
    EXPECT_EQ(delay(0.25), 250);
    EXPECT_EQ(delay(0.3), 300);
    EXPECT_EQ(delay(1.5), 1500);
    EXPECT_EQ(delay(2), 2000);
}

TEST(RepeatTiming, growsFasterByTheSameFactorWithEachStepOfTheRate)
{
    EXPECT_EQ(interval(0), 1000);
    EXPECT_EQ(interval(0.25), 589);
    EXPECT_EQ(interval(0.5), 346);
    EXPECT_EQ(interval(0.75), 204);
    EXPECT_EQ(interval(1), 120);
}

TEST(RepeatTiming, ofWhatNoSliderGivesIsTheNearestOne)
{
    EXPECT_EQ(delay(-1), 250);
    EXPECT_EQ(delay(7), 2000);
    EXPECT_EQ(delay(infinity), 2000);
    EXPECT_EQ(delay(-infinity), 250);
    EXPECT_EQ(interval(-1), 1000);
    EXPECT_EQ(interval(7), 120);
    EXPECT_EQ(interval(infinity), 120);
}

TEST(RepeatTiming, ofNothingIsTheDefault)
{
    EXPECT_EQ(repeatTiming({}), RepeatTiming());
}

TEST(RepeatTiming, goesByTheSwitch)
{
    EXPECT_TRUE(repeatTiming({{KTXAutoRepeat, true}}).repeats);
    EXPECT_FALSE(repeatTiming({{KTXAutoRepeat, false}}).repeats);
}
