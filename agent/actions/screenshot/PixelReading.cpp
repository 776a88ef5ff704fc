#include "agent/actions/screenshot/PixelReading.h"

#include <algorithm>
#include <bit>

namespace {

/// A channel's bits as a byte.
uint8_t channel(uint32_t pixel, uint32_t mask)
{
    if (mask == 0)
        return 0;
    const uint32_t most = mask >> std::countr_zero(mask);
    const uint32_t value = (pixel & mask) >> std::countr_zero(mask);
    return most == 0xff ? uint8_t(value) : uint8_t((uint64_t(value) * 0xff + most / 2) / most);
}

uint8_t withoutAlpha(uint8_t color, uint8_t alpha)
{
    return alpha == 0 ? 0 : uint8_t(std::min(0xff, (color * 0xff + alpha / 2) / alpha));
}

} // namespace

bool PixelForm::isSound() const
{
    const bool isPixel = pixelBits == 8 || pixelBits == 16 || pixelBits == 24 || pixelBits == 32;
    return isPixel && width > 0 && height > 0 && uint64_t(width) * pixelBits <= uint64_t(rowBytes) * 8;
}

PixelReading::PixelReading(const PixelForm &form, const uint8_t *pixels)
    : form_(form), pixels_(pixels), hasAlpha_(isAnyTransparent()), row_(size_t(form.width) * (hasAlpha_ ? 4 : 3))
{
}

uint32_t PixelReading::pixel(const uint8_t *place) const
{
    const uint32_t bytes = form_.pixelBits / 8;
    uint32_t value = 0;
    for (uint32_t byte = 0; byte < bytes; ++byte)
        value |= uint32_t(place[byte]) << 8 * (form_.isLittleEndian ? byte : bytes - 1 - byte);
    return value;
}

bool PixelReading::isAnyTransparent() const
{
    for (uint32_t y = 0; form_.alpha != 0 && y < form_.height; ++y) {
        for (uint32_t x = 0; x < form_.width; ++x) {
            const uint32_t value = pixel(pixels_ + size_t(y) * form_.rowBytes + size_t(x) * form_.pixelBits / 8);
            if ((value & form_.alpha) != form_.alpha)
                return true;
        }
    }
    return false;
}

/// As nearly all servers have it.
bool PixelReading::isOfBytes() const
{
    return form_.pixelBits == 32 && form_.isLittleEndian && form_.red == 0xff0000 && form_.green == 0xff00
        && form_.blue == 0xff && !hasAlpha_;
}

const uint8_t *PixelReading::row(uint32_t number)
{
    const uint8_t *place = pixels_ + size_t(number) * form_.rowBytes;
    if (isOfBytes())
        readBytes(place);
    else
        readBits(place);
    return row_.data();
}

void PixelReading::readBytes(const uint8_t *place)
{
    uint8_t *out = row_.data();
    for (uint32_t x = 0; x < form_.width; ++x, place += 4, out += 3) {
        out[0] = place[2];
        out[1] = place[1];
        out[2] = place[0];
    }
}

void PixelReading::readBits(const uint8_t *place)
{
    uint8_t *out = row_.data();
    for (uint32_t x = 0; x < form_.width; ++x, place += form_.pixelBits / 8) {
        const uint32_t value = pixel(place);
        const uint8_t alpha = hasAlpha_ ? channel(value, form_.alpha) : 0xff;
        for (const uint32_t mask : {form_.red, form_.green, form_.blue}) {
            const uint8_t color = channel(value, mask);
            *out++ = alpha == 0xff ? color : withoutAlpha(color, alpha);
        }
        if (hasAlpha_)
            *out++ = alpha;
    }
}
