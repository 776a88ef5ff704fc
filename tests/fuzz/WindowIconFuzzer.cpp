#include "agent/overlay/x11/IconChoice.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

// Whatever a program has set as its window's icon, and however often it sets it anew while it is read: the icon is
// empty or whole, within bounds, and taken from what stands there. Input: the wanted side, after how many reads the
// property loses its last half (0 for never), then its items.

namespace {

constexpr int greatestSide = 1024;
// A head for each icon that is looked at, and the pixels.
constexpr int mostReads = 33;

/// A property as the server hands it out.
class Property
{
public:
    Property(const uint8_t *bytes, size_t size, int readsToChange) : items_(size / 4), readsToChange_(readsToChange)
    {
        if (!items_.empty())
            std::memcpy(items_.data(), bytes, items_.size() * 4);
    }

    PropertyItems read(quint32 start, quint32 length)
    {
        if (++reads_ > mostReads)
            std::abort();
        if (reads_ == readsToChange_)
            items_.resize(items_.size() / 2);
        if (start > items_.size())
            return {};
        const auto from = items_.begin() + start;
        const auto to = from + std::min<ptrdiff_t>(length, items_.end() - from);
        return {{from, to}, quint32(items_.end() - to)};
    }
    bool contains(const std::vector<quint32> &pixels) const
    {
        return std::search(items_.begin(), items_.end(), pixels.begin(), pixels.end()) != items_.end();
    }

private:
    std::vector<quint32> items_;
    int readsToChange_;
    int reads_ = 0;
};

bool isWhole(const OverlayPicture &icon)
{
    return icon.size.width() > 0 && icon.size.height() > 0 && icon.size.width() <= greatestSide
        && icon.size.height() <= greatestSide
        && icon.pixels.size() == size_t(icon.size.width()) * size_t(icon.size.height());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t size)
{
    if (size < 2)
        return 0;
    Property property(bytes + 2, size - 2, bytes[1] % (mostReads + 1));
    const auto read = [&property](quint32 start, quint32 length) { return property.read(start, length); };
    const OverlayPicture icon = chosenIcon(read, bytes[0]);
    if (icon.pixels.empty())
        return 0;
    if (!isWhole(icon) || !property.contains(icon.pixels))
        std::abort();
    return 0;
}
