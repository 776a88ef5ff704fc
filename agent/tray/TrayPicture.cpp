#include "agent/tray/TrayPicture.h"

#include <QRect>
#include <QtEndian>
#include <array>

namespace {

/// A part of the icon, in 24ths of its size.
struct Part
{
    QRect place;
    quint32 color; ///< opaque
    quint32 colorWhenOff;
};

/// Two windows, and the one in front has the frame.
constexpr std::array parts{
    Part{{1, 2, 14, 11}, 0xff5a6ff0, 0xff8a8d99},
    Part{{3, 6, 10, 5}, 0xffccd3ff, 0xffc3c5cc},
    Part{{7, 8, 16, 14}, 0xffffb449, 0xff6b6e79},
    Part{{9, 10, 12, 10}, 0xffffffff, 0xffe4e5e9},
    Part{{9, 10, 12, 2}, 0xff2b2f86, 0xff8a8d99},
};

quint32 colorAt(int x, int y, bool isOn)
{
    quint32 color = 0;
    for (const Part &part : parts) {
        if (part.place.contains(x, y))
            color = isOn ? part.color : part.colorWhenOff;
    }
    return color;
}

} // namespace

QByteArray trayPicture(int size, bool isOn)
{
    QByteArray pixels(qsizetype(size) * size * 4, Qt::Uninitialized);
    char *pixel = pixels.data();
    for (int y = 0; y < size; ++y) {
        for (int x = 0; x < size; ++x, pixel += 4)
            qToBigEndian(colorAt(x * 24 / size, y * 24 / size, isOn), pixel);
    }
    return pixels;
}
