#include "platform/appkit/PNGReading.h"

#include <QByteArray>
#include <QImageReader>

void expectPNGIfItIsOne(QImageReader &reader, const QByteArray &data)
{
    if (!data.startsWith("\x89PNG\r\n\x1a\n"))
        return;
    reader.setFormat(QByteArrayLiteral("png"));
    reader.setAutoDetectImageFormat(false);
}
