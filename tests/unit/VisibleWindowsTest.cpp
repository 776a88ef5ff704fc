// Which windows show enough to be walked to, which get a digit, and which are marked as covered.

#include "agent/selection/VisibleWindows.h"
#include "DrawnWindows.h"

#include <gtest/gtest.h>
#include <string>

using namespace DrawnWindows;

namespace {

std::string letters(const WindowList &windows)
{
    std::string found;
    for (const WindowDescription *window : windows)
        found += char(window->windowID);
    return found;
}

/// B with A on top of it, which leaves the lowest lines free.
std::string visibleWithLinesFree(const QSize &size, int lines)
{
    return letters(visibleWindows(
        placed({window('A', {0, 0, size.width(), size.height() - lines}), window('B', {QPoint(), size})})));
}

WindowWorld halves()
{
    return placed({window('A', {0, 0, 500, 1000}), window('B', {500, 0, 500, 1000}), window('C', {0, 0, 1000, 1000})});
}

} // namespace

TEST(VisibleWindows, are4096PixelsOfLargeOnes)
{
    EXPECT_EQ(visibleWithLinesFree({1024, 900}, 4), "AB");
    EXPECT_EQ(visibleWithLinesFree({1024, 900}, 3), "A");
    EXPECT_EQ(visibleWithLinesFree({1365, 900}, 3), "A") << "one pixel is missing";
}

TEST(VisibleWindows, areAQuarterOfSmallOnes)
{
    EXPECT_EQ(visibleWithLinesFree({80, 40}, 10), "AB");
    EXPECT_EQ(visibleWithLinesFree({80, 40}, 9), "A");
    EXPECT_EQ(visibleWithLinesFree({5, 5}, 2), "AB");
    EXPECT_EQ(visibleWithLinesFree({5, 5}, 1), "A");
    EXPECT_EQ(visibleWithLinesFree({1, 5}, 2), "AB");
    EXPECT_EQ(visibleWithLinesFree({1, 5}, 1), "A") << "one pixel of five";
}

TEST(VisibleWindows, showInSeveralParts)
{
    // Four corners of 32 x 32 pixels around a cross.
    WindowWorld cross = placed({
        window('A', {0, 32, 864, 736}),
        window('B', {32, 0, 800, 800}),
        window('C', {0, 0, 864, 800}),
    });
    EXPECT_EQ(letters(visibleWindows(cross)), "ABC");
    windowOf(cross, 'B').windowRect = {31, 0, 801, 800};
    EXPECT_EQ(letters(visibleWindows(cross)), "AB");
}

TEST(VisibleWindows, areHiddenBySeveralTogether)
{
    EXPECT_EQ(letters(visibleWindows(halves())), "AB");
}

TEST(VisibleWindows, areHiddenByWindowsThatCannotBeSelected)
{
    WindowWorld world = halves();
    windowOf(world, 'A').windowIsIgnored = WindowIgnored::Type;
    windowOf(world, 'B').windowIsIgnored = WindowIgnored::NotInTaskbar;
    EXPECT_EQ(letters(visibleWindows(world)), "");
}

TEST(VisibleWindows, areNotHiddenByWhatIsNotOnTheScreen)
{
    WindowWorld world = halves();
    windowOf(world, 'A').windowIsIgnored = WindowIgnored::OtherDesktop;
    EXPECT_EQ(letters(visibleWindows(world)), "BC");
    windowOf(world, 'A').windowIsIgnored = WindowIgnored::No;
    windowOf(world, 'A').isMinimised = true;
    EXPECT_EQ(letters(visibleWindows(world)), "BC");
    windowOf(world, 'B').windowRect = QRect();
    EXPECT_EQ(letters(visibleWindows(world)), "C");
}

TEST(VisibleWindows, getDigitsInReadingOrder)
{
    EXPECT_EQ(letters(labelledWindows(drawn({"CCAA", "CCAA", "DDBB"}))), "CADB");
    EXPECT_EQ(letters(labelledWindows(drawn({"AA..CC", "AABBCC", "AABBCC", "..BB.."}))), "ABC")
        << "one that begins above its neighbours' middle stands beside them";
    EXPECT_EQ(letters(labelledWindows(drawn({"BB..", "BBAA", "..AA"}))), "BA");
    EXPECT_EQ(letters(labelledWindows(drawn({"..BB", "AABB", "AABB"}))), "AB");
    EXPECT_EQ(letters(labelledWindows(drawn({"..BB", "AABB", "AA..", "AA.."}))), "BA");
}

TEST(VisibleWindows, getDigitsInARowWhereOneBeginsAboveTheOthersMiddle)
{
    EXPECT_EQ(letters(labelledWindows(placed({window('A', {0, 99, 90, 90}), window('B', {100, 0, 90, 200})}))), "AB");
    EXPECT_EQ(letters(labelledWindows(placed({window('A', {0, 100, 90, 90}), window('B', {100, 0, 90, 200})}))), "BA");
}

TEST(VisibleWindows, getNineDigitsAtMost)
{
    EXPECT_EQ(letters(labelledWindows(drawn({"KJIHG", "FEDCB"}))), "KJIHGFEDC");
}

TEST(VisibleWindows, getNoDigitWhereTheyAreHidden)
{
    EXPECT_EQ(letters(labelledWindows(halves())), "AB");
}

TEST(VisibleWindows, areCoveredWhereAnotherHidesTheirMiddle)
{
    WindowWorld world = placed({window('A', {0, 0, 50, 100}), window('B', {0, 0, 100, 100})});
    const auto isCovered = [&world](char letter) { return isCoveredInTheMiddle(world, quint32(letter)); };
    EXPECT_FALSE(isCovered('A')) << "it is on top";
    EXPECT_TRUE(isCovered('B'));
    windowOf(world, 'A').windowRect.setWidth(49);
    EXPECT_FALSE(isCovered('B'));
    windowOf(world, 'A').windowRect.setWidth(100);
    windowOf(world, 'A').windowIsIgnored = WindowIgnored::Type;
    EXPECT_TRUE(isCovered('B')) << "whatever it is covered by";
    windowOf(world, 'B').isMinimised = true;
    EXPECT_FALSE(isCovered('B')) << "nothing of it could show";
    windowOf(world, 'B').isMinimised = false;
    windowOf(world, 'A').isMinimised = true;
    EXPECT_FALSE(isCovered('B'));
    windowOf(world, 'B').windowRect = QRect();
    EXPECT_FALSE(isCovered('B'));
    EXPECT_FALSE(isCovered('Z')) << "it is not there";
}

TEST(VisibleWindows, areOverlappedWhereAnotherHidesAnyPart)
{
    WindowWorld world = placed({window('A', {99, 0, 50, 100}), window('B', {0, 0, 100, 100})});
    const auto isPartlyHidden = [&world](char letter) { return isOverlapped(world, quint32(letter)); };
    EXPECT_FALSE(isPartlyHidden('A')) << "it is on top";
    EXPECT_TRUE(isPartlyHidden('B'));
    windowOf(world, 'A').windowRect.moveLeft(100);
    EXPECT_FALSE(isPartlyHidden('B'));
    windowOf(world, 'A').windowRect.moveLeft(99);
    windowOf(world, 'A').windowIsIgnored = WindowIgnored::OtherDesktop;
    EXPECT_FALSE(isPartlyHidden('B'));
    windowOf(world, 'A').windowIsIgnored = WindowIgnored::Type;
    EXPECT_TRUE(isPartlyHidden('B'));
    windowOf(world, 'B').isMinimised = true;
    EXPECT_FALSE(isPartlyHidden('B')) << "nothing of it could show";
    EXPECT_FALSE(isPartlyHidden('Z')) << "it is not there";
}
