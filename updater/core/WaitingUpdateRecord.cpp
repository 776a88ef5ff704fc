#include "updater/core/WaitingUpdateRecord.h"

#include "platform/foundation/propertylists/PropertyList.h"

#include <QFile>

namespace {

constexpr qint64 largestRecord = qint64(64) * 1024;

const QString versionKey = QStringLiteral("Version");
const QString displayVersionKey = QStringLiteral("DisplayVersion");
const QString signatureKey = QStringLiteral("Signature");
const QString lengthKey = QStringLiteral("Length");
const QString platformVersionKey = QStringLiteral("PlatformVersion");

} // namespace

QByteArray recordOfWaitingUpdate(const ExpectedUpdate &expected)
{
    return writeBinaryPropertyList(QVariantMap{{versionKey, expected.version},
        {displayVersionKey, expected.displayVersion}, {signatureKey, expected.signature}, {lengthKey, expected.length},
        {platformVersionKey, qlonglong(expected.platformVersion)}});
}

std::optional<ExpectedUpdate> waitingUpdate(const UpdatePlaces &places)
{
    QFile file(places.record());
    if (!file.open(QIODevice::ReadOnly) || file.size() > largestRecord)
        return std::nullopt;
    const QVariantMap values = readPropertyList(file.readAll()).value.toMap();
    const ExpectedUpdate expected{values.value(versionKey).toString(), values.value(displayVersionKey).toString(),
        values.value(signatureKey).toByteArray(), values.value(lengthKey).toLongLong(),
        values.value(platformVersionKey).toInt()};
    return expected.version.isEmpty() ? std::nullopt : std::optional(expected);
}
