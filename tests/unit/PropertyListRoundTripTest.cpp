#include "platform/foundation/propertylists/PropertyList.h"
#include "platform/foundation/propertylists/PropertyListValue.h"

#include <QDateTime>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

QDateTime utc(int year, int month, int day, int hour, int minute, int second)
{
    return QDateTime(QDate(year, month, day), QTime(hour, minute, second), Qt::UTC);
}

/// Every kind of value, at the edges of each encoding.
QVariantMap everything()
{
    QVariantMap deep{{"leaf", true}};
    for (int level = 0; level < 20; ++level)
        deep = {{"level", level}, {"below", deep}};
    return {
        {"yes", true},
        {"no", false},
        {"integers",
            QVariantList{0LL, 1LL, 255LL, 256LL, 65535LL, 65536LL, 4294967295LL, 4294967296LL, -1LL, -128LL,
                std::numeric_limits<qlonglong>::max(), std::numeric_limits<qlonglong>::min()}},
        {"huge", std::numeric_limits<qulonglong>::max()},
        {"reals", QVariantList{0.0, 1.5, -2.25, 0.1, 1e300, 5e-324}},
        {"texts",
            QVariantList{"", "plain", "fourteen chars", "fifteen chars..", QString(300, u'x'),
                QString::fromUtf8("Übergröße ⌃⌥ 😀"), " <&>\" \t\n ", "0"}},
        {"data", QVariantList{QByteArray(""), QByteArray("\0\x01\xff", 3), QByteArray(70000, 'd')}},
        {"dates", QVariantList{utc(2001, 1, 1, 0, 0, 0), utc(1970, 1, 1, 0, 0, 1), utc(2038, 1, 19, 3, 14, 8)}},
        {"nothing in a list", QVariantList()},
        {"nothing in a dictionary", QVariantMap()},
        {"", "the empty key"},
        {QString::fromUtf8("schlüssel"), "a key beyond ASCII"},
        {"deep", deep},
    };
}

QVariant normal(const QVariant &value)
{
    return propertyListValue(value);
}

QVariant readBack(const QByteArray &file)
{
    const PropertyListReading reading = readPropertyList(file);
    EXPECT_TRUE(reading) << reading.error.toStdString() << " at " << reading.errorOffset;
    return reading.value;
}

/// Runs an independent reader or writer of property lists over a file.
QByteArray throughProgram(const QString &program, const QStringList &arguments, const QByteArray &input)
{
    QProcess process;
    process.start(program, arguments);
    process.write(input);
    process.closeWriteChannel();
    EXPECT_TRUE(process.waitForFinished(60000));
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
    return process.readAllStandardOutput();
}

QByteArray throughPython(const QByteArray &input, const QString &format)
{
    const QString script = QStringLiteral("import plistlib, sys\n"
                                          "value = plistlib.loads(sys.stdin.buffer.read())\n"
                                          "sys.stdout.buffer.write(plistlib.dumps(value, fmt=plistlib.FMT_%1))")
                               .arg(format);
    return throughProgram("/usr/bin/python3", {"-c", script}, input);
}

/// The other program takes files by name only, and bytes as they are.
QByteArray throughPlistutil(const QByteArray &input, const QString &format)
{
    QTemporaryDir folder;
    QFile in(folder.filePath("in"));
    EXPECT_TRUE(in.open(QIODevice::WriteOnly));
    in.write(input);
    in.close();
    throughProgram("/usr/bin/plistutil", {"-i", in.fileName(), "-o", folder.filePath("out"), "-f", format}, {});
    QFile out(folder.filePath("out"));
    EXPECT_TRUE(out.open(QIODevice::ReadOnly));
    return out.readAll();
}

/// Without what plistutil cannot carry: integers beyond 63 bits, and reals to their last digit in XML.
QVariantMap everythingForPlistutil()
{
    QVariantMap value = everything();
    value.remove("huge");
    value.remove("reals");
    return value;
}

} // namespace

TEST(PropertyListRoundTrip, whatIsWrittenInBinaryReadsBackAsItWas)
{
    EXPECT_TRUE(isEqualPropertyList(readBack(writeBinaryPropertyList(everything())), everything()));
}

TEST(PropertyListRoundTrip, whatIsWrittenInXMLReadsBackAsItWas)
{
    EXPECT_TRUE(isEqualPropertyList(readBack(writeXMLPropertyList(everything())), everything()));
}

TEST(PropertyListRoundTrip, pythonReadsOurBinaryFormAndWeReadItsBothForms)
{
    const QByteArray ours = writeBinaryPropertyList(everything());
    EXPECT_TRUE(isEqualPropertyList(readBack(throughPython(ours, "BINARY")), everything()));
    EXPECT_TRUE(isEqualPropertyList(readBack(throughPython(ours, "XML")), everything()));
}

TEST(PropertyListRoundTrip, pythonReadsOurXMLForm)
{
    const QByteArray ours = writeXMLPropertyList(everything());
    EXPECT_TRUE(isEqualPropertyList(readBack(throughPython(ours, "BINARY")), everything()));
}

TEST(PropertyListRoundTrip, plistutilReadsOurBinaryFormAndWeReadItsBothForms)
{
    const QByteArray ours = writeBinaryPropertyList(everythingForPlistutil());
    EXPECT_TRUE(isEqualPropertyList(readBack(throughPlistutil(ours, "bin")), everythingForPlistutil()));
    EXPECT_TRUE(isEqualPropertyList(readBack(throughPlistutil(ours, "xml")), everythingForPlistutil()));
}

TEST(PropertyListRoundTrip, plistutilReadsOurXMLForm)
{
    const QByteArray ours = writeXMLPropertyList(everythingForPlistutil());
    EXPECT_TRUE(isEqualPropertyList(readBack(throughPlistutil(ours, "bin")), everythingForPlistutil()));
}

TEST(PropertyListRoundTrip, aFourByteRealStaysOneAndKeepsEveryBit)
{
    for (const float number : {0.1f, 1.0f, 0.0f, -0.0f, 3.4028235e38f, 1e-45f}) {
        const QVariant read = readBack(writeBinaryPropertyList(number));
        ASSERT_EQ(read.typeId(), QMetaType::Float);
        EXPECT_TRUE(isEqualPropertyList(read, number)) << number;
    }
}

TEST(PropertyListRoundTrip, aFourByteRealIsAnExactNumberInXMLToo)
{
    const QVariant read = readBack(writeXMLPropertyList(0.1f));
    EXPECT_EQ(read.typeId(), QMetaType::Double);
    EXPECT_EQ(read.toDouble(), double(0.1f));
}

TEST(PropertyListRoundTrip, infinitiesAndNotANumberAreKept)
{
    const double infinity = std::numeric_limits<double>::infinity();
    const QVariantList reals{infinity, -infinity, std::numeric_limits<double>::quiet_NaN()};
    EXPECT_TRUE(isEqualPropertyList(readBack(writeBinaryPropertyList(reals)), reals));
    EXPECT_TRUE(isEqualPropertyList(readBack(writeXMLPropertyList(reals)), reals));
    EXPECT_TRUE(isEqualPropertyList(readBack(throughPython(writeXMLPropertyList(reals), "BINARY")), reals));
}

TEST(PropertyListRoundTrip, aDateKeepsItsMillisecondsInBinaryAndItsSecondsInXML)
{
    const QDateTime date = utc(2024, 2, 29, 23, 59, 59).addMSecs(123);
    EXPECT_EQ(readBack(writeBinaryPropertyList(date)).toDateTime(), date);
    EXPECT_EQ(readBack(writeXMLPropertyList(date)).toDateTime(), date.addMSecs(-123));
}

TEST(PropertyListRoundTrip, aLocalDateIsTheSameInstantInUTC)
{
    const QDateTime local(QDate(2024, 6, 1), QTime(12, 0), Qt::OffsetFromUTC, 7200);
    const QDateTime read = readBack(writeXMLPropertyList(local)).toDateTime();
    EXPECT_EQ(read, utc(2024, 6, 1, 10, 0, 0));
    EXPECT_EQ(read.timeSpec(), Qt::UTC);
}

TEST(PropertyListRoundTrip, integersOfAnyWidthAreIntegers)
{
    for (const QVariant &value : {QVariant(7), QVariant(7u), QVariant(7LL), QVariant(7ULL),
             QVariant::fromValue(short(7)), QVariant::fromValue(7L)}) {
        const QVariant read = readBack(writeBinaryPropertyList(value));
        EXPECT_EQ(read.typeId(), QMetaType::LongLong);
        EXPECT_TRUE(isEqualPropertyList(read, value)) << value.typeName();
    }
}

TEST(PropertyListRoundTrip, equalValuesAreStoredOnce)
{
    const QByteArray text(1000, 'x');
    EXPECT_LT(writeBinaryPropertyList(QVariantList{QString(text), QString(text), text, text}).size(), 2200);
}

TEST(PropertyListRoundTrip, whatIsNoPropertyListValueIsNotWritten)
{
    const QVariant notAValue = QVariant::fromValue(QRect(0, 0, 1, 1));
    EXPECT_EQ(writeBinaryPropertyList(QVariant()), QByteArray());
    EXPECT_EQ(writeBinaryPropertyList(QVariantMap{{"a", QVariantList{1, notAValue}}}), QByteArray());
    EXPECT_EQ(writeXMLPropertyList(QVariantMap{{"a", QVariant()}}), QByteArray());
    EXPECT_EQ(writeXMLPropertyList(QDateTime()), QByteArray());
}

TEST(PropertyListRoundTrip, lineEndsOfEveryKindAreKept)
{
    const QString text = "a\r\nb\rc\n";
    EXPECT_EQ(readBack(writeXMLPropertyList(text)).toString(), text);
    EXPECT_EQ(readBack(throughPython(writeXMLPropertyList(text), "BINARY")).toString(), text);
}

TEST(PropertyListRoundTrip, textThatXMLCannotHoldIsWrittenInBinaryOnly)
{
    for (const QString &text : {QString(QChar(1)), QString(QChar(0xd800)), QString(QChar(0xffff))}) {
        EXPECT_EQ(writeXMLPropertyList(QVariantMap{{text, 1}}), QByteArray());
        EXPECT_EQ(writeXMLPropertyList(text), QByteArray());
        EXPECT_EQ(readBack(writeBinaryPropertyList(text)).toString(), text);
    }
}

TEST(PropertyListRoundTrip, valuesAreEqualOnlyWithTheSameType)
{
    EXPECT_FALSE(isEqualPropertyList(true, 1));
    EXPECT_FALSE(isEqualPropertyList(1, 1.0));
    EXPECT_FALSE(isEqualPropertyList(1.0f, 1.0));
    EXPECT_FALSE(isEqualPropertyList("1", 1));
    EXPECT_FALSE(isEqualPropertyList("a", QByteArray("a")));
    EXPECT_FALSE(isEqualPropertyList(QVariant(), false));
    EXPECT_FALSE(isEqualPropertyList(QVariantMap{{"a", true}}, QVariantMap{{"a", 1}}));
    EXPECT_FALSE(isEqualPropertyList(QVariantMap{{"a", 1}}, QVariantMap{{"b", 1}}));
    EXPECT_FALSE(isEqualPropertyList(QVariantList{1, 2}, QVariantList{1}));
    EXPECT_FALSE(isEqualPropertyList(QVariantList{QVariantMap{{"a", 1.0f}}}, QVariantList{QVariantMap{{"a", 1.0}}}));
    EXPECT_TRUE(isEqualPropertyList(normal(everything()), everything()));
}
