#include "platform/foundation/bundles/internal/InfoDictionary.h"

#include "platform/foundation/propertylists/PropertyList.h"

#include <QFile>
#include <QFileInfo>

namespace {

constexpr qint64 largestFile = qint64(1024) * 1024;

InfoDictionaryReading dictionaryIn(const QByteArray &data)
{
    const PropertyListReading reading = readPropertyList(data);
    if (!reading)
        return {{}, reading.error};
    if (reading.value.typeId() != QMetaType::QVariantMap)
        return {{}, QStringLiteral("it holds no dictionary")};
    return {reading.value.toMap(), {}};
}

} // namespace

InfoDictionaryReading readInfoDictionary(const QString &bundlePath)
{
    QFile file(bundlePath + QStringLiteral("/Contents/Info.plist"));
    if (!file.exists())
        return {};
    if (!QFileInfo(file).isFile())
        return {{}, QStringLiteral("it is no file")};
    if (!file.open(QIODevice::ReadOnly))
        return {{}, file.errorString()};
    if (file.size() > largestFile)
        return {{}, QStringLiteral("it is larger than 1 MiB")};
    return dictionaryIn(file.readAll());
}
