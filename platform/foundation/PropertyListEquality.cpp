#include "platform/foundation/PropertyList.h"
#include "platform/foundation/PropertyListValue.h"

#include <QDateTime>
#include <bit>

namespace {

bool equal(const QVariant &left, const QVariant &right);

bool equalLists(const QVariantList &left, const QVariantList &right)
{
    return std::equal(left.begin(), left.end(), right.begin(), right.end(), equal);
}

bool equalMaps(const QVariantMap &left, const QVariantMap &right)
{
    return left.keys() == right.keys() && std::equal(left.begin(), left.end(), right.begin(), right.end(), equal);
}

bool equal(const QVariant &left, const QVariant &right)
{
    if (left.typeId() != right.typeId())
        return false;
    switch (left.typeId()) {
    // By their bits, so that "not a number" equals itself and is not written again and again.
    case QMetaType::Float:
        return std::bit_cast<quint32>(left.toFloat()) == std::bit_cast<quint32>(right.toFloat());
    case QMetaType::Double:
        return std::bit_cast<quint64>(left.toDouble()) == std::bit_cast<quint64>(right.toDouble());
    case QMetaType::QVariantList:
        return equalLists(left.toList(), right.toList());
    case QMetaType::QVariantMap:
        return equalMaps(left.toMap(), right.toMap());
    default:
        return left == right;
    }
}

/// An integer is an integer, whatever the width it was given in.
QVariant comparable(const QVariant &value)
{
    const QVariant converted = propertyListValue(value);
    return converted.isValid() ? converted : value;
}

} // namespace

bool isEqualPropertyList(const QVariant &left, const QVariant &right)
{
    return equal(comparable(left), comparable(right));
}
