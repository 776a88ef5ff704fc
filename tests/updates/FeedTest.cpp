#include "updater/core/Appcast.h"

#include <gmock/gmock.h>

// What is read out of a feed, and what makes it unusable.

namespace {

const QUrl address("https://updates.example/lumaroo/appcast.xml");
const QByteArray signature = QByteArray(64, 's').toBase64();

QByteArray feedWith(const QByteArray &items)
{
    return "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n"
           "<rss version=\"2.0\" xmlns:sparkle=\"http://www.andymatuschak.org/xml-namespaces/sparkle\" "
           "xmlns:lumaroo=\"https://lumaroo.example/xml-namespaces/appcast\"><channel><title>Lumaroo</title>"
        + items + "</channel></rss>";
}

QByteArray enclosureWith(const QByteArray &more = {}, const QByteArray &itsSignature = signature)
{
    return "<enclosure url=\"a.tar.xz\" length=\"1000\" sparkle:edSignature=\"" + itsSignature + "\" " + more + "/>";
}

QByteArray item(const QByteArray &elements, const QByteArray &enclosure = enclosureWith())
{
    return "<item><title>Lumaroo 1.1</title>" + elements + enclosure + "</item>";
}

AppcastReading readItem(const QByteArray &elements, const QByteArray &enclosure = enclosureWith())
{
    return readAppcast(feedWith(item(elements, enclosure)), address);
}

AppcastItem onlyItem(const AppcastReading &reading)
{
    EXPECT_EQ(reading.error, QString());
    EXPECT_EQ(reading.items.size(), 1) << reading.problems.join('\n').toStdString();
    return reading.items.value(0);
}

void expectLeftOut(const AppcastReading &reading, const QString &problem)
{
    EXPECT_TRUE(reading.items.isEmpty());
    EXPECT_EQ(reading.problems, QStringList("the item \"Lumaroo 1.1\" is left out: " + problem));
}

const QByteArray version = "<sparkle:version>101</sparkle:version>";

} // namespace

TEST(Feed, tellsEverythingOfAVersion)
{
    const AppcastItem read = onlyItem(readItem(version
            + "<sparkle:shortVersionString>1.1</sparkle:shortVersionString><pubDate>Sat, 21 Nov 2026 20:30:00 "
              "+0000</pubDate><sparkle:minimumSystemVersion>6.1</sparkle:minimumSystemVersion>"
              "<lumaroo:minimumPlatformVersion>2</lumaroo:minimumPlatformVersion><sparkle:channel>beta</"
              "sparkle:channel>"
              "<sparkle:criticalUpdate sparkle:version=\"90\"/><sparkle:releaseNotesLink>notes/101.html"
              "</sparkle:releaseNotesLink><description><![CDATA[<b>New</b>]]></description><link>/</link>",
        enclosureWith("sparkle:os=\"linux\"")));
    const AppcastItem all{.version = "101",
        .displayVersion = "1.1",
        .title = "Lumaroo 1.1",
        .published = QDateTime(QDate(2026, 11, 21), QTime(20, 30), Qt::UTC),
        .operatingSystem = "linux",
        .minimumSystemVersion = "6.1",
        .minimumPlatformVersion = 2,
        .channel = "beta",
        .isCritical = true,
        .criticalBelow = "90",
        .isInformational = false,
        .informationalFor = {},
        .informationalBelow = {},
        .link = QUrl("https://updates.example/"),
        .releaseNotes = QUrl("https://updates.example/lumaroo/notes/101.html"),
        .description = "<b>New</b>",
        .archive = QUrl("https://updates.example/lumaroo/a.tar.xz"),
        .length = 1000,
        .signature = QByteArray(64, 's')};
    EXPECT_EQ(read, all);
}

TEST(Feed, mayTellTheVersionInTheEnclosure)
{
    const AppcastItem read =
        onlyItem(readItem("", enclosureWith("sparkle:version=\"101\" sparkle:shortVersionString=\"1.1\"")));
    EXPECT_EQ(read.version, "101");
    EXPECT_EQ(read.displayVersion, "1.1");
}

TEST(Feed, showsTheVersionWhereItHasNoOtherForPeople)
{
    EXPECT_EQ(onlyItem(readItem(version)).displayVersion, "101");
}

TEST(Feed, mayMarkACriticalVersionAmongTags)
{
    EXPECT_TRUE(onlyItem(readItem(version + "<sparkle:tags><sparkle:criticalUpdate/></sparkle:tags>")).isCritical);
    EXPECT_FALSE(onlyItem(readItem(version + "<sparkle:tags><other/></sparkle:tags>")).isCritical);
}

TEST(Feed, mayTellOfAVersionWithoutAnArchive)
{
    const AppcastItem read = onlyItem(readItem(version
            + "<sparkle:informationalUpdate><sparkle:version>99</sparkle:version><sparkle:belowVersion>90"
              "</sparkle:belowVersion></sparkle:informationalUpdate>",
        ""));
    EXPECT_TRUE(read.isInformational);
    EXPECT_EQ(read.informationalFor, QStringList("99"));
    EXPECT_EQ(read.informationalBelow, "90");
    EXPECT_TRUE(read.archive.isEmpty());
}

TEST(Feed, withDeltasIsReadWithoutThem)
{
    const AppcastItem read = onlyItem(readItem(version
        + "<sparkle:deltas><enclosure url=\"delta\" length=\"1\" sparkle:deltaFrom=\"100\"/></sparkle:deltas>"));
    EXPECT_EQ(read.archive.fileName(), "a.tar.xz");
}

TEST(Feed, withElementsOfOthersIsReadWithoutThem)
{
    const AppcastItem read = onlyItem(readItem(version
        + "<version>7</version><o:version xmlns:o=\"urn:other\">8</o:version><sparkle:other><sparkle:version>9"
          "</sparkle:version></sparkle:other>"));
    EXPECT_EQ(read.version, "101");
}

TEST(Feed, leavesOutAnItemWithTwoVersions)
{
    expectLeftOut(readItem(version, enclosureWith("sparkle:version=\"102\"")), "it has two versions");
    EXPECT_EQ(onlyItem(readItem(version, enclosureWith("sparkle:version=\"101\""))).version, "101");
}

TEST(Feed, leavesOutAnItemWithTwoVersionsForPeople)
{
    const QByteArray elements = version + "<sparkle:shortVersionString>1.1</sparkle:shortVersionString>";
    const auto enclosure = [](const QByteArray &text) {
        return enclosureWith("sparkle:shortVersionString=\"" + text + "\"");
    };
    expectLeftOut(readItem(elements, enclosure("1.2")), "it has two versions for people");
    EXPECT_EQ(onlyItem(readItem(elements, enclosure("1.1"))).displayVersion, "1.1");
}

TEST(Feed, takesTheEnclosureForThisSystemOfSeveral)
{
    const auto enclosure = [](const QByteArray &name, const QByteArray &os) {
        return "<enclosure url=\"" + name + "\" length=\"1000\" sparkle:edSignature=\"" + signature + "\" " + os + "/>";
    };
    const QByteArray others = enclosure("other", "sparkle:os=\"macos\"") + enclosure("third", "sparkle:os=\"windows\"");
    const QByteArray ours = enclosure("ours", "sparkle:os=\"Linux\"");
    const QByteArray anybodys = enclosure("anybodys", {});
    for (const QByteArray &enclosures : {others + ours, ours + others, others + anybodys + ours, ours + anybodys})
        EXPECT_EQ(onlyItem(readItem(version, enclosures)).archive.fileName(), "ours") << enclosures.toStdString();
    EXPECT_EQ(onlyItem(readItem(version, others + anybodys)).archive.fileName(), "anybodys");
    EXPECT_EQ(onlyItem(readItem(version, others)).operatingSystem, "macos") << "nothing for us";
    expectLeftOut(readItem(version, ours + others + ours), "it has more than one enclosure");
    expectLeftOut(readItem(version, anybodys + anybodys), "it has more than one enclosure");
}

TEST(Feed, leavesOutAnItemWhoseVersionIsNone)
{
    expectLeftOut(readItem("<sparkle:version>Version 1.1</sparkle:version>"), "\"Version 1.1\" is no bundle version");
    expectLeftOut(readItem(""), "\"\" is no bundle version");
}

TEST(Feed, leavesOutAnItemWhoseSignatureIsWrappedCutOrMissing)
{
    const QString problem = "its signature is no 64 bytes in base 64";
    expectLeftOut(readItem(version, enclosureWith({}, signature.left(76) + "\n" + signature.mid(76))), problem);
    expectLeftOut(readItem(version, enclosureWith({}, signature + ' ')), problem);
    expectLeftOut(readItem(version, enclosureWith({}, signature.chopped(4))), problem);
    expectLeftOut(readItem(version, enclosureWith({}, signature + signature)), problem);
    expectLeftOut(readItem(version, enclosureWith({}, "")), problem);
    expectLeftOut(readItem(version, "<enclosure url=\"a\" length=\"1\"/>"), problem);
}

TEST(Feed, leavesOutAnItemWhoseLengthIsNoneOrTooMuch)
{
    const auto enclosure = [](const QByteArray &length) {
        return "<enclosure url=\"a\" length=\"" + length + "\" sparkle:edSignature=\"" + signature + "\"/>";
    };
    for (const char *length : {"", "0", "-1", "1.5", "1e3", "268435457", "99999999999999999999", "0x10"})
        expectLeftOut(readItem(version, enclosure(length)), QString("its archive's length is \"%1\"").arg(length));
    EXPECT_EQ(onlyItem(readItem(version, enclosure("268435456"))).length, 268435456);
}

TEST(Feed, leavesOutAnItemWithTwoEnclosuresOrNone)
{
    expectLeftOut(readItem(version, enclosureWith() + enclosureWith()), "it has more than one enclosure");
    expectLeftOut(readItem(version, ""), "it has no archive");
}

TEST(Feed, keepsItsOtherItemsWhenOneIsLeftOut)
{
    const AppcastReading reading = readAppcast(feedWith(item("") + item(version)), address);
    EXPECT_EQ(reading.items.size(), 1);
    EXPECT_EQ(reading.problems.size(), 1);
}

TEST(Feed, thatIsBrokenAnywhereIsNotReadAtAll)
{
    const QByteArray feed = feedWith(item(version));
    for (qsizetype size = 0; size < feed.size(); ++size) {
        const AppcastReading reading = readAppcast(feed.left(size), address);
        EXPECT_FALSE(reading) << size;
        EXPECT_TRUE(reading.items.isEmpty()) << size;
    }
    EXPECT_FALSE(readAppcast(feed + "<more/>", address));
    EXPECT_FALSE(readAppcast(feedWith(item(version) + "<item></title></item>"), address));
}

TEST(Feed, ofAnotherKindIsRefused)
{
    EXPECT_FALSE(readAppcast("<feed xmlns=\"http://www.w3.org/2005/Atom\"/>", address));
    EXPECT_FALSE(readAppcast("<rss version=\"2.0\"/>", address));
    EXPECT_FALSE(readAppcast("<!DOCTYPE html><html></html>", address));
    EXPECT_TRUE(readAppcast("<rss version=\"2.0\"><channel/></rss>", address));
}

TEST(Feed, withADocumentTypeIsRefused)
{
    QByteArray feed = feedWith(item(version));
    feed.replace("<rss", "<!DOCTYPE rss [<!ENTITY a \"aaaaaaaaaa\"><!ENTITY b \"&a;&a;&a;&a;\">]><rss");
    EXPECT_EQ(readAppcast(feed, address).error, "line 2: it has a document type");
}

TEST(Feed, thatIsTooLargeOrTooLongIsRefused)
{
    const QByteArray feed = feedWith(item(version));
    EXPECT_TRUE(readAppcast(feed + QByteArray(largestAppcast - feed.size(), '\n'), address));
    EXPECT_FALSE(readAppcast(feed + QByteArray(largestAppcast - feed.size() + 1, '\n'), address));
    EXPECT_TRUE(readAppcast(feedWith(item(version).repeated(1000)), address));
    EXPECT_FALSE(readAppcast(feedWith(item(version).repeated(1001)), address));
}
