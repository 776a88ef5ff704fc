#include "platform/foundation/notifications/linux/BusValue.h"

#include <QDBusArgument>
#include <QDBusVariant>
#include <QDateTime>
#include <limits>

namespace {

// Each level is a variant, an array and its entry to the bus, which refuses more than 64 of these together, and with
// them the sender.
constexpr int deepestLevel = 16;

QVariant busValue(const QVariant &value, int level);

QVariantMap busMap(const QVariantMap &map, int level)
{
    QVariantMap result;
    for (auto entry = map.cbegin(); entry != map.cend(); ++entry) {
        if (const QVariant value = busValue(entry.value(), level); value.isValid())
            result.insert(entry.key(), value);
    }
    return result;
}

QVariantList busList(const QVariantList &list, int level)
{
    QVariantList result;
    for (const QVariant &entry : list) {
        if (const QVariant value = busValue(entry, level); value.isValid())
            result.append(value);
    }
    return result;
}

QVariant busValue(const QVariant &value, int level)
{
    if (level > deepestLevel)
        return {};
    switch (value.typeId()) {
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Double:
    case QMetaType::QString:
    case QMetaType::QByteArray:
    case QMetaType::QStringList:
        return value;
    case QMetaType::Float:
        return double(value.toFloat());
    case QMetaType::QDateTime:
        return value.toDateTime().isValid() ? value.toDateTime().toUTC() : QVariant();
    case QMetaType::QVariantList:
        return busList(value.toList(), level + 1);
    case QMetaType::QVariantMap:
        return busMap(value.toMap(), level + 1);
    default:
        return {};
    }
}

QVariantList plainList(const QVariantList &list)
{
    QVariantList result;
    for (const QVariant &entry : list) {
        if (const QVariant value = plainValue(entry); value.isValid())
            result.append(value);
    }
    return result;
}

QVariantMap plainMap(const QVariantMap &map)
{
    QVariantMap result;
    for (auto entry = map.cbegin(); entry != map.cend(); ++entry) {
        if (const QVariant value = plainValue(entry.value()); value.isValid())
            result.insert(entry.key(), value);
    }
    return result;
}

QVariantList readArray(const QDBusArgument &argument)
{
    QVariantList list;
    argument.beginArray();
    while (!argument.atEnd())
        list.append(argument.asVariant());
    argument.endArray();
    return list;
}

QVariantMap readMap(const QDBusArgument &argument)
{
    QVariantMap map;
    argument.beginMap();
    while (!argument.atEnd()) {
        argument.beginMapEntry();
        const QVariant key = argument.asVariant();
        const QVariant value = argument.asVariant();
        argument.endMapEntry();
        if (key.typeId() == QMetaType::QString)
            map.insert(key.toString(), value);
    }
    argument.endMap();
    return map;
}

QVariant plainArgument(const QDBusArgument &argument)
{
    switch (argument.currentType()) {
    case QDBusArgument::BasicType:
    case QDBusArgument::VariantType:
        return plainValue(argument.asVariant());
    case QDBusArgument::ArrayType:
        return plainList(readArray(argument));
    case QDBusArgument::MapType:
        return plainMap(readMap(argument));
    case QDBusArgument::StructureType:
        // The one structure that stands for a value of ours.
        if (argument.currentSignature() == QStringLiteral("((iii)(iiii)i)"))
            return plainValue(qdbus_cast<QDateTime>(argument));
        return {};
    default:
        return {};
    }
}

QVariant plainUnsigned(quint64 number)
{
    return number <= quint64(std::numeric_limits<qint64>::max()) ? QVariant(qint64(number)) : QVariant();
}

} // namespace

QVariant busValue(const QVariant &value)
{
    return busValue(value, 0);
}

QVariantMap busMap(const QVariantMap &map)
{
    return busMap(map, 0);
}

QVariant plainValue(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Bool:
    case QMetaType::Double:
    case QMetaType::QString:
    case QMetaType::QByteArray:
        return value;
    case QMetaType::UChar:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
        return value.toLongLong();
    case QMetaType::ULongLong:
        return plainUnsigned(value.toULongLong());
    case QMetaType::QDateTime:
        return value.toDateTime().isValid() ? value : QVariant();
    case QMetaType::QStringList:
    case QMetaType::QVariantList:
        return plainList(value.toList());
    case QMetaType::QVariantMap:
        return plainMap(value.toMap());
    default:
        break;
    }
    if (value.metaType() == QMetaType::fromType<QDBusVariant>())
        return plainValue(value.value<QDBusVariant>().variant());
    if (value.metaType() == QMetaType::fromType<QDBusArgument>())
        return plainArgument(value.value<QDBusArgument>());
    return {};
}
