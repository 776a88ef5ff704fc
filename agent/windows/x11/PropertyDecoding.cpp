#include "agent/windows/x11/PropertyDecoding.h"

#include "agent/windows/x11/CompoundText.h"

#include <QStringDecoder>
#include <algorithm>
#include <cstring>

namespace {

constexpr quint8 itemsOf8Bits = 8, itemsOf32Bits = 32;

/// Up to a zero byte: whatever follows is another text, or padding.
QByteArrayView textAt(QByteArrayView bytes)
{
    const qsizetype end = bytes.indexOf('\0');
    return end < 0 ? bytes : bytes.first(end);
}

QString inOneLine(QString text)
{
    for (QChar &character : text) {
        if (character.category() == QChar::Other_Control || character == QChar::LineSeparator
            || character == QChar::ParagraphSeparator)
            character = u' ';
    }
    text = text.trimmed().first(std::min(text.trimmed().size(), longestTitle));
    if (!text.isEmpty() && text.back().isHighSurrogate())
        text.chop(1);
    return text;
}

/// Many programs write their own encoding into what is to be Latin-1, and that is mostly UTF-8.
QString decoded(QByteArrayView bytes)
{
    // Only what has been cut may end within a character.
    const bool isCut = bytes.size() >= longestTitle;
    const QByteArrayView whole = isCut ? withoutPartAtEnd(bytes) : bytes;
    return whole.isValidUtf8() ? QString::fromUtf8(whole) : QString::fromLatin1(bytes);
}

bool isText(const PropertyBytes &property)
{
    return property.format == itemsOf8Bits && property.type != XCB_ATOM_NONE;
}

} // namespace

QByteArrayView withoutPartAtEnd(QByteArrayView bytes)
{
    constexpr qsizetype mostContinuations = 3;
    qsizetype continuations = 0;
    const auto fromEnd = [bytes](qsizetype place) { return uchar(bytes[bytes.size() - 1 - place]); };
    while (continuations < std::min(mostContinuations, bytes.size()) && (fromEnd(continuations) & 0xc0) == 0x80)
        ++continuations;
    if (continuations == bytes.size())
        return bytes;
    const uchar lead = fromEnd(continuations);
    const qsizetype needed = lead >= 0xf8 ? 0 : lead >= 0xf0 ? 3 : lead >= 0xe0 ? 2 : lead >= 0xc0 ? 1 : 0;
    return needed > continuations ? bytes.chopped(continuations + 1) : bytes;
}

std::optional<QList<quint32>> numbersOf(const PropertyBytes &property, xcb_atom_t type)
{
    if (property.type != type || type == XCB_ATOM_NONE || property.format != itemsOf32Bits)
        return std::nullopt;
    QList<quint32> numbers(property.bytes.size() / qsizetype(sizeof(quint32)));
    if (!numbers.isEmpty())
        std::memcpy(numbers.data(), property.bytes.data(), size_t(numbers.size()) * sizeof(quint32));
    return numbers;
}

std::optional<quint32> numberOf(const PropertyBytes &property, xcb_atom_t type)
{
    const auto numbers = numbersOf(property, type);
    return numbers && !numbers->isEmpty() ? std::optional(numbers->first()) : std::nullopt;
}

std::optional<QMargins> marginsOf(const PropertyBytes &property)
{
    const auto sides = numbersOf(property, XCB_ATOM_CARDINAL);
    if (!sides || sides->size() != 4)
        return std::nullopt;
    if (std::any_of(sides->cbegin(), sides->cend(), [](quint32 side) { return side > widestMargin; }))
        return std::nullopt;
    return QMargins(int(sides->at(0)), int(sides->at(2)), int(sides->at(1)), int(sides->at(3)));
}

QString titleOf(const PropertyBytes &property, const TextTypes &types)
{
    if (!isText(property))
        return {};
    const QByteArrayView text = textAt(property.bytes);
    if (property.type == types.utf8)
        return inOneLine(QString::fromUtf8(withoutPartAtEnd(text)));
    // Some programs write UTF-8 there without saying so, as in what is to be Latin-1.
    const bool isCompound = property.type == types.compound && (text.contains('\x1b') || !text.isValidUtf8());
    return inOneLine(isCompound ? compoundText(text).value_or(QString()) : decoded(text));
}

std::optional<xcb_window_t> groupLeaderOf(const PropertyBytes &hints)
{
    constexpr quint32 tellsGroup = 64;
    constexpr qsizetype leaderPlace = 8;
    const auto items = numbersOf(hints, XCB_ATOM_WM_HINTS);
    if (!items || items->size() <= leaderPlace || (items->first() & tellsGroup) == 0)
        return std::nullopt;
    const xcb_window_t leader = items->at(leaderPlace);
    return leader == XCB_WINDOW_NONE ? std::nullopt : std::optional(leader);
}

ProgramClass programClassOf(const PropertyBytes &property)
{
    if (!isText(property) || property.type != XCB_ATOM_STRING)
        return {};
    const QByteArrayView instance = textAt(property.bytes);
    const QByteArrayView rest = property.bytes.sliced(std::min(property.bytes.size(), instance.size() + 1));
    return {inOneLine(decoded(instance)), inOneLine(decoded(textAt(rest)))};
}

std::optional<double> dotsPerInchOf(const PropertyBytes &preferences)
{
    if (!isText(preferences))
        return std::nullopt;
    for (const QByteArray &line : textAt(preferences.bytes).toByteArray().split('\n')) {
        const qsizetype colon = line.indexOf(':');
        if (colon < 0 || line.first(colon).trimmed() != "Xft.dpi")
            continue;
        bool isNumber = false;
        const double number = line.sliced(colon + 1).trimmed().toDouble(&isNumber);
        return isNumber && number > 0 ? std::optional(number) : std::nullopt;
    }
    return std::nullopt;
}
