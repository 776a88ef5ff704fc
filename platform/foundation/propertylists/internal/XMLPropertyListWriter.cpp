#include "platform/foundation/propertylists/PropertyList.h"
#include "platform/foundation/propertylists/PropertyListBounds.h"
#include "platform/foundation/propertylists/PropertyListValue.h"

#include <QDateTime>
#include <cmath>

namespace {

struct Unwritable
{
};

constexpr auto header =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
    "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" \"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
    "<plist version=\"1.0\">\n";

bool canStandInXML(char32_t character)
{
    if (character < 0x20)
        return character == '\t' || character == '\n' || character == '\r';
    return !(character >= 0xd800 && character < 0xe000) && character != 0xfffe && character != 0xffff;
}

QByteArray escaped(const QString &text)
{
    const QList<uint> characters = text.toUcs4();
    // A lone half of a pair becomes U+FFFD there, and would not come back.
    if (QString::fromUcs4(reinterpret_cast<const char32_t *>(characters.data()), characters.size()) != text)
        throw Unwritable();
    for (const uint character : characters)
        if (!canStandInXML(character))
            throw Unwritable();
    QByteArray bytes = text.toUtf8();
    bytes.replace("&", "&amp;").replace("<", "&lt;").replace(">", "&gt;").replace("\r", "&#13;");
    return bytes;
}

/// The shortest text that reads back as exactly this number; a 4-byte real is written as the 8-byte one it equals.
QByteArray realText(double number)
{
    if (std::isnan(number))
        return "nan";
    if (std::isinf(number))
        return number > 0 ? "+infinity" : "-infinity";
    return QByteArray::number(number, 'g', QLocale::FloatingPointShortest);
}

QByteArray element(const char *name, const QByteArray &content)
{
    return QByteArray("<") + name + '>' + content + "</" + name + ">\n";
}

/// In the form that others read too: whole seconds, four digits of the year.
QByteArray dateText(const QDateTime &date)
{
    if (date.date().year() < 0 || date.date().year() > 9999)
        throw Unwritable();
    return date.toString(QStringLiteral("yyyy-MM-ddTHH:mm:ssZ")).toLatin1();
}

QByteArray simpleElement(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Bool:
        return value.toBool() ? "<true/>\n" : "<false/>\n";
    case QMetaType::LongLong:
        return element("integer", QByteArray::number(value.toLongLong()));
    case QMetaType::ULongLong:
        return element("integer", QByteArray::number(value.toULongLong()));
    case QMetaType::Float:
    case QMetaType::Double:
        return element("real", realText(value.toDouble()));
    case QMetaType::QDateTime:
        return element("date", dateText(value.toDateTime()));
    case QMetaType::QByteArray:
        return element("data", value.toByteArray().toBase64());
    default:
        return element("string", escaped(value.toString()));
    }
}

void append(QByteArray &file, const QVariant &value, const QByteArray &indent);

void appendMap(QByteArray &file, const QVariantMap &map, const QByteArray &indent)
{
    if (map.isEmpty()) {
        file += "<dict/>\n";
        return;
    }
    const QByteArray inner = indent + '\t';
    file += "<dict>\n";
    for (auto entry = map.begin(); entry != map.end(); ++entry) {
        file += inner + element("key", escaped(entry.key())) + inner;
        append(file, entry.value(), inner);
    }
    file += indent + "</dict>\n";
}

void appendList(QByteArray &file, const QVariantList &list, const QByteArray &indent)
{
    if (list.isEmpty()) {
        file += "<array/>\n";
        return;
    }
    const QByteArray inner = indent + '\t';
    file += "<array>\n";
    for (const QVariant &value : list) {
        file += inner;
        append(file, value, inner);
    }
    file += indent + "</array>\n";
}

void append(QByteArray &file, const QVariant &value, const QByteArray &indent)
{
    if (value.typeId() == QMetaType::QVariantMap)
        appendMap(file, value.toMap(), indent);
    else if (value.typeId() == QMetaType::QVariantList)
        appendList(file, value.toList(), indent);
    else
        file += simpleElement(value);
}

} // namespace

QByteArray writeXMLPropertyList(const QVariant &value)
{
    const QVariant converted = propertyListValue(value);
    if (!converted.isValid())
        return {};
    QByteArray file(header);
    try {
        append(file, converted, {});
    } catch (const Unwritable &) {
        return {};
    }
    file += "</plist>\n";
    return file.size() <= PropertyListBounds::maximumBytes ? file : QByteArray();
}
