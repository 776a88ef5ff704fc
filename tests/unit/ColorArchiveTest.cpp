#include "ColorSamples.h"
#include "platform/foundation/colors/NSArchiver.h"
#include "platform/foundation/colors/internal/ColorArchiveWriter.h"

#include <gtest/gtest.h>
#include <limits>

namespace {

const QByteArray colorHead =
    QByteArray::fromHex("040b73747265616d747970656481e803840140848484074e53436f6c6f72008484084e534f626a6563740085");

NSColorRef readBack(const QByteArray &archive)
{
    return NSUnarchiver::unarchiveObjectWithData(archive);
}

QByteArray written(const NSColorRef &color)
{
    return NSArchiver::archivedDataWithRootObject(color);
}

QList<float> componentsOf(const NSColorRef &color)
{
    const auto begin = color->components().begin();
    return QList<float>(begin, begin + color->componentCount());
}

/// The bytes that stand for one component of a white with alpha 1.
QByteArray bytesOfComponent(float component)
{
    const QByteArray archive = written(NSColor::colorWithCalibratedWhiteAlpha(component, 1));
    const qsizetype before = colorHead.size() + 8;
    return archive.mid(before, archive.size() - before - 2);
}

NSColorRef chainOfNames(int fallbacks)
{
    NSColorRef color = NSColor::colorWithCalibratedWhiteAlpha(0.25F, 1);
    for (int level = 0; level < fallbacks; ++level)
        color = NSColor::colorWithCatalogNameFallback("System", QString("level%1").arg(level), color);
    return color;
}

/// An archive with more named colours around its innermost fallback.
QByteArray withMoreLevels(QByteArray archive, int levels)
{
    const qsizetype innermost = archive.indexOf(QByteArray::fromHex("8493950384026666"));
    EXPECT_GT(innermost, 0);
    archive.insert(innermost, QByteArray::fromHex("8493950696958496980141 86").repeated(levels));
    return archive + QByteArray(levels, '\x86');
}

} // namespace

TEST(ColorArchive, everySampleIsReadAsTheColourItHolds)
{
    EXPECT_EQ(colorSamples().size(), 89);
    for (const ColorSample &sample : colorSamples()) {
        const NSColorRef color = readBack(sample.archive);
        ASSERT_TRUE(color) << sample.id.constData();
        EXPECT_EQ(color->colorSpace(), sample.colorSpace) << sample.id.constData();
        EXPECT_EQ(color->catalogName(), sample.catalog) << sample.id.constData();
        EXPECT_EQ(color->colorName(), sample.name) << sample.id.constData();
        const bool isNamed = color->colorSpace() == NSColorSpace::Catalog;
        const NSColorRef numbers = isNamed ? color->fallback() : color;
        EXPECT_EQ(componentsOf(numbers), sample.components) << sample.id.constData();
        EXPECT_TRUE(!isNamed || numbers->colorSpace() == NSColorSpace::CalibratedWhite) << sample.id.constData();
    }
}

TEST(ColorArchive, everySampleButTheSystemColourIsWrittenBackAsItWas)
{
    for (const ColorSample &sample : colorSamples()) {
        const NSColorRef color = readBack(sample.archive);
        if (color == NSColor::selectedTextBackgroundColor())
            continue;
        EXPECT_EQ(color->byteOrder(), sample.byteOrder) << sample.id.constData();
        EXPECT_EQ(written(color).toHex(), sample.archive.toHex()) << sample.id.constData();
        // Composed anew, not remembered.
        EXPECT_EQ(writeColorArchive(*color).toHex(), sample.archive.toHex()) << sample.id.constData();
    }
}

TEST(ColorArchive, theSystemColourIsAlwaysTheSameBytes)
{
    EXPECT_EQ(systemColorArchive().size(), 126);
    EXPECT_EQ(written(NSColor::selectedTextBackgroundColor()).toHex(), systemColorArchive().toHex());
    EXPECT_EQ(written(readBack(colorSample("S141"))).toHex(), systemColorArchive().toHex());
}

TEST(ColorArchive, theSystemColourComesBackAsTheOneObjectWhateverItWasReadFrom)
{
    EXPECT_EQ(readBack(systemColorArchive()), NSColor::selectedTextBackgroundColor());
    EXPECT_EQ(readBack(colorSample("S141")), NSColor::selectedTextBackgroundColor());
    QByteArray newerFallback = systemColorArchive();
    newerFallback.replace(QByteArray::fromHex("abaa2a3f"), QByteArray::fromHex("8e4b1a3f"));
    EXPECT_EQ(readBack(newerFallback), NSColor::selectedTextBackgroundColor());
}

TEST(ColorArchive, anotherNamedColourIsAnObjectOfItsOwn)
{
    const NSColorRef color = readBack(colorSample("S138"));
    ASSERT_TRUE(color);
    EXPECT_EQ(color->colorName(), "selectedControlColor");
    EXPECT_NE(color, NSColor::selectedControlColor());
    EXPECT_EQ(color->byteOrder(), ByteOrder::BigEndian);
}

TEST(ColorArchive, theSystemColoursNameInAnotherCatalogueIsNotTheSystemColour)
{
    const NSColorRef color = NSColor::colorWithCatalogNameFallback(
        "Paint", "selectedTextBackgroundColor", NSColor::colorWithCalibratedWhiteAlpha(0.5F, 1));
    const NSColorRef again = readBack(written(color));
    ASSERT_TRUE(again);
    EXPECT_NE(again, NSColor::selectedTextBackgroundColor());
    EXPECT_EQ(again->catalogName(), "Paint");
}

TEST(ColorArchive, aColourPickedInThePanelIsWrittenLittleEndian)
{
    const NSColorRef color = NSColor::colorWithCalibratedRGBA(1, 0.047118742F, 0, 1);
    EXPECT_EQ(written(color).toHex(), colorSample("S014").toHex());
    EXPECT_EQ(componentsOf(readBack(written(color))), componentsOf(color));
}

TEST(ColorArchive, everySpaceKeepsItsComponents)
{
    const QList<NSColorRef> colors{
        NSColor::colorWithCalibratedRGBA(0.1F, 0.2F, 0.3F, 0.4F),
        NSColor::colorWithDeviceRGBA(0.1F, 0.2F, 0.3F, 0.4F),
        NSColor::colorWithCalibratedWhiteAlpha(0.1F, 0.4F),
        NSColor::colorWithDeviceWhiteAlpha(0.1F, 0.4F),
        NSColor::colorWithDeviceCMYKA(0.1F, 0.2F, 0.3F, 0.4F, 0.5F),
    };
    for (const NSColorRef &color : colors) {
        const NSColorRef again = readBack(written(color));
        ASSERT_TRUE(again) << int(color->colorSpace());
        EXPECT_EQ(again->colorSpace(), color->colorSpace());
        EXPECT_EQ(componentsOf(again), componentsOf(color));
    }
}

TEST(ColorArchive, aProcessColourIsWrittenInFiveComponents)
{
    const NSColorRef yellow = NSColor::colorWithDeviceCMYKA(0, 0.08F, 0.91F, 0.03F, 1);
    EXPECT_EQ(written(yellow).toHex(),
        colorHead.toHex() + "8401630584056666666666" + "00" + "830ad7a33d" + "83c3f5683f" + "838fc2f53c" + "01" + "86");
}

TEST(ColorArchive, wholeNumbersAreWrittenAsIntegersOfTheShortestForm)
{
    EXPECT_EQ(bytesOfComponent(0).toHex(), "00");
    EXPECT_EQ(bytesOfComponent(1).toHex(), "01");
    EXPECT_EQ(bytesOfComponent(127).toHex(), "7f");
    EXPECT_EQ(bytesOfComponent(128).toHex(), "818000");
    EXPECT_EQ(bytesOfComponent(200).toHex(), "81c800");
    EXPECT_EQ(bytesOfComponent(-110).toHex(), "92");
    EXPECT_EQ(bytesOfComponent(-111).toHex(), "8191ff");
    EXPECT_EQ(bytesOfComponent(32767).toHex(), "81ff7f");
    EXPECT_EQ(bytesOfComponent(-32767).toHex(), "810180");
    EXPECT_EQ(bytesOfComponent(-32768).toHex(), "820080ffff");
    EXPECT_EQ(bytesOfComponent(2147483520).toHex(), "8280ffff7f");
    EXPECT_EQ(bytesOfComponent(2147483648).toHex(), "830000004f");
    EXPECT_EQ(bytesOfComponent(-2147483648).toHex(), "83000000cf");
}

TEST(ColorArchive, minusZeroLosesItsSign)
{
    EXPECT_EQ(bytesOfComponent(-0.0F).toHex(), "00");
}

TEST(ColorArchive, unboundedComponentsAreKept)
{
    constexpr float infinity = std::numeric_limits<float>::infinity();
    for (const float component : {infinity, -infinity, std::numeric_limits<float>::quiet_NaN(), 1e-40F, 3e38F}) {
        const QByteArray archive = written(NSColor::colorWithCalibratedRGBA(component, 0, 0, 1));
        ASSERT_TRUE(readBack(archive)) << component;
        EXPECT_EQ(written(readBack(archive)).toHex(), archive.toHex()) << component;
    }
}

TEST(ColorArchive, anArchiveWithLongerFormsThanNeededIsReadAndWrittenBackAsItWas)
{
    const QByteArray archive = colorHead + QByteArray::fromHex("84016303840266668381ffff3e820100000086");
    const NSColorRef color = readBack(archive);
    ASSERT_TRUE(color);
    EXPECT_EQ(color->components()[1], 1);
    EXPECT_EQ(written(color).toHex(), archive.toHex());
    EXPECT_NE(writeColorArchive(*color).toHex(), archive.toHex());
}

TEST(ColorArchive, aFallbackMayBeANamedColourItself)
{
    const NSColorRef color = readBack(written(chainOfNames(2)));
    ASSERT_TRUE(color);
    EXPECT_EQ(color->colorName(), "level1");
    EXPECT_EQ(color->fallback()->colorName(), "level0");
    EXPECT_EQ(color->fallback()->fallback()->components()[0], 0.25F);
    EXPECT_EQ(writeColorArchive(*color).toHex(), written(chainOfNames(2)).toHex());
}

TEST(ColorArchive, aCataloguesNameIsOneObjectForAllItsColours)
{
    EXPECT_EQ(written(chainOfNames(2)).count("System"), 1);
}

TEST(ColorArchive, theSystemColourAsAFallbackStaysWhatItWas)
{
    const auto inner = NSColor::colorWithCatalogNameFallback(
        "System", "selectedTextBackgroundColor", NSColor::colorWithCalibratedWhiteAlpha(0.602715373F, 1));
    const QByteArray archive = written(NSColor::colorWithCatalogNameFallback("System", "outer", inner));
    EXPECT_EQ(written(readBack(archive)).toHex(), archive.toHex());
}

TEST(ColorArchive, fallbacksNestToABound)
{
    EXPECT_TRUE(readBack(written(chainOfNames(16))));
    EXPECT_TRUE(written(chainOfNames(17)).isEmpty());
}

TEST(ColorArchive, aDeeplyNestedArchiveIsRefused)
{
    EXPECT_TRUE(readBack(withMoreLevels(written(chainOfNames(2)), 14)));
    EXPECT_FALSE(readBack(withMoreLevels(written(chainOfNames(2)), 15)));
    EXPECT_FALSE(readBack(withMoreLevels(written(chainOfNames(2)), 3000)));
}

TEST(ColorArchive, noColourIsWrittenAsNothing)
{
    EXPECT_TRUE(written(nullptr).isEmpty());
}

TEST(ColorArchive, namesOfAnyScriptAndLengthAreKept)
{
    for (const QString &name : {QString(), QString("Grün"), QString("色"), QString(200, 'x'), QString(40000, 'y')}) {
        const auto color = NSColor::colorWithCatalogNameFallback("Farben", name, NSColor::whiteColor());
        const NSColorRef again = readBack(written(color));
        ASSERT_TRUE(again) << name.size();
        EXPECT_EQ(again->colorName(), name);
        EXPECT_EQ(writeColorArchive(*again), written(color));
    }
}
