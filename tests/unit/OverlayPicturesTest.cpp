#include "agent/overlay/OverlayPictures.h"

#include <QRect>
#include <algorithm>
#include <gtest/gtest.h>

namespace {

constexpr quint32 ground = 0x2060c0, text = 0xffffff, opaque = 0xff000000;

QRgb at(const OverlayPicture &picture, int x, int y)
{
    return picture.pixels[size_t(y) * size_t(picture.size.width()) + size_t(x)];
}

/// What of a picture's inside has a colour of its own; without the line around it.
QRect drawnRect(const OverlayPicture &picture, int line)
{
    QRect drawn;
    for (int y = line; y < picture.size.height() - line; ++y) {
        for (int x = line; x < picture.size.width() - line; ++x) {
            if (at(picture, x, y) == (opaque | text))
                drawn |= QRect(x, y, 1, 1);
        }
    }
    return drawn;
}

OverlayPicture plainIcon(quint32 color, QSize size = {16, 16})
{
    return {size, std::vector<quint32>(size_t(size.width()) * size_t(size.height()), color)};
}

class Pictures : public testing::Test
{
protected:
    void SetUp() override { ASSERT_TRUE(pictures); }
    OverlayPicture strip(const QString &title, int longest = 400) const
    {
        return pictures->strip(ink, {}, title, longest, RoundCorners::Lower);
    }

    const OverlayPictures *pictures = overlayPictures();
    OverlayInk ink{ground, text, 1};
};

QStringList oddTitles()
{
    return {QString(), QStringLiteral(" \t "), QString(1024 * 1024, u'W'), QString(3000, QChar(0x0301)),
        QString(2000, QChar(0xd83d)), QStringLiteral("\U0001f600").repeated(600), QString(50, QChar(0)),
        QStringLiteral("line\nnext\r\nand\u2028more\u2029"), QString(500, QChar(0x202e)) + "abc",
        QStringLiteral("\ufeff\uffff\ufffe"), QStringLiteral("漢字かな交じり文 العربية עברית ไทย हिन्दी")};
}

} // namespace

TEST_F(Pictures, areOfOpaquePixelsWithinRoundCorners)
{
    const OverlayPicture picture = strip("Title");
    EXPECT_EQ(at(picture, 0, picture.size.height() - 1), 0u) << "round";
    EXPECT_EQ(at(picture, 0, 0), opaque | text) << "not round";
    EXPECT_EQ(at(picture, 5, 5), opaque | ground);
    EXPECT_TRUE(std::all_of(
        picture.pixels.begin(), picture.pixels.end(), [](quint32 pixel) { return pixel == 0 || pixel >> 24 == 0xff; }));
}

TEST_F(Pictures, ofAStripAreAsLongAsTheirTitleNeeds)
{
    const OverlayPicture brief = strip("i"), longer = strip("Longer title");
    EXPECT_EQ(brief.size.height(), 30);
    EXPECT_LT(brief.size.width(), longer.size.width());
    EXPECT_LT(longer.size.width(), 400);
    ink.scale = 2;
    EXPECT_EQ(strip("i").size.height(), 60);
    EXPECT_NEAR(strip("Longer title", 800).size.width(), 2 * longer.size.width(), 8);
}

TEST_F(Pictures, ofALongTitleShowItsBeginning)
{
    for (const char16_t letter : {u'a', u'\u05d0'}) {
        const QString beginning = QStringLiteral("%1%1 %1").arg(QChar(letter)).repeated(30);
        const OverlayPicture picture = strip(beginning + "one");
        EXPECT_LE(picture.size.width(), 400);
        EXPECT_GT(picture.size.width(), 350);
        EXPECT_EQ(picture, strip(beginning + "another"));
        EXPECT_NE(picture, strip(QChar(letter + 1) + beginning.mid(1) + "one"));
    }
}

TEST_F(Pictures, ofEveryTitleStayWithinTheirLength)
{
    for (const QString &title : oddTitles()) {
        for (const int longest : {60, 200, 1000}) {
            const OverlayPicture picture = strip(title, longest);
            EXPECT_EQ(picture.size.height(), 30);
            EXPECT_LE(picture.size.width(), longest) << title.left(20).toStdString();
            EXPECT_EQ(int(picture.pixels.size()), picture.size.width() * picture.size.height());
        }
    }
}

TEST_F(Pictures, ofATitleWithLineEndsAreOneLine)
{
    EXPECT_EQ(strip("one\ntwo"), strip("one two"));
    EXPECT_EQ(strip(QStringLiteral("one\u2028two")), strip("one two"));
}

TEST_F(Pictures, ofIconsHaveTheirColours)
{
    const OverlayPicture full = pictures->icon(ink, plainIcon(0xffff0000), 96);
    EXPECT_EQ(full.size, QSize(96, 96));
    EXPECT_EQ(at(full, 48, 48), 0xffff0000);
    EXPECT_EQ(at(full, 5, 5), opaque | ground);
    EXPECT_EQ(at(pictures->icon(ink, plainIcon(0x00ff0000), 96), 48, 48), opaque | ground) << "clear";
    const QRgb half = at(pictures->icon(ink, plainIcon(0x80ff0000), 96), 48, 48);
    EXPECT_NEAR(int(half >> 16 & 0xff), (0xff + 0x20) / 2, 2);
}

TEST_F(Pictures, ofIconsKeepTheirShape)
{
    const OverlayPicture wide = pictures->icon(ink, plainIcon(0xffff0000, {32, 8}), 96);
    EXPECT_EQ(at(wide, 20, 48), 0xffff0000);
    EXPECT_EQ(at(wide, 48, 20), opaque | ground);
}

TEST_F(Pictures, withoutAnIconShowASignForAWindow)
{
    const OverlayPicture sign = pictures->icon(ink, {}, 96);
    EXPECT_EQ(drawnRect(sign, 2).center(), QPoint(47, 47));
    EXPECT_GT(drawnRect(sign, 2).width(), 50);
}

TEST_F(Pictures, ofDigitsStandInTheMiddleAndDiffer)
{
    std::vector<OverlayPicture> digits;
    for (int digit = 1; digit <= 9; ++digit) {
        digits.push_back(pictures->digit(ink, digit, 36));
        const QRect drawn = drawnRect(digits.back(), 2);
        EXPECT_NEAR(drawn.center().x(), 17.5, 2) << digit;
        EXPECT_NEAR(drawn.center().y(), 17.5, 2) << digit;
        EXPECT_GE(drawn.height(), 12) << digit;
    }
    for (size_t one = 0; one < digits.size(); ++one) {
        for (size_t other = 0; other < one; ++other)
            EXPECT_NE(digits[one], digits[other]);
    }
}
