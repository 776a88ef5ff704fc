#include "platform/foundation/propertylists/PropertyList.h"

#include "platform/foundation/propertylists/PropertyListBounds.h"
#include "platform/foundation/propertylists/internal/BinaryPropertyListReader.h"
#include "platform/foundation/propertylists/internal/PropertyListDamage.h"
#include "platform/foundation/propertylists/internal/XMLPropertyListReader.h"

namespace {

QVariant read(const QByteArray &data)
{
    if (data.size() > PropertyListBounds::maximumBytes)
        throw PropertyListDamage{QStringLiteral("larger than 64 MiB")};
    if (data.isEmpty())
        throw PropertyListDamage{QStringLiteral("empty"), 0};
    if (data.startsWith("bplist"))
        return BinaryPropertyListReader(data).read();
    return XMLPropertyListReader(data).read();
}

} // namespace

PropertyListReading readPropertyList(const QByteArray &data)
{
    PropertyListReading reading;
    try {
        reading.value = read(data);
    } catch (const PropertyListDamage &damage) {
        reading.error = damage.error;
        reading.errorOffset = damage.offset;
    }
    return reading;
}
