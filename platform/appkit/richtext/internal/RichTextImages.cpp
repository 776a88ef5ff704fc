#include "platform/appkit/richtext/internal/RichTextImages.h"

#include "platform/appkit/PNGReading.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>

namespace {

constexpr int mostImages = 32;
constexpr qint64 mostPixels = qint64(16) * 1024 * 1024;
constexpr qint64 largestFile = qint64(4) * 1024 * 1024;
constexpr int longestSide = 2048;

bool isWithinBounds(const QSize &size, qint64 pixelsLeft)
{
    return !size.isEmpty() && size.width() <= longestSide && size.height() <= longestSide
        && qint64(size.width()) * size.height() <= pixelsLeft;
}

QByteArray contents(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || file.size() > largestFile)
        return {};
    return file.read(largestFile);
}

} // namespace

RichTextImages::RichTextImages(const QString &folder)
    : folder_(folder.isEmpty() ? QString() : QFileInfo(folder).canonicalFilePath()), imagesLeft_(mostImages),
      pixelsLeft_(mostPixels)
{
}

QImage RichTextImages::load(const QString &fileName)
{
    const QString path = imagesLeft_ > 0 ? pathOf(fileName) : QString();
    if (path.isEmpty())
        return {};
    --imagesLeft_;
    QByteArray data = contents(path);
    QBuffer buffer(&data);
    QImageReader reader(&buffer);
    expectPNGIfItIsOne(reader, data);
    const QSize size = reader.size();
    if (!isWithinBounds(size, pixelsLeft_))
        return {};
    pixelsLeft_ -= qint64(size.width()) * size.height();
    return reader.read();
}

QString RichTextImages::pathOf(const QString &fileName) const
{
    if (folder_.isEmpty() || fileName.isEmpty() || fileName.contains(u'/') || fileName.contains(QChar::Null))
        return {};
    // A link may lead anywhere: what counts is where the file really lies.
    const QFileInfo file(QFileInfo(folder_ + u'/' + fileName).canonicalFilePath());
    return file.isFile() && file.path() == folder_ ? file.filePath() : QString();
}
