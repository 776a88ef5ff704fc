#include "agent/overlay/x11/IconChoice.h"

#include <algorithm>

namespace {

constexpr quint32 greatestSide = 1024; // pixels
constexpr int mostIcons = 32;
constexpr quint32 headLength = 2; // width and height; lengths and places are in items of four bytes

/// One of a window's icons: where its pixels begin in the property.
struct IconPlace
{
    quint32 start, width, height;

    quint32 length() const { return width * height; }
    int side() const { return int(std::max(width, height)); }
};

std::vector<IconPlace> readPlaces(const ItemReader &read)
{
    std::vector<IconPlace> places;
    quint32 start = 0;
    while (places.size() < mostIcons) {
        const PropertyItems head = read(start, headLength);
        if (head.values.size() != headLength)
            break;
        const IconPlace place{start + headLength, head.values[0], head.values[1]};
        const bool isSize = place.width - 1 < greatestSide && place.height - 1 < greatestSide;
        if (!isSize || place.length() > head.rest)
            break;
        places.push_back(place);
        start = place.start + place.length();
    }
    return places;
}

bool isBetter(const IconPlace &one, const IconPlace &other, int side)
{
    const bool isEnough = one.side() >= side, isOtherEnough = other.side() >= side;
    if (isEnough != isOtherEnough)
        return isEnough;
    return isEnough ? one.side() < other.side() : one.side() > other.side();
}

} // namespace

OverlayPicture chosenIcon(const ItemReader &read, int side)
{
    const std::vector<IconPlace> places = readPlaces(read);
    const auto best = std::min_element(places.begin(), places.end(),
        [side](const IconPlace &one, const IconPlace &other) { return isBetter(one, other, side); });
    if (best == places.end())
        return {};
    OverlayPicture icon{QSize(int(best->width), int(best->height)), read(best->start, best->length()).values};
    // It may have been set anew meanwhile.
    return icon.pixels.size() == best->length() ? icon : OverlayPicture();
}
