#include "platform/foundation/propertylists/PropertyList.h"
#include "platform/foundation/propertylists/PropertyListBounds.h"
#include "platform/foundation/propertylists/PropertyListValue.h"

#include <QDateTime>
#include <QHash>
#include <QtEndian>
#include <algorithm>
#include <array>
#include <bit>
#include <vector>

namespace {

constexpr qint64 millisecondsTo2001 = 978'307'200'000;

void appendNumber(QByteArray &bytes, quint64 number, int size)
{
    std::array<char, 8> digits;
    qToBigEndian(number, digits.data());
    bytes.append(digits.data() + digits.size() - size, size);
}

/// The fewest of 1, 2, 4 and 8 bytes that hold the number.
int sizeOf(quint64 number)
{
    return number <= 0xff ? 1 : number <= 0xffff ? 2 : number <= 0xffffffff ? 4 : 8;
}

void appendBits(QByteArray &bytes, char kind, quint64 bits, int size)
{
    bytes.append(kind);
    appendNumber(bytes, bits, size);
}

void appendInteger(QByteArray &bytes, quint64 bits, bool negative)
{
    const int size = negative ? 8 : sizeOf(bits);
    appendBits(bytes, char(0x10 | std::countr_zero(unsigned(size))), bits, size);
}

/// Eight bytes are signed; what needs their highest bit for its value takes sixteen.
void appendUnsigned(QByteArray &bytes, quint64 number)
{
    if (qint64(number) >= 0) {
        appendInteger(bytes, number, false);
        return;
    }
    appendBits(bytes, 0x14, 0, 8);
    appendNumber(bytes, number, 8);
}

void appendMarker(QByteArray &bytes, int kind, qint64 count)
{
    bytes.append(char(kind << 4 | std::min(count, qint64(15))));
    if (count >= 15)
        appendInteger(bytes, quint64(count), false);
}

void appendText(QByteArray &bytes, const QString &text)
{
    const bool plain =
        std::all_of(text.begin(), text.end(), [](QChar character) { return character.unicode() < 0x80; });
    appendMarker(bytes, plain ? 5 : 6, text.size());
    const qsizetype begin = bytes.size();
    bytes.resize(begin + (plain ? 1 : 2) * text.size());
    if (plain)
        std::transform(
            text.begin(), text.end(), bytes.begin() + begin, [](QChar character) { return char(character.unicode()); });
    else
        qToBigEndian<char16_t>(text.constData(), text.size(), bytes.data() + begin);
}

void appendData(QByteArray &bytes, const QByteArray &data)
{
    appendMarker(bytes, 4, data.size());
    bytes.append(data);
}

void appendDate(QByteArray &bytes, const QDateTime &date)
{
    const double seconds = double(date.toMSecsSinceEpoch() - millisecondsTo2001) / 1000;
    appendBits(bytes, 0x33, std::bit_cast<quint64>(seconds), 8);
}

void appendSimple(QByteArray &bytes, const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Bool:
        return void(bytes.append(value.toBool() ? 0x09 : 0x08));
    case QMetaType::LongLong:
        return appendInteger(bytes, quint64(value.toLongLong()), value.toLongLong() < 0);
    case QMetaType::ULongLong:
        return appendUnsigned(bytes, value.toULongLong());
    case QMetaType::Float:
        return appendBits(bytes, 0x22, std::bit_cast<quint32>(value.toFloat()), 4);
    case QMetaType::Double:
        return appendBits(bytes, 0x23, std::bit_cast<quint64>(value.toDouble()), 8);
    case QMetaType::QDateTime:
        return appendDate(bytes, value.toDateTime());
    case QMetaType::QByteArray:
        return appendData(bytes, value.toByteArray());
    default:
        return appendText(bytes, value.toString());
    }
}

/// A flush waits for it: what it gathers lies in a few long arrays, rather than in one piece of memory for each object.
class Writer
{
public:
    QByteArray write(const QVariant &value)
    {
        encodings_.reserve(usualSize);
        add(value);
        const int referenceSize = sizeOf(objects_.size());
        QByteArray file;
        file.reserve(encodings_.size() + qsizetype(references_.size()) * referenceSize
            + qsizetype(objects_.size() * sizeof(quint64)) + sizeOfTheEnds);
        file.append("bplist00");
        std::vector<qint64> offsets;
        offsets.reserve(objects_.size());
        for (const Object &object : objects_) {
            offsets.push_back(file.size());
            file.append(encoding(object));
            for (size_t i = 0; i < object.references; ++i)
                appendNumber(file, references_[object.firstReference + i], referenceSize);
        }
        appendTables(file, offsets, referenceSize);
        return file;
    }

private:
    /// What stands in the file for a value: bytes, and the numbers of the objects that it contains.
    struct Object
    {
        qsizetype begin;
        qsizetype size;
        size_t firstReference = 0;
        size_t references = 0;
    };

    QByteArrayView encoding(const Object &object) const
    {
        return QByteArrayView(encodings_).sliced(object.begin, object.size);
    }

    quint64 add(const QVariant &value)
    {
        if (value.typeId() == QMetaType::QVariantMap)
            return addMap(value.toMap());
        if (value.typeId() == QMetaType::QVariantList)
            return addList(value.toList());
        const qsizetype begin = encodings_.size();
        appendSimple(encodings_, value);
        return addSimple(begin);
    }

    quint64 addText(const QString &text)
    {
        const qsizetype begin = encodings_.size();
        appendText(encodings_, text);
        return addSimple(begin);
    }

    /// What has been encoded from there on. Equal values are stored once; the encoding tells the types apart.
    quint64 addSimple(qsizetype begin)
    {
        const Object object{begin, encodings_.size() - begin};
        quint64 &known = simpleObjects_[qHash(encoding(object))];
        // Object 0 is the outermost, which is none of these in a list or dictionary.
        if (known != 0 && encoding(objects_[known]) == encoding(object)) {
            encodings_.truncate(begin);
            return known;
        }
        known = objects_.size();
        objects_.push_back(object);
        return known;
    }

    /// A container stands before what it contains, so that the outermost is object 0.
    quint64 addContainer(int kind, qsizetype count, qsizetype references)
    {
        const qsizetype begin = encodings_.size();
        appendMarker(encodings_, kind, count);
        objects_.push_back({begin, encodings_.size() - begin, references_.size(), size_t(references)});
        references_.resize(references_.size() + size_t(references));
        return objects_.size() - 1;
    }

    quint64 addMap(const QVariantMap &map)
    {
        const quint64 index = addContainer(0xd, map.size(), 2 * map.size());
        size_t reference = objects_[index].firstReference;
        for (auto entry = map.keyBegin(); entry != map.keyEnd(); ++entry)
            references_[reference++] = addText(*entry);
        for (const QVariant &value : map) {
            const quint64 added = add(value);
            references_[reference++] = added;
        }
        return index;
    }

    quint64 addList(const QVariantList &list)
    {
        const quint64 index = addContainer(0xa, list.size(), list.size());
        size_t reference = objects_[index].firstReference;
        for (const QVariant &value : list) {
            const quint64 added = add(value);
            references_[reference++] = added;
        }
        return index;
    }

    static void appendTables(QByteArray &file, const std::vector<qint64> &offsets, int referenceSize)
    {
        const qint64 table = file.size();
        const int offsetSize = sizeOf(quint64(table));
        for (const qint64 offset : offsets)
            appendNumber(file, quint64(offset), offsetSize);
        file.append(6, '\0');
        file.append(char(offsetSize));
        file.append(char(referenceSize));
        appendNumber(file, offsets.size(), 8);
        appendNumber(file, 0, 8);
        appendNumber(file, quint64(table), 8);
    }

    static constexpr qsizetype usualSize = 2048;
    static constexpr qsizetype sizeOfTheEnds = 40;

    QByteArray encodings_;
    std::vector<Object> objects_;
    std::vector<quint64> references_;
    QHash<size_t, quint64> simpleObjects_; ///< by the hash of their encoding
};

} // namespace

QByteArray writeBinaryPropertyList(const QVariant &value)
{
    const QVariant converted = propertyListValue(value);
    if (!converted.isValid())
        return {};
    const QByteArray file = Writer().write(converted);
    return file.size() <= PropertyListBounds::maximumBytes ? file : QByteArray();
}
