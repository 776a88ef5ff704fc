#include "platform/foundation/propertylists/CFTypeID.h"

#include "platform/foundation/propertylists/PropertyListValue.h"

CFTypeID CFGetTypeID(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Bool:
        return CFTypeID::Boolean;
    case QMetaType::Float:
    case QMetaType::Double:
        return CFTypeID::Number;
    case QMetaType::QString:
        return CFTypeID::String;
    case QMetaType::QByteArray:
        return CFTypeID::Data;
    case QMetaType::QDateTime:
        return CFTypeID::Date;
    case QMetaType::QStringList:
    case QMetaType::QVariantList:
        return CFTypeID::Array;
    case QMetaType::QVariantMap:
        return CFTypeID::Dictionary;
    default:
        return integerKind(value) != IntegerKind::None ? CFTypeID::Number : CFTypeID::None;
    }
}

CFTypeID CFBooleanGetTypeID()
{
    return CFTypeID::Boolean;
}

bool CFBooleanGetValue(const QVariant &value)
{
    return CFGetTypeID(value) == CFTypeID::Boolean && value.toBool();
}
