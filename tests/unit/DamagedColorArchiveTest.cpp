#include "ColorSamples.h"
#include "platform/foundation/colors/NSArchiver.h"

#include <gtest/gtest.h>

namespace {

NSColorRef readBack(const QByteArray &archive)
{
    return NSUnarchiver::unarchiveObjectWithData(archive);
}

/// Whatever is made of damaged bytes is nothing, the system colour, or a colour that is written back as those very
/// bytes.
bool isHarmless(const QByteArray &archive)
{
    const NSColorRef color = readBack(archive);
    return !color || color == NSColor::selectedTextBackgroundColor()
        || NSArchiver::archivedDataWithRootObject(color) == archive;
}

QByteArray damaged(QByteArray archive, qsizetype place, int value)
{
    archive[place] = char(value);
    return archive;
}

QByteArray colorWith(const char *hexadecimal)
{
    return QByteArray::fromHex("040b73747265616d747970656481e803840140848484074e53436f6c6f72008484084e534f626a65637400"
                               "85840163")
        + QByteArray::fromHex(hexadecimal);
}

constexpr int constantHead = 44; // the same in every archive of its byte order

} // namespace

TEST(DamagedColorArchive, anyByteMayBeAnythingInARealArchive)
{
    for (const QByteArray id : {"S014", "S118", "S131", "S141"}) {
        const QByteArray archive = colorSample(id);
        ASSERT_FALSE(archive.isEmpty());
        for (qsizetype place = 0; place < archive.size(); ++place) {
            for (int value = 0; value < 256; ++value)
                EXPECT_TRUE(isHarmless(damaged(archive, place, value)))
                    << id.constData() << ' ' << place << ' ' << value;
        }
    }
}

TEST(DamagedColorArchive, marksInTheWrongPlaceHarmNoSample)
{
    for (const ColorSample &sample : colorSamples()) {
        for (qsizetype place = 0; place < sample.archive.size(); ++place) {
            for (const int value : {0x00, 0x7f, 0x80, 0x81, 0x82, 0x83, 0x84, 0x85, 0x86, 0x91, 0x92, 0x95, 0xff})
                EXPECT_TRUE(isHarmless(damaged(sample.archive, place, value))) << sample.id.constData() << ' ' << place;
        }
    }
}

TEST(DamagedColorArchive, aDamagedHeadIsNoColour)
{
    for (const QByteArray id : {"S014", "S141"}) {
        const QByteArray archive = colorSample(id);
        for (qsizetype place = 0; place < constantHead; ++place) {
            for (int value = 0; value < 256; ++value) {
                const bool isAsItWas = value == quint8(archive.at(place));
                EXPECT_EQ(bool(readBack(damaged(archive, place, value))), isAsItWas)
                    << id.constData() << ' ' << place << ' ' << value;
            }
        }
    }
}

TEST(DamagedColorArchive, everyTruncatedArchiveIsNoColour)
{
    for (const ColorSample &sample : colorSamples()) {
        for (qsizetype length = 0; length < sample.archive.size(); ++length)
            EXPECT_FALSE(readBack(sample.archive.first(length))) << sample.id.constData() << ' ' << length;
    }
}

TEST(DamagedColorArchive, bytesAfterTheColourMakeItNoColour)
{
    for (const ColorSample &sample : colorSamples()) {
        EXPECT_FALSE(readBack(sample.archive + '\0')) << sample.id.constData();
        EXPECT_FALSE(readBack(sample.archive + '\x86')) << sample.id.constData();
        EXPECT_FALSE(readBack(sample.archive + sample.archive)) << sample.id.constData();
    }
}

TEST(DamagedColorArchive, nothingIsNoColour)
{
    EXPECT_FALSE(readBack({}));
    EXPECT_FALSE(readBack("red"));
}

TEST(DamagedColorArchive, unknownKindsOfColourAreNoColour)
{
    EXPECT_TRUE(readBack(colorWith("01840466666666 00000001 86")));
    EXPECT_FALSE(readBack(colorWith("00840466666666 00000001 86")));
    EXPECT_FALSE(readBack(colorWith("07840466666666 00000001 86")));
    EXPECT_FALSE(readBack(colorWith("0a840466666666 00000001 86")));
    EXPECT_FALSE(readBack(colorWith("ff840466666666 00000001 86")));
}

TEST(DamagedColorArchive, aColourWithTheWrongNumberOfComponentsIsNoColour)
{
    EXPECT_FALSE(readBack(colorWith("018402666600 0186")));
    EXPECT_FALSE(readBack(colorWith("03840466666666 00000001 86")));
}

TEST(DamagedColorArchive, aColourCannotBeItsOwnFallback)
{
    EXPECT_TRUE(readBack(colorWith("06840340404084848408 4e53537472696e67 01 94 84012b 0141 86 84969801 42 86"
                                   "8493950384026666000186 86")));
    EXPECT_FALSE(readBack(colorWith("06840340404084848408 4e53537472696e67 01 94 84012b 0141 86 84969801 42 86"
                                    "92 86")));
}

TEST(DamagedColorArchive, aNamedColourWithoutAFallbackIsNoColour)
{
    EXPECT_FALSE(readBack(colorWith("06840340404084848408 4e53537472696e67 01 94 84012b 0141 86 84969801 42 86"
                                    "85 86")));
}

TEST(DamagedColorArchive, aNameThatIsNotTextIsNoColour)
{
    EXPECT_FALSE(readBack(colorWith("06840340404084848408 4e53537472696e67 01 94 84012b 0141 86 84969801 c3 86"
                                    "8493950384026666000186 86")));
}

TEST(DamagedColorArchive, lengthsBeyondTheEndAndBelowZeroAreNoColour)
{
    EXPECT_FALSE(readBack(colorWith("0182ffffff7f")));
    EXPECT_FALSE(readBack(colorWith("018482ffffff7f66666666 00000001 86")));
    EXPECT_FALSE(readBack(colorWith("0184ff66666666 00000001 86")));
    EXPECT_FALSE(readBack(colorWith("01840466666666 8200000080 8200")));
}

TEST(DamagedColorArchive, anEndlessArchiveIsRefusedUnread)
{
    EXPECT_FALSE(readBack(QByteArray(70 * 1024 * 1024, '\x84')));
}
