#include "platform/foundation/propertylists/PropertyList.h"

#include <gtest/gtest.h>
#include <random>

// What is read comes from outside and may be anything.

namespace {

QByteArray bigEndian(qint64 number, int size)
{
    QByteArray bytes;
    for (int shift = 8 * (size - 1); shift >= 0; shift -= 8)
        bytes.append(char(number >> shift));
    return bytes;
}

/// A binary property list of hand-made objects, with one byte for each reference.
QByteArray binary(const QList<QByteArray> &objects, int top = 0)
{
    QByteArray file("bplist00");
    QByteArray offsets;
    for (const QByteArray &object : objects) {
        offsets += bigEndian(file.size(), 4);
        file += object;
    }
    const qsizetype table = file.size();
    return file + offsets + QByteArray(6, '\0') + "\x04\x01" + bigEndian(objects.size(), 8) + bigEndian(top, 8)
        + bigEndian(table, 8);
}

QByteArray xml(const QByteArray &content)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">" + content + "</plist>\n";
}

QVariant nested(int depth)
{
    QVariant value = true;
    for (int level = 0; level < depth; ++level)
        value = level % 2 ? QVariant(QVariantList{value}) : QVariant(QVariantMap{{"a", value}});
    return value;
}

QByteArray nestedXML(int depth)
{
    return xml(QByteArray("<array>").repeated(depth) + QByteArray("</array>").repeated(depth));
}

/// Arrays of references to the next one, `width` to each, down to a leaf.
QByteArray expanding(int levels, int width, const QByteArray &leaf)
{
    QList<QByteArray> objects;
    for (int level = 1; level <= levels; ++level)
        objects += char(0xa0 | width) + QByteArray(width, char(level));
    return binary(objects << leaf);
}

QByteArray sample()
{
    return writeBinaryPropertyList(QVariantMap{{"list", QVariantList{1, 70000, 1.5, 2.5f, true}},
        {"text", QString::fromUtf8("⌃⌥")}, {"data", QByteArray(40, 'x')},
        {"date", QDateTime::fromSecsSinceEpoch(0, Qt::UTC)}, {"map", QVariantMap{{"a", "b"}}}});
}

std::string errorOf(const QByteArray &data)
{
    const PropertyListReading reading = readPropertyList(data);
    EXPECT_FALSE(reading.value.isValid() && !reading);
    EXPECT_LE(reading.errorOffset, data.size());
    return reading.error.toStdString();
}

} // namespace

TEST(PropertyListDamage, anEmptyFileDoesNotParse)
{
    EXPECT_EQ(errorOf({}), "empty");
    EXPECT_NE(errorOf(" \n"), "");
    EXPECT_EQ(readPropertyList({}).errorOffset, 0);
}

TEST(PropertyListDamage, aTornFileDoesNotParse)
{
    for (qsizetype length = 0; length < sample().size(); ++length)
        EXPECT_NE(errorOf(sample().left(length)), "") << length;
    const QByteArray whole = writeXMLPropertyList(readPropertyList(sample()).value).trimmed();
    for (qsizetype length = 0; length < whole.size(); ++length)
        EXPECT_NE(errorOf(whole.left(length)), "") << length;
}

TEST(PropertyListDamage, aFileWithAnyByteChangedIsReadOrRefused)
{
    for (qsizetype place = 0; place < sample().size(); ++place) {
        for (const int change : {0x01, 0x80, 0xff}) {
            QByteArray damaged = sample();
            damaged[place] = char(damaged[place] ^ change);
            const PropertyListReading reading = readPropertyList(damaged);
            EXPECT_EQ(bool(reading), reading.value.isValid());
        }
    }
}

TEST(PropertyListDamage, randomBytesDoNotParse)
{
    std::mt19937 random(1);
    for (int round = 0; round < 2000; ++round) {
        QByteArray noise(qsizetype(random() % 200), '\0');
        for (char &byte : noise)
            byte = char(random());
        EXPECT_NE(errorOf(noise), "");
        errorOf("bplist00" + noise);
        errorOf(sample().left(round % sample().size()) + noise + sample().right(32));
    }
}

TEST(PropertyListDamage, containersMayBeNested128DeepAndNoDeeper)
{
    EXPECT_TRUE(readPropertyList(writeBinaryPropertyList(nested(128))));
    EXPECT_TRUE(readPropertyList(writeXMLPropertyList(nested(128))));
    EXPECT_EQ(writeBinaryPropertyList(nested(129)), QByteArray());
    EXPECT_EQ(writeXMLPropertyList(nested(129)), QByteArray());
    EXPECT_EQ(errorOf(nestedXML(128)), "");
    EXPECT_EQ(errorOf(nestedXML(129)), "nested too deeply");
    EXPECT_EQ(errorOf(nestedXML(1'000'000)), "nested too deeply");
    EXPECT_EQ(errorOf(expanding(128, 1, "\x09")), "");
    EXPECT_EQ(errorOf(expanding(129, 1, "\x09")), "nested too deeply");
}

TEST(PropertyListDamage, aSharedBranchCountsWithItsDepthWhereverItHangs)
{
    // Object 1 is read first, 100 deep, by itself; then object 0 reaches it through 60 more.
    QList<QByteArray> objects;
    for (int level = 0; level < 60; ++level)
        objects += QByteArray("\xa1") + char(level + 1);
    for (int level = 60; level < 160; ++level)
        objects += QByteArray("\xa1") + char(level + 1);
    objects += "\x09";
    objects += QByteArray("\xa2") + char(60) + char(0);
    EXPECT_EQ(errorOf(binary(objects, int(objects.size()) - 1)), "nested too deeply");
}

TEST(PropertyListDamage, anObjectThatContainsItselfIsRefused)
{
    EXPECT_EQ(errorOf(binary({QByteArray("\xa1\x00", 2)})), "an object contains itself");
    EXPECT_EQ(errorOf(binary({"\xa1\x01", QByteArray("\xa1\x00", 2)})), "an object contains itself");
    EXPECT_EQ(errorOf(binary({QByteArray("\xd1\x01\x00", 3), "\x51k"})), "an object contains itself");
    EXPECT_EQ(errorOf(binary({QByteArray("\xd1\x00\x01", 3), "\x09"})), "an object contains itself");
}

TEST(PropertyListDamage, sharedObjectsCountAsOftenAsTheyAreReached)
{
    EXPECT_EQ(errorOf(expanding(12, 2, "\x09")), "");
    EXPECT_EQ(errorOf(expanding(60, 14, "\x09")), "too many objects");
}

TEST(PropertyListDamage, sharedTextCountsAsOftenAsItIsReached)
{
    // A million bytes reached a thousand times.
    const QByteArray leaf = QByteArray("\x4f\x12\x00\x0f\x42\x40", 6) + QByteArray(1'000'000, 'x');
    const QList<QByteArray> objects{
        "\xaa" + QByteArray(10, 1), "\xaa" + QByteArray(10, 2), "\xaa" + QByteArray(10, 3), leaf};
    EXPECT_EQ(errorOf(binary(objects)), "too many objects");
    EXPECT_EQ(errorOf(binary(objects, 2)), "");
}

TEST(PropertyListDamage, moreThanAMillionObjectsAreRefused)
{
    EXPECT_EQ(errorOf(xml("<array>" + QByteArray("<true/>").repeated(999'999) + "</array>")), "");
    EXPECT_EQ(errorOf(xml("<array>" + QByteArray("<true/>").repeated(1'000'000) + "</array>")), "too many objects");
    EXPECT_EQ(writeBinaryPropertyList(QVariantList(1'000'000, true)), QByteArray());
    EXPECT_TRUE(readPropertyList(writeBinaryPropertyList(QVariantList(999'999, true))));
}

TEST(PropertyListDamage, a65MiBFileIsRefused)
{
    QByteArray file = sample();
    file.prepend(QByteArray(65 * 1024 * 1024, ' '));
    EXPECT_EQ(errorOf(file), "larger than 64 MiB");
    EXPECT_EQ(writeBinaryPropertyList(QByteArray(65 * 1024 * 1024, 'x')), QByteArray());
}

TEST(PropertyListDamage, impossibleSizesAndReferencesAreRefused)
{
    EXPECT_EQ(errorOf(binary({"\x5f\x13\x7f\xff\xff\xff\xff\xff\xff\xff"})), "object cut short");
    EXPECT_EQ(errorOf(binary({"\x4f\x13\xff\xff\xff\xff\xff\xff\xff\xff"})), "impossible count");
    EXPECT_EQ(errorOf(binary({"\x5f\x51x"})), "count is no integer");
    EXPECT_EQ(errorOf(binary({"\xa1\x07"})), "reference to no object");
    EXPECT_EQ(errorOf(binary({"\x09"}, 1)), "no top object");
    EXPECT_EQ(errorOf(binary({QByteArray("\xd1\x01\x01", 3), "\x09"})), "a key is no text");
    EXPECT_EQ(errorOf(binary({"\x80\x01"})), "object of an unknown kind");
    EXPECT_EQ(errorOf(binary({QByteArray("\x00", 1)})), "object of an unknown kind");
    EXPECT_EQ(errorOf(binary({"\x33" + bigEndian(0x7fefffffffffffff, 8)})), "date out of range");
    EXPECT_EQ(errorOf(binary({"\x33" + bigEndian(0x7ff8000000000000, 8)})), "date out of range");
    EXPECT_EQ(errorOf(binary({QByteArray("\x14", 1) + QByteArray(16, 1)})), "integer beyond 64 bits");
}

TEST(PropertyListDamage, XMLThatIsNoPropertyListIsRefused)
{
    for (const char *content :
        {"", "<array>", "<true/><true/>", "<dict><string>a</string></dict>", "<dict><key>a</key></dict>",
            "<dict><key>a</key><key>b</key></dict>", "<integer></integer>", "<integer>1.5</integer>",
            "<integer>0x</integer>", "<integer>--1</integer>", "<integer>18446744073709551616</integer>",
            "<integer>-9223372036854775809</integer>", "<real>x</real>", "<date>yesterday</date>",
            "<date>2001-01-01T00:00:00</date>", "<data>@</data>", "<string>a<b/></string>", "<true>1</true>",
            "<key>a</key>", "<set/>", "text", "<array>text</array>", "&unknown;", "<string>&unknown;</string>"})
        EXPECT_NE(errorOf(xml(content)), "") << content;
    EXPECT_NE(errorOf("<html><body/></html>"), "");
    EXPECT_NE(errorOf(xml("<true/>") + "<more/>"), "");
}

TEST(PropertyListDamage, numbersAtTheLimitsAreReadFromXML)
{
    EXPECT_EQ(readPropertyList(xml("<integer>-9223372036854775808</integer>")).value,
        QVariant(std::numeric_limits<qlonglong>::min()));
    EXPECT_EQ(readPropertyList(xml("<integer> +0x1F </integer>")).value, QVariant(31LL));
    EXPECT_EQ(readPropertyList(xml("<integer>18446744073709551615</integer>")).value,
        QVariant(std::numeric_limits<qulonglong>::max()));
}

TEST(PropertyListDamage, entitiesThatMultiplyAreRefused)
{
    QByteArray document = "<?xml version=\"1.0\"?><!DOCTYPE plist [<!ENTITY a0 \"xxxxxxxxxx\">";
    for (int level = 1; level < 30; ++level)
        document += "<!ENTITY a" + QByteArray::number(level) + " \""
            + QByteArray("&a" + QByteArray::number(level - 1) + ";").repeated(10) + "\">";
    EXPECT_NE(errorOf(document + "]><plist><string>&a29;</string></plist>"), "");
}

TEST(PropertyListDamage, theByteAtWhichReadingStoppedIsTold)
{
    EXPECT_EQ(readPropertyList(binary({"\xa1\x01", "\x80"})).errorOffset, 10);
    const QByteArray document = "<plist><string>" + QByteArray("ü") + "</string><bad/></plist>";
    EXPECT_NEAR(double(readPropertyList(document).errorOffset), double(document.indexOf("<bad/>")), 7);
}
