#include "agent/life/SettingsJson.h"

#include "KTXAgentAnswer.h"

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

QJsonObject hotKeyObject(const AgentHotKey &hotKey)
{
    const bool isRegistered = hotKey.refusal.isEmpty();
    QJsonObject object{{KTXAnswerAction, hotKey.action}, {KTXAnswerKeyCode, int(hotKey.keyCode.number())},
        {QStringLiteral("combination"), hotKey.combination}, {KTXAnswerRegistered, isRegistered}};
    if (!isRegistered) {
        object.insert(QStringLiteral("refusal"), hotKey.refusal);
        object.insert(KTXAnswerCause, hotKey.cause);
    }
    return object;
}

QJsonArray hotKeyArray(const QList<AgentHotKey> &hotKeys)
{
    QJsonArray array;
    for (const AgentHotKey &hotKey : hotKeys)
        array.append(hotKeyObject(hotKey));
    return array;
}

QJsonArray numberArray(const QList<quint32> &numbers)
{
    QJsonArray array;
    for (const quint32 number : numbers)
        array.append(qint64(number));
    return array;
}

} // namespace

QByteArray settingsJson(int version, qint64 readings, const QVariantMap &settings, const QList<AgentHotKey> &hotKeys,
    const QList<quint32> &freeModifiers)
{
    const QJsonObject object{{QStringLiteral("version"), version}, {QStringLiteral("readings"), readings},
        {KTXAnswerSettings, jsonObject(settings)}, {KTXAnswerHotKeys, hotKeyArray(hotKeys)},
        {KTXAnswerFreeModifiers, numberArray(freeModifiers)}};
    return QJsonDocument(object).toJson();
}
