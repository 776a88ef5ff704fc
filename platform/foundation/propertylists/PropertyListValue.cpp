#include "platform/foundation/propertylists/PropertyListValue.h"

#include "platform/foundation/propertylists/PropertyListBounds.h"

#include <QDateTime>
#include <QStringList>

using namespace PropertyListBounds;

namespace {

class Conversion
{
public:
    /// No value once a bound is exceeded or a part is of no use.
    QVariant converted(const QVariant &value, int depth)
    {
        extent_.add({1, bytesOf(value)});
        if (!extent_.isWithinBounds())
            return {};
        switch (value.typeId()) {
        case QMetaType::QVariantList:
        case QMetaType::QStringList:
            return convertedList(value.toList(), depth + 1);
        case QMetaType::QVariantMap:
            return convertedMap(value.toMap(), depth + 1);
        default:
            return convertedSimple(value);
        }
    }

private:
    static qint64 bytesOf(const QVariant &value)
    {
        switch (value.typeId()) {
        case QMetaType::QString:
            return value.toString().size();
        case QMetaType::QByteArray:
            return value.toByteArray().size();
        default:
            return 0;
        }
    }

    static QVariant convertedSimple(const QVariant &value)
    {
        switch (value.typeId()) {
        case QMetaType::Bool:
        case QMetaType::Float:
        case QMetaType::Double:
        case QMetaType::QByteArray:
        case QMetaType::QString:
            return value;
        case QMetaType::QDateTime:
            return value.toDateTime().isValid() ? QVariant(value.toDateTime().toUTC()) : QVariant();
        default:
            return convertedInteger(value);
        }
    }

    static QVariant convertedInteger(const QVariant &value)
    {
        const IntegerKind kind = integerKind(value);
        if (kind == IntegerKind::None)
            return {};
        const bool isBeyondSigned = kind == IntegerKind::Unsigned && value.toLongLong() < 0;
        return isBeyondSigned ? QVariant(value.toULongLong()) : QVariant(value.toLongLong());
    }

    QVariant convertedList(const QVariantList &list, int depth)
    {
        QVariantList result;
        for (const QVariant &element : list) {
            result.append(depth <= maximumDepth ? converted(element, depth) : QVariant());
            if (!result.last().isValid())
                return {};
        }
        return depth <= maximumDepth ? QVariant(result) : QVariant();
    }

    QVariant convertedMap(const QVariantMap &map, int depth)
    {
        QVariantMap result;
        for (auto entry = map.begin(); entry != map.end(); ++entry) {
            extent_.add({1, entry.key().size()});
            const QVariant value = depth <= maximumDepth ? converted(entry.value(), depth) : QVariant();
            if (!value.isValid())
                return {};
            result.insert(result.cend(), entry.key(), value);
        }
        return depth <= maximumDepth && extent_.isWithinBounds() ? QVariant(result) : QVariant();
    }

    Extent extent_;
};

} // namespace

IntegerKind integerKind(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Short:
    case QMetaType::Int:
    case QMetaType::Long:
    case QMetaType::LongLong:
        return IntegerKind::Signed;
    case QMetaType::UShort:
    case QMetaType::UInt:
    case QMetaType::ULong:
    case QMetaType::ULongLong:
        return IntegerKind::Unsigned;
    default:
        return IntegerKind::None;
    }
}

QVariant propertyListValue(const QVariant &value)
{
    return Conversion().converted(value, 0);
}
