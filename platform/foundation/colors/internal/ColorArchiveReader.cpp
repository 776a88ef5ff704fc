#include "platform/foundation/colors/internal/ColorArchiveReader.h"

#include "platform/foundation/colors/internal/ColorArchiveFormat.h"
#include "platform/foundation/colors/internal/ColorArchiveWriter.h"

#include <QStringDecoder>
#include <QtEndian>
#include <bit>

using namespace ColorArchive;

namespace {

bool isSystemColor(const NSColor &color)
{
    const NSColorRef system = NSColor::selectedTextBackgroundColor();
    return color.colorSpace() == NSColorSpace::Catalog && color.catalogName() == system->catalogName()
        && color.colorName() == system->colorName();
}

std::optional<QString> decoded(const QByteArray &utf8)
{
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString text = decoder.decode(utf8);
    if (decoder.hasError())
        return std::nullopt;
    return text;
}

} // namespace

NSColorRef ColorArchiveReader::read(const QByteArray &data)
{
    if (data.size() > maximumSize)
        return nullptr;
    const MutableColor color = ColorArchiveReader(data).readArchive();
    if (!color)
        return nullptr;
    if (isSystemColor(*color))
        return NSColor::selectedTextBackgroundColor();
    if (writeColorArchive(*color) != data)
        color->archive_ = data;
    return color;
}

ColorArchiveReader::MutableColor ColorArchiveReader::readArchive()
{
    if (!readHeader() || !takeSharedString(objectType))
        return nullptr;
    MutableColor color = takeColor(maximumFallbacks);
    return rest_.isEmpty() ? color : nullptr;
}

bool ColorArchiveReader::readHeader()
{
    if (!takeMark(streamerVersion))
        return false;
    const std::optional<QByteArray> signature = takeBytes();
    if (signature == bigEndianSignature)
        byteOrder_ = ByteOrder::BigEndian;
    else if (signature != littleEndianSignature)
        return false;
    return takeInteger(systemVersion);
}

std::optional<QByteArrayView> ColorArchiveReader::take(qsizetype count)
{
    if (count < 0 || count > rest_.size())
        return std::nullopt;
    const QByteArrayView taken = rest_.first(count);
    rest_ = rest_.sliced(count);
    return taken;
}

std::optional<qint8> ColorArchiveReader::takeMark()
{
    const auto byte = take(1);
    if (!byte)
        return std::nullopt;
    return qint8(byte->front());
}

bool ColorArchiveReader::takeMark(qint8 expected)
{
    return takeMark() == expected;
}

template <typename Integer>
std::optional<Integer> ColorArchiveReader::takeFixed()
{
    const auto bytes = take(sizeof(Integer));
    if (!bytes)
        return std::nullopt;
    return byteOrder_ == ByteOrder::BigEndian ? qFromBigEndian<Integer>(bytes->data())
                                              : qFromLittleEndian<Integer>(bytes->data());
}

std::optional<qint32> ColorArchiveReader::integerAfter(qint8 mark)
{
    if (mark == shortInteger)
        return takeFixed<qint16>();
    if (mark == longInteger)
        return takeFixed<qint32>();
    if (mark <= lastReservedMark)
        return std::nullopt;
    return mark;
}

std::optional<qint32> ColorArchiveReader::takeInteger()
{
    const auto mark = takeMark();
    return mark ? integerAfter(*mark) : std::nullopt;
}

bool ColorArchiveReader::takeInteger(qint32 expected)
{
    return takeInteger() == expected;
}

std::optional<std::size_t> ColorArchiveReader::indexAfter(qint8 mark, std::size_t tableSize)
{
    const auto number = integerAfter(mark);
    if (!number)
        return std::nullopt;
    const qint64 index = qint64(*number) - firstNumber;
    return index >= 0 && index < qint64(tableSize) ? std::optional(std::size_t(index)) : std::nullopt;
}

std::optional<float> ColorArchiveReader::takeReal()
{
    const auto mark = takeMark();
    if (!mark)
        return std::nullopt;
    if (*mark == realMark) {
        const auto bits = takeFixed<quint32>();
        return bits ? std::optional(std::bit_cast<float>(*bits)) : std::nullopt;
    }
    const auto whole = integerAfter(*mark);
    return whole ? std::optional(float(*whole)) : std::nullopt;
}

std::optional<QByteArray> ColorArchiveReader::takeBytes()
{
    const auto length = takeInteger();
    const auto bytes = length ? take(*length) : std::nullopt;
    if (!bytes)
        return std::nullopt;
    return bytes->toByteArray();
}

std::optional<QByteArray> ColorArchiveReader::takeSharedString()
{
    const auto mark = takeMark();
    if (!mark)
        return std::nullopt;
    if (*mark == newMark) {
        auto string = takeBytes();
        if (string)
            strings_.push_back(*string);
        return string;
    }
    const auto index = indexAfter(*mark, strings_.size());
    return index ? std::optional(strings_[*index]) : std::nullopt;
}

bool ColorArchiveReader::takeSharedString(const char *expected)
{
    return takeSharedString() == expected;
}

const ColorArchiveReader::Object *ColorArchiveReader::objectNumbered(qint8 mark)
{
    const auto index = indexAfter(mark, objects_.size());
    return index ? &objects_[*index] : nullptr;
}

bool ColorArchiveReader::takeClass(const char *name, qint32 version)
{
    const auto mark = takeMark();
    if (!mark)
        return false;
    if (*mark != newMark) {
        const Object *known = objectNumbered(*mark);
        return known && known->kind == Object::Kind::Class && known->className == name;
    }
    objects_.push_back({Object::Kind::Class, name, {}});
    if (!takeSharedString(name) || !takeInteger(version))
        return false;
    return qstrcmp(name, rootClass) == 0 ? takeMark(nilMark) : takeClass(rootClass, rootClassVersion);
}

std::optional<QString> ColorArchiveReader::takeText()
{
    const auto mark = takeMark();
    if (!mark)
        return std::nullopt;
    if (*mark == newMark)
        return takeNewText();
    const Object *known = objectNumbered(*mark);
    if (!known || known->kind != Object::Kind::Text)
        return std::nullopt;
    return known->text;
}

std::optional<QString> ColorArchiveReader::takeNewText()
{
    const std::size_t number = objects_.size();
    objects_.push_back({Object::Kind::Text, {}, {}});
    if (!takeClass(textClass, textClassVersion) || !takeSharedString(textType))
        return std::nullopt;
    const auto utf8 = takeBytes();
    const auto text = utf8 ? decoded(*utf8) : std::nullopt;
    if (!text || !takeMark(endOfObject))
        return std::nullopt;
    objects_[number].text = *text;
    return text;
}

ColorArchiveReader::MutableColor ColorArchiveReader::takeColor(int fallbacksLeft)
{
    // Only a colour around this one could have been met before, and no colour is its own fallback.
    if (fallbacksLeft < 0 || !takeMark(newMark))
        return nullptr;
    objects_.push_back({Object::Kind::Color, {}, {}});
    if (!takeClass(colorClass, colorClassVersion) || !takeSharedString(colorSpaceType))
        return nullptr;
    const MutableColor color = takeColorContent(fallbacksLeft);
    if (!color || !takeMark(endOfObject))
        return nullptr;
    color->byteOrder_ = byteOrder_;
    return color;
}

ColorArchiveReader::MutableColor ColorArchiveReader::takeColorContent(int fallbacksLeft)
{
    const auto tag = takeMark();
    if (!tag || *tag < qint8(NSColorSpace::CalibratedRGB) || *tag > qint8(NSColorSpace::Catalog))
        return nullptr;
    const auto colorSpace = NSColorSpace(*tag);
    return colorSpace == NSColorSpace::Catalog ? takeNamedColor(fallbacksLeft) : takeComponents(colorSpace);
}

ColorArchiveReader::MutableColor ColorArchiveReader::takeComponents(NSColorSpace colorSpace)
{
    MutableColor color = NSColor::make(colorSpace, {});
    if (!takeSharedString(QByteArray(color->componentCount(), 'f').constData()))
        return nullptr;
    for (int index = 0; index < color->componentCount(); ++index) {
        const auto component = takeReal();
        if (!component)
            return nullptr;
        color->components_[index] = *component;
    }
    return color;
}

ColorArchiveReader::MutableColor ColorArchiveReader::takeNamedColor(int fallbacksLeft)
{
    if (!takeSharedString(namedColorType))
        return nullptr;
    const auto catalog = takeText();
    const auto name = catalog ? takeText() : std::nullopt;
    if (!name)
        return nullptr;
    const MutableColor fallback = takeColor(fallbacksLeft - 1);
    return fallback ? NSColor::makeNamed(*catalog, *name, fallback) : nullptr;
}
