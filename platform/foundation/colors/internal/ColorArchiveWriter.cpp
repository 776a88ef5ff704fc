#include "platform/foundation/colors/internal/ColorArchiveWriter.h"

#include "platform/foundation/colors/internal/ColorArchiveFormat.h"

#include <QHash>
#include <QtEndian>
#include <bit>

using namespace ColorArchive;

namespace {

class Writer
{
public:
    explicit Writer(ByteOrder byteOrder) : byteOrder_(byteOrder) { }
    QByteArray archive(const NSColor &color);

private:
    void putMark(qint8 mark) { bytes_ += char(mark); }
    template <typename Integer>
    void putFixed(Integer value);
    void putInteger(qint32 value);
    void putReal(float value);
    void putBytes(const QByteArray &bytes);
    void putSharedString(const QByteArray &string);
    void putClass(const QByteArray &name, qint32 version);
    void putCatalog(const QString &catalog);
    void putText(const QString &text);
    void putColor(const NSColor &color);
    void putComponents(const NSColor &color);
    void putNamedColor(const NSColor &color);

    ByteOrder byteOrder_;
    QByteArray bytes_;
    QHash<QByteArray, qint32> strings_;
    QHash<QByteArray, qint32> classes_;
    QHash<QString, qint32> catalogs_;
    qint32 nextObject_ = firstNumber;
};

QByteArray Writer::archive(const NSColor &color)
{
    putMark(streamerVersion);
    putBytes(byteOrder_ == ByteOrder::BigEndian ? bigEndianSignature : littleEndianSignature);
    putInteger(systemVersion);
    putSharedString(objectType);
    putColor(color);
    return bytes_;
}

template <typename Integer>
void Writer::putFixed(Integer value)
{
    const Integer ordered = byteOrder_ == ByteOrder::BigEndian ? qToBigEndian(value) : qToLittleEndian(value);
    bytes_.append(reinterpret_cast<const char *>(&ordered), sizeof ordered);
}

void Writer::putInteger(qint32 value)
{
    if (value > lastReservedMark && value <= 127) {
        putMark(qint8(value));
    } else if (value >= -32767 && value <= 32767) {
        putMark(shortInteger);
        putFixed(qint16(value));
    } else {
        putMark(longInteger);
        putFixed(value);
    }
}

// A real without a fraction goes as an integer; that costs -0 its sign, as it always did.
void Writer::putReal(float value)
{
    constexpr float integerLimit = 2147483648.0F;
    if (value > -integerLimit && value < integerLimit && float(qint32(value)) == value) {
        putInteger(qint32(value));
    } else {
        putMark(realMark);
        putFixed(std::bit_cast<quint32>(value));
    }
}

void Writer::putBytes(const QByteArray &bytes)
{
    putInteger(qint32(bytes.size()));
    bytes_ += bytes;
}

void Writer::putSharedString(const QByteArray &string)
{
    if (const auto known = strings_.constFind(string); known != strings_.cend()) {
        putInteger(*known);
        return;
    }
    strings_.insert(string, firstNumber + qint32(strings_.size()));
    putMark(newMark);
    putBytes(string);
}

void Writer::putClass(const QByteArray &name, qint32 version)
{
    if (const auto known = classes_.constFind(name); known != classes_.cend()) {
        putInteger(*known);
        return;
    }
    classes_.insert(name, nextObject_++);
    putMark(newMark);
    putSharedString(name);
    putInteger(version);
    if (name == rootClass)
        putMark(nilMark);
    else
        putClass(rootClass, rootClassVersion);
}

// A catalogue's name is one object for all its colours; the names of the colours are not shared.
void Writer::putCatalog(const QString &catalog)
{
    if (const auto known = catalogs_.constFind(catalog); known != catalogs_.cend()) {
        putInteger(*known);
        return;
    }
    catalogs_.insert(catalog, nextObject_);
    putText(catalog);
}

void Writer::putText(const QString &text)
{
    ++nextObject_;
    putMark(newMark);
    putClass(textClass, textClassVersion);
    putSharedString(textType);
    putBytes(text.toUtf8());
    putMark(endOfObject);
}

void Writer::putColor(const NSColor &color)
{
    ++nextObject_;
    putMark(newMark);
    putClass(colorClass, colorClassVersion);
    putSharedString(colorSpaceType);
    putMark(qint8(color.colorSpace()));
    if (color.colorSpace() == NSColorSpace::Catalog)
        putNamedColor(color);
    else
        putComponents(color);
    putMark(endOfObject);
}

void Writer::putComponents(const NSColor &color)
{
    putSharedString(QByteArray(color.componentCount(), 'f'));
    for (int index = 0; index < color.componentCount(); ++index)
        putReal(color.components()[index]);
}

void Writer::putNamedColor(const NSColor &color)
{
    putSharedString(namedColorType);
    putCatalog(color.catalogName());
    putText(color.colorName());
    putColor(*color.fallback());
}

bool hasTooManyFallbacks(const NSColor &color)
{
    int fallbacks = 0;
    for (NSColorRef fallback = color.fallback(); fallback; fallback = fallback->fallback()) {
        if (++fallbacks > maximumFallbacks)
            return true;
    }
    return false;
}

} // namespace

QByteArray writeColorArchive(const NSColor &color)
{
    return hasTooManyFallbacks(color) ? QByteArray() : Writer(color.byteOrder()).archive(color);
}
