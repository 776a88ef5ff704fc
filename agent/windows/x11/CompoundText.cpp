#include "agent/windows/x11/CompoundText.h"

#include "agent/windows/x11/PropertyDecoding.h"

#include <algorithm>
#include <iterator>

namespace {

enum class Encoding : quint8 { Latin1, Utf8 };

/// What stands within a text and is no character of it, and the encoding that follows.
const struct
{
    QByteArrayView bytes;
    Encoding encoding;
} marks[]{
    {"\x1b(B", Encoding::Latin1},
    {"\x1b-A", Encoding::Latin1},
    {"\x1b%@", Encoding::Latin1},
    {"\x1b%G", Encoding::Utf8},
    // Directions of writing: they begin and end.
    {"\x9b\x31]", Encoding::Latin1},
    {"\x9b\x32]", Encoding::Latin1},
    {"\x9b]", Encoding::Latin1},
};

constexpr char escape = '\x1b', direction = '\x9b';

/// How many bytes are characters.
qsizetype lengthOfText(QByteArrayView bytes, Encoding encoding)
{
    const auto end = std::find_if(bytes.begin(), bytes.end(),
        [encoding](char byte) { return byte == escape || (encoding == Encoding::Latin1 && byte == direction); });
    return end - bytes.begin();
}

std::optional<QString> decoded(QByteArrayView bytes, Encoding encoding, bool isLast)
{
    if (encoding == Encoding::Latin1)
        return QString::fromLatin1(bytes);
    const QByteArrayView whole = isLast ? withoutPartAtEnd(bytes) : bytes;
    return whole.isValidUtf8() ? std::optional(QString::fromUtf8(whole)) : std::nullopt;
}

} // namespace

std::optional<QString> compoundText(QByteArrayView bytes)
{
    QString text;
    Encoding encoding = Encoding::Latin1;
    for (;;) {
        const qsizetype length = lengthOfText(bytes, encoding);
        const auto part = decoded(bytes.first(length), encoding, length == bytes.size());
        if (!part)
            return std::nullopt;
        text += *part;
        bytes = bytes.sliced(length);
        const auto mark = std::find_if(
            std::begin(marks), std::end(marks), [&](const auto &one) { return bytes.startsWith(one.bytes); });
        const bool isCut = std::any_of(
            std::begin(marks), std::end(marks), [&](const auto &one) { return one.bytes.startsWith(bytes); });
        // No bytes are the beginning of every mark.
        if (isCut && (mark == std::end(marks) || bytes.isEmpty()))
            return text;
        if (mark == std::end(marks))
            return std::nullopt;
        encoding = mark->encoding;
        bytes = bytes.sliced(mark->bytes.size());
    }
}
