#include "platform/appkit/richtext/NSAttributedString.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextFragment>
#include <QUrl>
#include <gtest/gtest.h>
#include <sys/stat.h>

// Images attached to a rich text document: files that stand beside the text in its folder, and no others.

namespace {

class RichTextImages : public testing::Test
{
protected:
    RichTextImages()
    {
        QDir(outside_.path()).mkdir("Sample.rtfd");
        writeImage("image.png", QSize(40, 20));
    }

    QString folder() const { return outside_.path() + "/Sample.rtfd"; }

    void writeImage(const QString &name, QSize size) const
    {
        QImage image(size, QImage::Format_RGB32);
        image.fill(Qt::red);
        ASSERT_TRUE(image.save(folder() + '/' + name, "PNG"));
    }

    void writeText(const QByteArray &body) const { writeFile("TXT.rtf", "{\\rtf1 " + body + "}"); }

    void writeFile(const QString &name, const QByteArray &content) const
    {
        QFile file(folder() + '/' + name);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    std::unique_ptr<QTextDocument> read(const QByteArray &body) const
    {
        writeText(body);
        return NSAttributedString::fromRTFDDocument(folder()).document();
    }

    static QByteArray attached(const QByteArray &name, const QByteArray &size = {})
    {
        return "{{\\NeXTGraphic " + name + " " + size + "}\\'ac}";
    }

    static QList<QTextImageFormat> imagesOf(const QTextDocument &document)
    {
        QList<QTextImageFormat> images;
        for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
            for (auto fragment = block.begin(); !fragment.atEnd(); ++fragment) {
                if (fragment.fragment().charFormat().isImageFormat())
                    images += fragment.fragment().charFormat().toImageFormat();
            }
        }
        return images;
    }

    static QImage pictureOf(const QTextDocument &document, const QTextImageFormat &image)
    {
        return document.resource(QTextDocument::ImageResource, QUrl(image.name())).value<QImage>();
    }

    QTemporaryDir outside_;
};

} // namespace

TEST_F(RichTextImages, anAttachedImageStandsInTheTextInsteadOfItsMark)
{
    const auto document = read("a" + attached("image.png") + "b");
    const QList<QTextImageFormat> images = imagesOf(*document);
    ASSERT_EQ(images.size(), 1);
    EXPECT_EQ(images[0].width(), 40);
    EXPECT_EQ(images[0].height(), 20);
    EXPECT_EQ(pictureOf(*document, images[0]).pixelColor(1, 1), QColor(Qt::red));
    EXPECT_EQ(NSAttributedString::fromRTFDDocument(folder()).string(), QString("a\ufffcb"));
}

TEST_F(RichTextImages, itsSizeIsGivenInTwentiethsOfAPoint)
{
    const auto document = read(attached("image.png", "\\width300 \\height150 "));
    ASSERT_EQ(imagesOf(*document).size(), 1);
    EXPECT_EQ(imagesOf(*document)[0].width(), 20);
    EXPECT_EQ(imagesOf(*document)[0].height(), 10);
    EXPECT_EQ(pictureOf(*document, imagesOf(*document)[0]).size(), QSize(20, 10));
}

TEST_F(RichTextImages, aSizeBeyondAnyPageIsKeptWithinBounds)
{
    const auto document = read(attached("image.png", "\\width2147483647 \\height-7 ")
        + attached("image.png", "\\width2147483647 \\height2147483647 "));
    ASSERT_EQ(imagesOf(*document).size(), 2);
    EXPECT_EQ(imagesOf(*document)[0].width(), 40);
    EXPECT_EQ(imagesOf(*document)[1].width(), 2048);
}

TEST_F(RichTextImages, severalImagesKeepTheirOwnPictures)
{
    writeImage("other image.png", QSize(7, 9));
    const auto document = read(attached("image.png") + attached("other image.png"));
    ASSERT_EQ(imagesOf(*document).size(), 2);
    EXPECT_EQ(pictureOf(*document, imagesOf(*document)[1]).size(), QSize(7, 9));
}

TEST_F(RichTextImages, theParagraphOfAnImageIsAlignedLikeText)
{
    const auto document = read("\\qc" + attached("image.png") + "\\par");
    EXPECT_EQ(document->begin().blockFormat().alignment(), Qt::AlignHCenter);
}

TEST_F(RichTextImages, onlyAMarkRightAfterAnImageIsTakenAway)
{
    EXPECT_EQ(read("\\'ac" + attached("image.png") + "x\\'ac")->toRawText(), QString("\u00ac\ufffcx\u00ac"));
}

TEST_F(RichTextImages, anImageThatIsMissingOrNoImageLeavesNothing)
{
    writeFile("empty.png", {});
    writeFile("torn.png", "\x89PNG\r\n\x1a\n");
    const auto document =
        read("a" + attached("missing.png") + attached("empty.png") + attached("torn.png") + attached("") + "b");
    EXPECT_EQ(document->toRawText(), "ab");
}

TEST_F(RichTextImages, namesThatLeadOutOfTheFolderAreNotFollowed)
{
    ASSERT_TRUE(QFile::copy(folder() + "/image.png", outside_.path() + "/outside.png"));
    ASSERT_TRUE(QFile::link(outside_.path() + "/outside.png", folder() + "/link.png"));
    QDir(folder()).mkdir("inner");
    ASSERT_TRUE(QFile::copy(folder() + "/image.png", folder() + "/inner/image.png"));
    const QByteArray absolute = folder().toUtf8() + "/image.png";
    for (const QByteArray &name : {QByteArray("../outside.png"), QByteArray("link.png"), QByteArray("inner/image.png"),
             QByteArray(".."), QByteArray("."), QByteArray("inner"), absolute})
        EXPECT_TRUE(imagesOf(*read(attached(name))).isEmpty()) << name.constData();
}

TEST_F(RichTextImages, aLinkToAnotherImageOfTheFolderIsFollowed)
{
    ASSERT_TRUE(QFile::link(folder() + "/image.png", folder() + "/link.png"));
    EXPECT_EQ(imagesOf(*read(attached("link.png"))).size(), 1);
}

TEST_F(RichTextImages, aPipeInTheFolderHangsNobody)
{
    ASSERT_EQ(mkfifo(qPrintable(folder() + "/pipe.png"), 0600), 0);
    EXPECT_TRUE(imagesOf(*read(attached("pipe.png"))).isEmpty());
    QFile::remove(folder() + "/TXT.rtf");
    ASSERT_EQ(mkfifo(qPrintable(folder() + "/TXT.rtf"), 0600), 0);
    EXPECT_TRUE(NSAttributedString::fromRTFDDocument(folder()).isEmpty());
}

TEST_F(RichTextImages, anImageTooLargeIsLeftOut)
{
    writeImage("wide.png", QSize(2049, 1));
    writeImage("widest.png", QSize(2048, 1));
    EXPECT_TRUE(imagesOf(*read(attached("wide.png"))).isEmpty());
    EXPECT_EQ(imagesOf(*read(attached("widest.png"))).size(), 1);
}

TEST_F(RichTextImages, noMoreThanThirtyTwoImagesAreShown)
{
    EXPECT_EQ(imagesOf(*read(attached("image.png").repeated(40))).size(), 32);
}

TEST_F(RichTextImages, imagesThatAreTooMuchTogetherAreLeftOut)
{
    writeImage("large.png", QSize(2048, 2048));
    EXPECT_EQ(imagesOf(*read(attached("large.png", "\\width150 \\height150 ").repeated(6))).size(), 4);
}

TEST_F(RichTextImages, withoutAFolderThereAreNone)
{
    EXPECT_TRUE(imagesOf(*NSAttributedString::fromRTF("{\\rtf1 " + attached("image.png") + "}").document()).isEmpty());
}

TEST_F(RichTextImages, aMissingDocumentIsEmpty)
{
    EXPECT_TRUE(NSAttributedString::fromRTFDDocument(outside_.path() + "/None.rtfd").isEmpty());
    EXPECT_TRUE(NSAttributedString::fromRTFDDocument(folder()).isEmpty());
}
