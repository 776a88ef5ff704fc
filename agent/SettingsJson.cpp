#include "agent/SettingsJson.h"

#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonValue>

namespace {

QJsonValue jsonValue(const QVariant &value);

QJsonArray jsonArray(const QVariantList &list)
{
    QJsonArray array;
    for (const QVariant &entry : list)
        array.append(jsonValue(entry));
    return array;
}

QJsonObject jsonObject(const QVariantMap &map)
{
    QJsonObject object;
    for (auto entry = map.cbegin(); entry != map.cend(); ++entry)
        object.insert(entry.key(), jsonValue(entry.value()));
    return object;
}

QJsonValue jsonValue(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::QDateTime:
        return value.toDateTime().toUTC().toString(Qt::ISODateWithMs);
    case QMetaType::QByteArray:
        return QString::fromLatin1(value.toByteArray().toBase64());
    case QMetaType::QVariantList:
        return jsonArray(value.toList());
    case QMetaType::QVariantMap:
        return jsonObject(value.toMap());
    default:
        return QJsonValue::fromVariant(value);
    }
}

} // namespace

QByteArray settingsJson(int version, qint64 readings, const QVariantMap &settings)
{
    const QJsonObject object{{QStringLiteral("version"), version}, {QStringLiteral("readings"), readings},
        {QStringLiteral("settings"), jsonObject(settings)}};
    return QJsonDocument(object).toJson();
}
