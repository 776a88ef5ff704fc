#pragma once

#include "platform/foundation/Export.h"

#include <QByteArray>
#include <QString>
#include <array>
#include <memory>

class NSColor;
/// Colours are immutable objects with an identity: two that look alike need not be the same.
using NSColorRef = std::shared_ptr<const NSColor>;

/// The kinds of colour, numbered as archives tag them.
enum class NSColorSpace : quint8 {
    CalibratedRGB = 1,
    DeviceRGB = 2,
    CalibratedWhite = 3,
    DeviceWhite = 4,
    DeviceCMYK = 5,
    Catalog = 6
};

enum class ByteOrder : quint8 { LittleEndian, BigEndian };

/// A colour as plain numbers, in the space it was made in.
class LM_FOUNDATION NSColor
{
public:
    static NSColorRef colorWithCalibratedRGBA(float red, float green, float blue, float alpha);
    static NSColorRef colorWithDeviceRGBA(float red, float green, float blue, float alpha);
    static NSColorRef colorWithCalibratedWhiteAlpha(float white, float alpha);
    static NSColorRef colorWithDeviceWhiteAlpha(float white, float alpha);
    static NSColorRef colorWithDeviceCMYKA(float cyan, float magenta, float yellow, float black, float alpha);
    /// A named colour of a catalogue; always a new object, also for names that the system knows. Null without a
    /// fallback.
    static NSColorRef colorWithCatalogNameFallback(const QString &catalog, const QString &name, NSColorRef fallback);

    /// The system's own colours: one object each for the life of the process. Their look is SystemColors' business
    /// (appkit).
    static NSColorRef selectedTextBackgroundColor();
    static NSColorRef selectedControlColor();
    static NSColorRef blackColor();
    static NSColorRef whiteColor();
    static NSColorRef redColor();

    NSColorSpace colorSpace() const { return colorSpace_; }
    /// Components in the space's order, alpha last; unused places are 0. A catalogue colour has none.
    const std::array<float, 5> &components() const { return components_; }
    int componentCount() const;
    QString catalogName() const { return catalog_; }
    QString colorName() const { return name_; }
    NSColorRef fallback() const { return fallback_; }
    /// The byte order of the archive it was read from; little-endian for colours made here.
    ByteOrder byteOrder() const { return byteOrder_; }
    /// Red, green, blue and alpha for drawing, each from 0 to 1; a catalogue colour answers for its fallback.
    std::array<float, 4> rgba() const;

private:
    friend class ColorArchiveReader;
    friend class NSArchiver;
    NSColor() = default;
    static std::shared_ptr<NSColor> make(NSColorSpace colorSpace, const std::array<float, 5> &components);
    static std::shared_ptr<NSColor> makeNamed(const QString &catalog, const QString &name, NSColorRef fallback);

    NSColorSpace colorSpace_ = NSColorSpace::CalibratedWhite;
    std::array<float, 5> components_{};
    QString catalog_;
    QString name_;
    NSColorRef fallback_;
    ByteOrder byteOrder_ = ByteOrder::LittleEndian;
    QByteArray archive_; // what it was read from, where our own writing would differ
};
