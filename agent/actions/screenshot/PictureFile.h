#pragma once

#include "agent/actions/screenshot/NewFile.h"
#include "agent/actions/screenshot/PixelReading.h"

/// Writes the pixels as PNG; false, with errno set, where the file does not take them.
bool writePicture(NewFile &file, PixelReading &pixels, const PixelForm &form);
