#include "platform/foundation/propertylists/internal/XMLPropertyListReader.h"

#include "platform/foundation/propertylists/internal/PropertyListDamage.h"

#include <QDateTime>

using namespace PropertyListBounds;

XMLPropertyListReader::XMLPropertyListReader(const QByteArray &data) : data_(data), xml_(data) { }

QVariant XMLPropertyListReader::read()
{
    require(nextElement() && xml_.name() == u"plist", "no property list");
    require(nextElement(), "no value");
    QVariant value = readValue(0);
    require(!nextElement(), "more than one value");
    while (!xml_.atEnd())
        xml_.readNext();
    require(!xml_.hasError(), "damaged after its end");
    return value;
}

QVariant XMLPropertyListReader::readValue(int depth)
{
    countObject();
    const QString kind = xml_.name().toString();
    if (kind == u"dict")
        return readDictionary(depth + 1);
    if (kind == u"array")
        return readArray(depth + 1);
    if (kind == u"string")
        return readText();
    if (kind == u"integer")
        return readInteger();
    if (kind == u"real")
        return readReal();
    if (kind == u"true" || kind == u"false")
        return readBoolean(kind == u"true");
    if (kind == u"date")
        return readDate();
    if (kind == u"data")
        return readData();
    fail(QStringLiteral("unknown element <%1>").arg(kind.left(40)));
}

QVariantList XMLPropertyListReader::readArray(int depth)
{
    require(depth <= maximumDepth, "nested too deeply");
    QVariantList list;
    while (nextElement())
        list.append(readValue(depth));
    return list;
}

QVariantMap XMLPropertyListReader::readDictionary(int depth)
{
    require(depth <= maximumDepth, "nested too deeply");
    QVariantMap map;
    while (nextElement()) {
        require(xml_.name() == u"key", "value without a key");
        countObject();
        const QString key = readText();
        require(nextElement() && xml_.name() != u"key", "key without a value");
        map.insert(key, readValue(depth));
    }
    return map;
}

QVariant XMLPropertyListReader::readInteger()
{
    QString text = readTrimmedText();
    const bool negative = text.startsWith(u'-');
    if (negative || text.startsWith(u'+'))
        text.remove(0, 1);
    const bool hexadecimal = text.startsWith(QStringLiteral("0x"), Qt::CaseInsensitive);
    if (hexadecimal)
        text.remove(0, 2);
    require(!text.isEmpty() && text[0].isLetterOrNumber(), "not an integer");
    bool valid = false;
    const quint64 magnitude = text.toULongLong(&valid, hexadecimal ? 16 : 10);
    const quint64 limit = quint64(std::numeric_limits<qint64>::max()) + 1;
    require(valid && (!negative || magnitude <= limit), "not an integer");
    if (negative)
        return qint64(-magnitude);
    return magnitude < limit ? QVariant(qint64(magnitude)) : QVariant(magnitude);
}

QVariant XMLPropertyListReader::readReal()
{
    const QString text = readTrimmedText().toLower();
    constexpr double infinity = std::numeric_limits<double>::infinity();
    static const QHash<QString, double> named = {
        {QStringLiteral("nan"), std::numeric_limits<double>::quiet_NaN()},
        {QStringLiteral("inf"), infinity},
        {QStringLiteral("infinity"), infinity},
        {QStringLiteral("+infinity"), infinity},
        {QStringLiteral("-infinity"), -infinity},
        {QStringLiteral("-inf"), -infinity},
        {QStringLiteral("+inf"), infinity},
    };
    if (const auto found = named.find(text); found != named.end())
        return *found;
    bool valid = false;
    const double value = text.toDouble(&valid);
    require(valid, "not a real");
    return value;
}

QVariant XMLPropertyListReader::readDate()
{
    const QString text = readTrimmedText();
    QDateTime date = QDateTime::fromString(text, Qt::ISODate);
    require(date.isValid() && text.endsWith(u'Z'), "not a date");
    return date.toUTC();
}

QVariant XMLPropertyListReader::readData()
{
    const QString text = readText();
    QByteArray digits;
    digits.reserve(text.size());
    for (const QChar character : text) {
        require(character.unicode() < 0x80, "not base64");
        if (!character.isSpace())
            digits.append(char(character.unicode()));
    }
    const auto decoded = QByteArray::fromBase64Encoding(digits, QByteArray::AbortOnBase64DecodingErrors);
    require(bool(decoded), "not base64");
    return *decoded;
}

QVariant XMLPropertyListReader::readBoolean(bool value)
{
    require(readTrimmedText().isEmpty(), "text in a boolean");
    return value;
}

QString XMLPropertyListReader::readText()
{
    const QString text = xml_.readElementText();
    require(!xml_.hasError(), "text expected");
    extent_.bytes += text.size();
    require(extent_.isWithinBounds(), "too much text");
    // Qt answers a null text for an empty element; an empty text is a value.
    return text.isNull() ? QStringLiteral("") : text;
}

QString XMLPropertyListReader::readTrimmedText()
{
    return readText().trimmed();
}

/// Goes to the next element within the present one; false at the present one's end.
bool XMLPropertyListReader::nextElement()
{
    while (!xml_.atEnd()) {
        switch (xml_.readNext()) {
        case QXmlStreamReader::StartElement:
            return true;
        case QXmlStreamReader::EndElement:
            return false;
        case QXmlStreamReader::Characters:
            require(xml_.isWhitespace(), "text between elements");
            break;
        case QXmlStreamReader::EntityReference:
            fail(QStringLiteral("unknown entity"));
        default:
            break;
        }
    }
    fail(xml_.hasError() ? xml_.errorString() : QStringLiteral("cut short"));
}

void XMLPropertyListReader::countObject()
{
    ++extent_.objects;
    require(extent_.isWithinBounds(), "too many objects");
}

void XMLPropertyListReader::require(bool condition, const char *error)
{
    if (!condition)
        fail(xml_.hasError() ? xml_.errorString() : QString::fromLatin1(error));
}

void XMLPropertyListReader::fail(const QString &error)
{
    throw PropertyListDamage{error, byteOffset()};
}

/// The reader counts UTF-16 units; people look for bytes. Unknown where the file is not UTF-8.
qint64 XMLPropertyListReader::byteOffset() const
{
    if (data_.startsWith("\xfe\xff") || data_.startsWith("\xff\xfe"))
        return -1;
    qint64 units = xml_.characterOffset();
    qint64 offset = 0;
    for (; offset < data_.size() && units > 0; ++offset) {
        const quint8 byte = quint8(data_[offset]);
        units -= byte >= 0xf0 ? 2 : (byte & 0xc0) == 0x80 ? 0 : 1;
    }
    return offset;
}
