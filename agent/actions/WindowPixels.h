#pragma once

#include "platform/foundation/system/SystemCalls.h"

#include <QSize>

/// The pixels of a window, row by row, in memory that another process can be given. Plain data but for that.
struct WindowPixels
{
    FileDescriptor memory;
    QSize size;
    quint32 rowBytes = 0;
    quint32 pixelBits = 0; ///< how much room each pixel takes: 8, 16, 24 or 32
    quint32 red = 0, green = 0, blue = 0; ///< the bits of a pixel
    quint32 alpha = 0; ///< none where all are opaque; the colours are multiplied by it
    bool isLittleEndian = true;
};

/// Why there is no picture of a window.
enum class PictureFailure : quint8 {
    NotPossible, ///< here at all
    Gone ///< the window was on screen no more
};
