#pragma once

#include "platform/foundation/colors/NSColor.h"

#include <QByteArray>
#include <QByteArrayView>
#include <memory>
#include <optional>
#include <vector>

/// Reads one colour from its sequential archive. Trusts nothing: the first thing that is not as it must be ends it.
class ColorArchiveReader
{
public:
    /// The colour, or null.
    static NSColorRef read(const QByteArray &data);

private:
    using MutableColor = std::shared_ptr<NSColor>;

    struct Object
    {
        enum class Kind : quint8 { Color, Class, Text };
        Kind kind;
        QByteArray className;
        QString text;
    };

    explicit ColorArchiveReader(QByteArrayView data) : rest_(data) { }
    MutableColor readArchive();
    bool readHeader();

    std::optional<QByteArrayView> take(qsizetype count);
    std::optional<qint8> takeMark();
    bool takeMark(qint8 expected);
    template <typename Integer>
    std::optional<Integer> takeFixed();
    std::optional<qint32> integerAfter(qint8 mark);
    std::optional<qint32> takeInteger();
    bool takeInteger(qint32 expected);
    /// The place in a table that the number starting with `mark` stands for.
    std::optional<std::size_t> indexAfter(qint8 mark, std::size_t tableSize);
    std::optional<float> takeReal();
    std::optional<QByteArray> takeBytes();
    std::optional<QByteArray> takeSharedString();
    bool takeSharedString(const char *expected);

    const Object *objectNumbered(qint8 mark);
    bool takeClass(const char *name, qint32 version);
    std::optional<QString> takeText();
    std::optional<QString> takeNewText();
    MutableColor takeColor(int fallbacksLeft);
    MutableColor takeColorContent(int fallbacksLeft);
    MutableColor takeComponents(NSColorSpace colorSpace);
    MutableColor takeNamedColor(int fallbacksLeft);

    QByteArrayView rest_;
    ByteOrder byteOrder_ = ByteOrder::LittleEndian;
    std::vector<QByteArray> strings_;
    std::vector<Object> objects_;
};
