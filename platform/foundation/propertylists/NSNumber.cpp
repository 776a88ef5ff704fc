#include "platform/foundation/propertylists/NSNumber.h"

#include "platform/foundation/propertylists/CFTypeID.h"

#include <QRegularExpression>
#include <limits>

namespace {

bool isTrueText(const QString &text)
{
    static const QRegularExpression truth(QStringLiteral("^\\s*[+-]?0*[YyTt1-9]"));
    return truth.match(text).hasMatch();
}

float leadingFloat(const QString &text)
{
    static const QRegularExpression number(QStringLiteral("^\\s*([+-]?(?:\\d+\\.?\\d*|\\.\\d+)(?:[eE][+-]?\\d+)?)"));
    return number.match(text).captured(1).toFloat();
}

} // namespace

bool boolValue(const QVariant &value)
{
    switch (CFGetTypeID(value)) {
    case CFTypeID::Boolean:
        return value.toBool();
    case CFTypeID::Number:
        return value.toDouble() != 0;
    case CFTypeID::String:
        return isTrueText(value.toString());
    default:
        return false;
    }
}

float floatValue(const QVariant &value)
{
    switch (CFGetTypeID(value)) {
    case CFTypeID::Boolean:
    case CFTypeID::Number:
        return value.toFloat();
    case CFTypeID::String:
        return leadingFloat(value.toString());
    default:
        return 0;
    }
}

std::optional<qint32> integerWithin32Bits(const QVariant &value)
{
    constexpr double least = std::numeric_limits<qint32>::min();
    constexpr double most = std::numeric_limits<qint32>::max();
    if (CFGetTypeID(value) != CFTypeID::Number)
        return {};
    const double number = value.toDouble();
    if (!(number > least - 1 && number < most + 1))
        return {};
    return qint32(number);
}
