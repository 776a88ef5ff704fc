#pragma once

#include "platform/foundation/propertylists/PropertyListBounds.h"

#include <QVariant>
#include <vector>

/// Reads one binary property list. Throws PropertyListDamage.
class BinaryPropertyListReader
{
public:
    explicit BinaryPropertyListReader(const QByteArray &data) : data_(data) { }

    QVariant read();

private:
    enum class State : char { Unread, BeingRead, Read };
    struct Object
    {
        QVariant value;
        PropertyListBounds::Extent extent; ///< of the value as if nothing in it were shared
        int height = 0; ///< levels of containers in it
        State state = State::Unread;
    };
    struct Span
    {
        qint64 offset;
        qint64 count;
    };

    void readTrailer();
    const Object &object(quint64 index, int depth);
    void readObject(Object &object, qint64 offset, int depth);
    void readArray(Object &object, qint64 offset, int depth);
    void readDictionary(Object &object, qint64 offset, int depth);
    const Object &member(Object &container, qint64 referenceOffset, int depth);

    QVariant readSimple(qint64 offset) const;
    QVariant readInteger(qint64 offset) const;
    QVariant readReal(qint64 offset) const;
    QVariant readDate(qint64 offset) const;
    QVariant readASCII(qint64 offset) const;
    QVariant readUTF16(qint64 offset) const;

    quint8 byteAt(qint64 offset) const;
    Span countedSpan(qint64 offset, qint64 unitSize) const;
    quint64 number(qint64 offset, qint64 size) const;
    void require(bool condition, const char *error, qint64 offset) const;

    const QByteArray &data_;
    qint64 end_ = 0; ///< of the objects: where the trailer begins
    qint64 offsetTable_ = 0;
    int offsetSize_ = 0;
    int referenceSize_ = 0;
    quint64 top_ = 0;
    std::vector<Object> objects_;
};
