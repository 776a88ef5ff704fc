#pragma once

#include <QSize>
#include <QString>
#include <vector>

/// Pixels row by row, each 0xAARRGGBB and not multiplied by its alpha. Empty without any.
struct OverlayPicture
{
    QSize size;
    std::vector<quint32> pixels;

    bool isEmpty() const { return pixels.empty(); }
    bool operator==(const OverlayPicture &) const = default;
};

/// What pictures are drawn with.
struct OverlayInk
{
    quint32 ground = 0, text = 0xffffff; ///< 0xRRGGBB
    double scale = 1; ///< of the monitor

    bool operator==(const OverlayInk &) const = default;
};

/// Which corners of a box are round; the others meet something.
enum class RoundCorners : quint8 { All, Lower, Upper };

/// Draws texts and icons. In its pictures a pixel belongs to the box, and is opaque, or does not, and is clear: they
/// need no compositor. Each is empty where there is no memory to draw in.
class OverlayPictures
{
public:
    virtual ~OverlayPictures() = default;

    /// Icon and title in one line of stripHeight(), elided at its end to stay within `longest` pixels. The icon may be
    /// empty: a sign for a window stands there then.
    virtual OverlayPicture strip(const OverlayInk &ink, const OverlayPicture &icon, const QString &title, int longest,
        RoundCorners corners) const = 0;
    /// In a square of that many pixels.
    virtual OverlayPicture digit(const OverlayInk &ink, int digit, int side) const = 0;
    virtual OverlayPicture icon(const OverlayInk &ink, const OverlayPicture &icon, int side) const = 0;
};

/// What draws. It is loaded by the first call, since it brings much into memory; null, and logged once, where it is not
/// there. It stays.
const OverlayPictures *overlayPictures();

/// The same, as its library has it.
using OverlayPicturesFunction = const OverlayPictures *(*)();
inline constexpr char overlayPicturesFunction[] = "lumarooOverlayPictures";
