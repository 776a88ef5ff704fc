#include "platform/foundation/colors/NSArchiver.h"

#include "platform/foundation/colors/internal/ColorArchiveReader.h"
#include "platform/foundation/colors/internal/ColorArchiveWriter.h"

QByteArray NSArchiver::archivedDataWithRootObject(const NSColorRef &color)
{
    if (!color)
        return {};
    return color->archive_.isEmpty() ? writeColorArchive(*color) : color->archive_;
}

NSColorRef NSUnarchiver::unarchiveObjectWithData(const QByteArray &data)
{
    return ColorArchiveReader::read(data);
}
