#include "platform/foundation/NSArchiver.h"

#include "platform/foundation/ColorArchiveReader.h"
#include "platform/foundation/ColorArchiveWriter.h"

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
