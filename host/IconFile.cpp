#include "host/IconFile.h"

#include "platform/appkit/PNGReading.h"

#include <QBuffer>
#include <QFile>
#include <QImageReader>
#include <QPixmap>
#include <QtEndian>

namespace {

constexpr int largestSide = 256;
constexpr qint64 largestFile = 16 * 1024 * 1024;
constexpr qsizetype headerSize = 8; // of the file, and of each picture in it: four letters and a size, header included

quint32 sizeAt(const QByteArray &bytes, qsizetype header)
{
    return qFromBigEndian<quint32>(bytes.constData() + header + 4);
}

QPixmap picture(const QByteArray &png)
{
    QBuffer buffer;
    buffer.setData(png);
    QImageReader reader(&buffer);
    expectPNGIfItIsOne(reader, png);
    const QSize size = reader.autoDetectImageFormat() ? QSize() : reader.size();
    const bool isShown = !size.isEmpty() && size.width() <= largestSide && size.height() <= largestSide;
    return isShown ? QPixmap::fromImage(reader.read()) : QPixmap();
}

/// The pictures of an Apple icon file that are kept as PNG; without one, no icon.
QIcon picturesWithin(const QByteArray &icons)
{
    QIcon icon;
    for (qsizetype header = headerSize; header + headerSize <= icons.size();) {
        const quint32 size = sizeAt(icons, header);
        if (size < headerSize || size > quint32(icons.size() - header))
            break;
        const QPixmap found = picture(icons.mid(header + headerSize, size - headerSize));
        if (!found.isNull())
            icon.addPixmap(found);
        header += size;
    }
    return icon;
}

} // namespace

QIcon iconFromFile(const QString &path)
{
    if (path.isEmpty())
        return {};
    QFile file(path);
    if (file.open(QIODevice::ReadOnly) && file.size() <= largestFile && file.peek(4) == "icns") {
        const QIcon icon = picturesWithin(file.readAll());
        if (!icon.isNull())
            return icon;
    }
    return QIcon(path);
}
