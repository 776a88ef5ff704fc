#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

/// How a window's pixels lie in memory.
struct PixelForm
{
    uint32_t width = 0, height = 0, rowBytes = 0, pixelBits = 0;
    uint32_t red = 0, green = 0, blue = 0, alpha = 0; ///< the bits of a pixel; no alpha where all are opaque
    bool isLittleEndian = true;

    /// Whether each row of pixels fits into its bytes.
    bool isSound() const;
    size_t length() const { return size_t(rowBytes) * height; }
};

/// Reads rows of pixels as a picture file has them: a byte for each colour, which is not multiplied by the alpha that
/// follows it.
class PixelReading
{
public:
    /// The pixels outlive it, and are as many as the form says.
    PixelReading(const PixelForm &form, const uint8_t *pixels);

    /// Whether any pixel is not opaque: else the rows are without alpha.
    bool hasAlpha() const { return hasAlpha_; }
    /// From 0 on; valid until the next one is read.
    const uint8_t *row(uint32_t number);

private:
    uint32_t pixel(const uint8_t *place) const;
    bool isAnyTransparent() const;
    bool isOfBytes() const;
    void readBytes(const uint8_t *place);
    void readBits(const uint8_t *place);

    const PixelForm form_;
    const uint8_t *const pixels_;
    const bool hasAlpha_;
    std::vector<uint8_t> row_;
};
