// The description for software centres against what it tells of.

#include <QFile>
#include <QImage>
#include <QRegularExpression>
#include <QUrl>
#include <QXmlStreamReader>
#include <gtest/gtest.h>

namespace {

const QString source = qEnvironmentVariable("LUMAROO_SOURCE");

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
    return file.readAll();
}

struct Picture
{
    QUrl address;
    QSize size;
};

/// What the description says, as it is installed.
struct Metainfo
{
    QList<Picture> pictures;
    QStringList releases; ///< newest first
};

Metainfo readMetainfo()
{
    QXmlStreamReader reader(
        contentOf(qEnvironmentVariable("LUMAROO_BUILD") + "/packaging/com.quorvane.LumarooSettings.metainfo.xml"));
    Metainfo metainfo;
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement)
            continue;
        const QXmlStreamAttributes attributes = reader.attributes();
        if (reader.name() == QStringLiteral("release")) {
            metainfo.releases += attributes.value("version").toString();
        } else if (reader.name() == QStringLiteral("image")) {
            const QSize size(attributes.value("width").toInt(), attributes.value("height").toInt());
            metainfo.pictures.append({QUrl(reader.readElementText()), size});
        }
    }
    EXPECT_FALSE(reader.hasError()) << qPrintable(reader.errorString());
    return metainfo;
}

QString firstMatch(const QString &path, const QString &expression)
{
    const QRegularExpression regular(expression);
    return regular.match(QString::fromUtf8(contentOf(source + path))).captured(1);
}

} // namespace

TEST(Metainfo, showsThePicturesOfTheDocumentsInTheirSize)
{
    const QList<Picture> pictures = readMetainfo().pictures;
    EXPECT_FALSE(pictures.isEmpty());
    for (const Picture &picture : pictures)
        EXPECT_EQ(QImage(source + "/docs/" + picture.address.fileName()).size(), picture.size)
            << qPrintable(picture.address.toString());
}

TEST(Metainfo, hasThisVersionAsItsNewestReleaseAndSoHasTheChangelog)
{
    const QString version = firstMatch("/CMakeLists.txt", "project\\(Lumaroo VERSION ([0-9.]+)");
    ASSERT_FALSE(version.isEmpty());
    EXPECT_EQ(readMetainfo().releases.value(0), version);
    EXPECT_EQ(firstMatch("/packaging/changelog", "^lumaroo \\(([0-9.]+)\\)"), version);
}
