#include "platform/foundation/propertylists/PropertyList.h"
#include "platform/foundation/propertylists/PropertyListValue.h"

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
    const auto equalEntries = [](const auto &one, const auto &other) {
        return one.first == other.first && equal(one.second, other.second);
    };
    return std::equal(left.constKeyValueBegin(), left.constKeyValueEnd(), right.constKeyValueBegin(),
        right.constKeyValueEnd(), equalEntries);
}

bool isInteger(const QVariant &value)
{
    return integerKind(value) != IntegerKind::None;
}

bool isList(const QVariant &value)
{
    return value.typeId() == QMetaType::QVariantList || value.typeId() == QMetaType::QStringList;
}

/// Of any widths: the bits tell equal numbers, save that a sign turns the highest numbers into negative ones.
bool equalIntegers(const QVariant &left, const QVariant &right)
{
    const auto isNegative = [](const QVariant &value) { return value.toDouble() < 0; };
    return left.toULongLong() == right.toULongLong() && isNegative(left) == isNegative(right);
}

bool equal(const QVariant &left, const QVariant &right)
{
    if (isInteger(left) && isInteger(right))
        return equalIntegers(left, right);
    if (isList(left) && isList(right))
        return equalLists(left.toList(), right.toList());
    if (left.typeId() != right.typeId())
        return false;
    switch (left.typeId()) {
    // By their bits, so that "not a number" equals itself and is not written again and again.
    case QMetaType::Float:
        return std::bit_cast<quint32>(left.toFloat()) == std::bit_cast<quint32>(right.toFloat());
    case QMetaType::Double:
        return std::bit_cast<quint64>(left.toDouble()) == std::bit_cast<quint64>(right.toDouble());
    case QMetaType::QVariantMap:
        return equalMaps(left.toMap(), right.toMap());
    default:
        return left == right;
    }
}

} // namespace

bool isEqualPropertyList(const QVariant &left, const QVariant &right)
{
    return equal(left, right);
}
