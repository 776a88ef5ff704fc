#include "agent/actions/screenshot/PictureFile.h"

#include <cerrno>
#include <csetjmp>
#include <png.h>

namespace {

// Windows have few colours and many equal rows: more would cost much time for little.
constexpr int compressionLevel = 3;
constexpr int bitsOfAColor = 8;

void writeBytes(png_structp png, png_bytep bytes, png_size_t size)
{
    if (!static_cast<NewFile *>(png_get_io_ptr(png))->write(bytes, size))
        png_error(png, "");
}

void flush(png_structp) { }

/// With the errno of what failed.
[[noreturn]] void endWriting(png_structp png, png_const_charp)
{
    png_longjmp(png, 1);
}

void warnNobody(png_structp, png_const_charp) { }

struct Writing
{
    Writing() : png(png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, endWriting, warnNobody))
    {
        if (png)
            info = png_create_info_struct(png);
    }
    ~Writing() { png_destroy_write_struct(&png, &info); }
    Writing(const Writing &) = delete;
    Writing &operator=(const Writing &) = delete;

    png_structp png;
    png_infop info = nullptr;
};

void writeAll(const Writing &writing, PixelReading &pixels, const PixelForm &form)
{
    png_set_compression_level(writing.png, compressionLevel);
    png_set_filter(writing.png, PNG_FILTER_TYPE_BASE, PNG_FILTER_SUB | PNG_FILTER_UP);
    png_set_IHDR(writing.png, writing.info, form.width, form.height, bitsOfAColor,
        pixels.hasAlpha() ? PNG_COLOR_TYPE_RGB_ALPHA : PNG_COLOR_TYPE_RGB, PNG_INTERLACE_NONE,
        PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    png_set_sRGB(writing.png, writing.info, PNG_sRGB_INTENT_PERCEPTUAL);
    png_write_info(writing.png, writing.info);
    for (uint32_t row = 0; row < form.height; ++row)
        png_write_row(writing.png, pixels.row(row));
    png_write_end(writing.png, writing.info);
}

} // namespace

bool writePicture(NewFile &file, PixelReading &pixels, const PixelForm &form)
{
    const Writing writing;
    if (!writing.png || !writing.info) {
        errno = ENOMEM;
        return false;
    }
    // Nothing between here and the jump has to be destroyed.
    if (setjmp(png_jmpbuf(writing.png)) != 0)
        return false;
    png_set_write_fn(writing.png, &file, writeBytes, flush);
    writeAll(writing, pixels, form);
    return true;
}
