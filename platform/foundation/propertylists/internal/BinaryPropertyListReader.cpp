#include "platform/foundation/propertylists/internal/BinaryPropertyListReader.h"

#include "platform/foundation/propertylists/internal/PropertyListDamage.h"

#include <QDateTime>
#include <QTimeZone>
#include <QtEndian>
#include <bit>
#include <cmath>

using namespace PropertyListBounds;

namespace {

constexpr int headerSize = 8;
constexpr int trailerSize = 32;
constexpr qint64 millisecondsTo2001 = 978'307'200'000;
constexpr double longestInterval = 1e12; // seconds; some 31,000 years, well within QDateTime

} // namespace

QVariant BinaryPropertyListReader::read()
{
    readTrailer();
    return object(top_, 0).value;
}

void BinaryPropertyListReader::readTrailer()
{
    require(data_.startsWith("bplist0"), "unknown version", 6);
    end_ = data_.size() - trailerSize;
    require(end_ > headerSize, "cut short", data_.size());
    offsetSize_ = quint8(data_[end_ + 6]);
    referenceSize_ = quint8(data_[end_ + 7]);
    require(offsetSize_ >= 1 && offsetSize_ <= 8 && referenceSize_ >= 1 && referenceSize_ <= 8, "damaged trailer",
        end_ + 6);

    const quint64 count = qFromBigEndian<quint64>(data_.constData() + end_ + 8);
    top_ = qFromBigEndian<quint64>(data_.constData() + end_ + 16);
    const quint64 table = qFromBigEndian<quint64>(data_.constData() + end_ + 24);
    require(count <= quint64(maximumObjects), "too many objects", end_ + 8);
    require(top_ < count, "no top object", end_ + 16);
    require(table >= headerSize && table <= quint64(end_), "damaged trailer", end_ + 24);
    require(count * quint64(offsetSize_) <= quint64(end_) - table, "offset table cut short", qint64(table));
    offsetTable_ = qint64(table);
    objects_.resize(count);
}

const BinaryPropertyListReader::Object &BinaryPropertyListReader::object(quint64 index, int depth)
{
    Object &object = objects_[index];
    const qint64 entry = offsetTable_ + qint64(index) * offsetSize_;
    if (object.state == State::Unread) {
        const quint64 offset = number(entry, offsetSize_);
        require(offset >= headerSize && offset < quint64(offsetTable_), "object outside of the file", entry);
        object.state = State::BeingRead;
        object.extent.objects = 1;
        readObject(object, qint64(offset), depth);
        object.state = State::Read;
    }
    require(object.state == State::Read, "an object contains itself", entry);
    require(depth + object.height <= maximumDepth, "nested too deeply", entry);
    require(object.extent.isWithinBounds(), "too many objects", entry);
    return object;
}

void BinaryPropertyListReader::readObject(Object &object, qint64 offset, int depth)
{
    switch (byteAt(offset) >> 4) {
    case 0xa:
        return readArray(object, offset, depth + 1);
    case 0xd:
        return readDictionary(object, offset, depth + 1);
    }
    object.value = readSimple(offset);
    if (object.value.typeId() == QMetaType::QByteArray)
        object.extent.bytes = object.value.toByteArray().size();
    else if (object.value.typeId() == QMetaType::QString)
        object.extent.bytes = object.value.toString().size();
}

const BinaryPropertyListReader::Object &BinaryPropertyListReader::member(
    Object &container, qint64 referenceOffset, int depth)
{
    const quint64 index = number(referenceOffset, referenceSize_);
    require(index < objects_.size(), "reference to no object", referenceOffset);
    const Object &found = object(index, depth);
    container.extent.add(found.extent);
    container.height = std::max(container.height, found.height + 1);
    require(container.extent.isWithinBounds(), "too many objects", referenceOffset);
    return found;
}

void BinaryPropertyListReader::readArray(Object &object, qint64 offset, int depth)
{
    require(depth <= maximumDepth, "nested too deeply", offset);
    object.height = 1;
    const Span references = countedSpan(offset, referenceSize_);
    QVariantList list;
    for (qint64 i = 0; i < references.count; ++i)
        list.append(member(object, references.offset + i * referenceSize_, depth).value);
    object.value = list;
}

void BinaryPropertyListReader::readDictionary(Object &object, qint64 offset, int depth)
{
    require(depth <= maximumDepth, "nested too deeply", offset);
    object.height = 1;
    const Span references = countedSpan(offset, qint64(2) * referenceSize_);
    QVariantMap map;
    for (qint64 i = 0; i < references.count; ++i) {
        const qint64 keyReference = references.offset + i * referenceSize_;
        const QVariant key = member(object, keyReference, depth).value;
        require(key.typeId() == QMetaType::QString, "a key is no text", keyReference);
        const QVariant &value = member(object, keyReference + references.count * referenceSize_, depth).value;
        map.insert(map.cend(), key.toString(), value); // most writers sort the keys, ours does
    }
    object.value = map;
}

QVariant BinaryPropertyListReader::readSimple(qint64 offset) const
{
    const quint8 marker = byteAt(offset);
    if (marker == 0x08 || marker == 0x09)
        return marker == 0x09;
    switch (marker >> 4) {
    case 0x1:
        return readInteger(offset);
    case 0x2:
        return readReal(offset);
    case 0x3:
        return readDate(offset);
    case 0x4: {
        const Span bytes = countedSpan(offset, 1);
        return data_.mid(bytes.offset, bytes.count);
    }
    case 0x5:
        return readASCII(offset);
    case 0x6:
        return readUTF16(offset);
    }
    throw PropertyListDamage{QStringLiteral("object of an unknown kind"), offset};
}

QVariant BinaryPropertyListReader::readInteger(qint64 offset) const
{
    const int exponent = byteAt(offset) & 0xf;
    require(exponent <= 4, "integer of an unknown size", offset);
    if (exponent < 4) // one to four bytes are unsigned, eight are signed
        return qint64(number(offset + 1, qint64(1) << exponent));
    const quint64 high = number(offset + 1, 8);
    const quint64 low = number(offset + 9, 8);
    require(high == 0 || (high == ~quint64(0) && qint64(low) < 0), "integer beyond 64 bits", offset);
    return high == 0 && qint64(low) < 0 ? QVariant(low) : QVariant(qint64(low));
}

QVariant BinaryPropertyListReader::readReal(qint64 offset) const
{
    switch (byteAt(offset)) {
    case 0x22:
        return QVariant(std::bit_cast<float>(quint32(number(offset + 1, 4))));
    case 0x23:
        return QVariant(std::bit_cast<double>(number(offset + 1, 8)));
    }
    throw PropertyListDamage{QStringLiteral("real of an unknown size"), offset};
}

QVariant BinaryPropertyListReader::readDate(qint64 offset) const
{
    require(byteAt(offset) == 0x33, "date of an unknown size", offset);
    const double seconds = std::bit_cast<double>(number(offset + 1, 8));
    require(std::abs(seconds) <= longestInterval, "date out of range", offset);
    return QDateTime::fromMSecsSinceEpoch(millisecondsTo2001 + std::llround(seconds * 1000), Qt::UTC);
}

QVariant BinaryPropertyListReader::readASCII(qint64 offset) const
{
    const Span bytes = countedSpan(offset, 1);
    return QString::fromLatin1(data_.constData() + bytes.offset, bytes.count);
}

QVariant BinaryPropertyListReader::readUTF16(qint64 offset) const
{
    const Span units = countedSpan(offset, 2);
    QString text(units.count, Qt::Uninitialized);
    qFromBigEndian<char16_t>(data_.constData() + units.offset, units.count, text.data());
    return text;
}

quint8 BinaryPropertyListReader::byteAt(qint64 offset) const
{
    require(offset < offsetTable_, "object cut short", offset);
    return quint8(data_[offset]);
}

/// What follows a marker: its low four bits are the count, or 15 and the count stands behind it as an integer.
BinaryPropertyListReader::Span BinaryPropertyListReader::countedSpan(qint64 offset, qint64 unitSize) const
{
    Span span{offset + 1, byteAt(offset) & 0xf};
    if (span.count == 0xf) {
        require(byteAt(span.offset) >> 4 == 1, "count is no integer", span.offset);
        const QVariant count = readInteger(span.offset);
        span.offset += 1 + (qint64(1) << (byteAt(span.offset) & 0xf));
        require(count.typeId() == QMetaType::LongLong && count.toLongLong() >= 0, "impossible count", offset);
        span.count = count.toLongLong();
    }
    require(span.offset <= offsetTable_ && span.count <= (offsetTable_ - span.offset) / unitSize, "object cut short",
        offset);
    return span;
}

quint64 BinaryPropertyListReader::number(qint64 offset, qint64 size) const
{
    require(offset + size <= end_, "object cut short", offset);
    quint64 result = 0;
    for (qint64 i = 0; i < size; ++i)
        result = result << 8 | quint8(data_[offset + i]);
    return result;
}

void BinaryPropertyListReader::require(bool condition, const char *error, qint64 offset) const
{
    if (!condition)
        throw PropertyListDamage{QString::fromLatin1(error), offset};
}
