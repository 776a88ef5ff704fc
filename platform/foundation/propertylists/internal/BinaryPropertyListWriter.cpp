#include "platform/foundation/propertylists/PropertyList.h"
#include "platform/foundation/propertylists/PropertyListBounds.h"
#include "platform/foundation/propertylists/PropertyListValue.h"

#include <QDateTime>
#include <QHash>
#include <QtEndian>
#include <bit>
#include <vector>

namespace {

constexpr qint64 MillisecondsTo2001 = 978'307'200'000;

void appendNumber(QByteArray &bytes, quint64 number, int size)
{
    for (int shift = 8 * (size - 1); shift >= 0; shift -= 8)
        bytes.append(char(number >> shift));
}

/// The fewest of 1, 2, 4 and 8 bytes that hold the number.
int sizeOf(quint64 number)
{
    return number <= 0xff ? 1 : number <= 0xffff ? 2 : number <= 0xffffffff ? 4 : 8;
}

QByteArray encodedInteger(quint64 bits, bool negative)
{
    const int size = negative ? 8 : sizeOf(bits);
    QByteArray bytes(1, char(0x10 | std::countr_zero(unsigned(size))));
    appendNumber(bytes, bits, size);
    return bytes;
}

/// Eight bytes are signed; what needs their highest bit for its value takes sixteen.
QByteArray encodedUnsigned(quint64 number)
{
    if (qint64(number) >= 0)
        return encodedInteger(number, false);
    QByteArray bytes(1, char(0x14));
    appendNumber(bytes, 0, 8);
    appendNumber(bytes, number, 8);
    return bytes;
}

QByteArray marker(int kind, qint64 count)
{
    if (count < 15)
        return QByteArray(1, char(kind << 4 | count));
    return QByteArray(1, char(kind << 4 | 15)) + encodedInteger(quint64(count), false);
}

QByteArray encodedBits(char kind, quint64 bits, int size)
{
    QByteArray bytes(1, kind);
    appendNumber(bytes, bits, size);
    return bytes;
}

QByteArray encodedText(const QString &text)
{
    const bool plain =
        std::all_of(text.begin(), text.end(), [](QChar character) { return character.unicode() < 0x80; });
    if (plain)
        return marker(5, text.size()) + text.toLatin1();
    QByteArray units(2 * text.size(), Qt::Uninitialized);
    qToBigEndian<char16_t>(text.constData(), text.size(), units.data());
    return marker(6, text.size()) + units;
}

QByteArray encodedDate(const QDateTime &date)
{
    const double seconds = double(date.toMSecsSinceEpoch() - MillisecondsTo2001) / 1000;
    return encodedBits(0x33, std::bit_cast<quint64>(seconds), 8);
}

QByteArray encoded(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Bool:
        return QByteArray(1, value.toBool() ? 0x09 : 0x08);
    case QMetaType::LongLong:
        return encodedInteger(quint64(value.toLongLong()), value.toLongLong() < 0);
    case QMetaType::ULongLong:
        return encodedUnsigned(value.toULongLong());
    case QMetaType::Float:
        return encodedBits(0x22, std::bit_cast<quint32>(value.toFloat()), 4);
    case QMetaType::Double:
        return encodedBits(0x23, std::bit_cast<quint64>(value.toDouble()), 8);
    case QMetaType::QDateTime:
        return encodedDate(value.toDateTime());
    case QMetaType::QByteArray:
        return marker(4, value.toByteArray().size()) + value.toByteArray();
    default:
        return encodedText(value.toString());
    }
}

class Writer
{
public:
    QByteArray write(const QVariant &value)
    {
        add(value);
        referenceSize_ = sizeOf(objects_.size());
        QByteArray file("bplist00");
        std::vector<qint64> offsets;
        for (const Object &object : objects_) {
            offsets.push_back(file.size());
            file += object.bytes;
            for (const quint64 reference : object.references)
                appendNumber(file, reference, referenceSize_);
        }
        appendTables(file, offsets);
        return file;
    }

private:
    struct Object
    {
        QByteArray bytes;
        std::vector<quint64> references;
    };

    quint64 add(const QVariant &value)
    {
        if (value.typeId() == QMetaType::QVariantMap)
            return addMap(value.toMap());
        if (value.typeId() == QMetaType::QVariantList)
            return addList(value.toList());
        return addSimple(encoded(value));
    }

    /// Equal values are stored once; the encoding tells the types apart.
    quint64 addSimple(const QByteArray &bytes)
    {
        const auto known = simpleObjects_.constFind(bytes);
        if (known != simpleObjects_.constEnd())
            return *known;
        simpleObjects_.insert(bytes, objects_.size());
        objects_.push_back({bytes, {}});
        return objects_.size() - 1;
    }

    /// A container stands before what it contains, so that the outermost is object 0.
    quint64 addMap(const QVariantMap &map)
    {
        const quint64 index = objects_.size();
        objects_.push_back({marker(0xd, map.size()), {}});
        std::vector<quint64> references;
        for (auto entry = map.keyBegin(); entry != map.keyEnd(); ++entry)
            references.push_back(addSimple(encodedText(*entry)));
        for (const QVariant &value : map)
            references.push_back(add(value));
        objects_[index].references = std::move(references);
        return index;
    }

    quint64 addList(const QVariantList &list)
    {
        const quint64 index = objects_.size();
        objects_.push_back({marker(0xa, list.size()), {}});
        std::vector<quint64> references;
        for (const QVariant &value : list)
            references.push_back(add(value));
        objects_[index].references = std::move(references);
        return index;
    }

    void appendTables(QByteArray &file, const std::vector<qint64> &offsets) const
    {
        const qint64 table = file.size();
        const int offsetSize = sizeOf(quint64(table));
        for (const qint64 offset : offsets)
            appendNumber(file, quint64(offset), offsetSize);
        file.append(6, '\0');
        file.append(char(offsetSize));
        file.append(char(referenceSize_));
        appendNumber(file, offsets.size(), 8);
        appendNumber(file, 0, 8);
        appendNumber(file, quint64(table), 8);
    }

    std::vector<Object> objects_;
    QHash<QByteArray, quint64> simpleObjects_;
    int referenceSize_ = 0;
};

} // namespace

QByteArray writeBinaryPropertyList(const QVariant &value)
{
    const QVariant converted = propertyListValue(value);
    if (!converted.isValid())
        return {};
    const QByteArray file = Writer().write(converted);
    return file.size() <= PropertyListBounds::MaximumBytes ? file : QByteArray();
}
