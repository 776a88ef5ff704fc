// Which pictures of a pane's icon file the host takes.

#include "host/IconFile.h"

#include <QBuffer>
#include <QFile>
#include <QPixmap>
#include <QTemporaryDir>
#include <QtEndian>
#include <gmock/gmock.h>

namespace {

QByteArray png(int side, QColor color)
{
    QImage image(side, side, QImage::Format_ARGB32);
    image.fill(color);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "png");
    return buffer.data();
}

QByteArray part(const QByteArray &type, const QByteArray &content)
{
    QByteArray size(4, 0);
    qToBigEndian(quint32(content.size() + 8), size.data());
    return type + size + content;
}

class AnIconFile : public testing::Test
{
protected:
    QIcon icon(const QByteArray &content, const QString &name = QStringLiteral("icon.icns"))
    {
        QFile file(folder_.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        file.close();
        return iconFromFile(file.fileName());
    }

private:
    QTemporaryDir folder_;
};

QColor middle(const QIcon &icon, int side)
{
    return icon.pixmap(side).toImage().pixelColor(side / 2, side / 2);
}

} // namespace

TEST_F(AnIconFile, givesEachSizeItsOwnPictureButNoneThatIsLargerThanAnyoneShows)
{
    const QIcon found = icon(part("icns",
        part("TOC ", QByteArray(16, 0)) + part("icp5", png(32, Qt::red)) + part("ic07", png(128, Qt::green))
            + part("ic09", png(512, Qt::blue))));
    EXPECT_THAT(found.availableSizes(), testing::UnorderedElementsAre(QSize(32, 32), QSize(128, 128)));
    EXPECT_EQ(middle(found, 32), QColor(Qt::red));
    EXPECT_EQ(middle(found, 128), QColor(Qt::green));
}

TEST_F(AnIconFile, withNothingButALargePictureIsShownAllTheSame)
{
    EXPECT_EQ(middle(icon(part("icns", part("ic09", png(512, Qt::blue)))), 64), QColor(Qt::blue));
}

TEST_F(AnIconFile, thatIsCutOffKeepsWhatCameBefore)
{
    const QByteArray whole = part("icns", part("icp5", png(32, Qt::red)) + part("ic07", png(128, Qt::green)));
    EXPECT_THAT(icon(whole.chopped(20)).availableSizes(), testing::ElementsAre(QSize(32, 32)));
    for (const QByteArray &size : {QByteArray(4, 0), QByteArray(4, '\xff')})
        EXPECT_TRUE(icon("icns" + QByteArray(4, 0) + "icp5" + size + png(32, Qt::red)).pixmap(32).isNull());
}

TEST_F(AnIconFile, ofAnotherFormatIsReadToo)
{
    EXPECT_EQ(middle(icon(png(64, Qt::red), "icon.png"), 64), QColor(Qt::red));
    EXPECT_TRUE(icon("icns", "short.icns").pixmap(64).isNull());
    EXPECT_TRUE(iconFromFile("/nowhere/icon.icns").pixmap(64).isNull());
}
