#include "platform/foundation/colors/NSArchiver.h"
#include "platform/foundation/colors/internal/ColorArchiveWriter.h"

#include <cstdlib>

// Whatever can be read is written back as it was, and can be drawn.

namespace {

void expect(bool isTrue)
{
    if (!isTrue)
        std::abort();
}

void expectDrawable(const NSColor &color)
{
    for (const float component : color.rgba())
        expect(component >= 0 && component <= 1);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t size)
{
    const QByteArray data(reinterpret_cast<const char *>(bytes), qsizetype(size));
    const NSColorRef color = NSUnarchiver::unarchiveObjectWithData(data);
    if (!color)
        return 0;
    expectDrawable(*color);
    if (color == NSColor::selectedTextBackgroundColor())
        return 0;
    expect(NSArchiver::archivedDataWithRootObject(color) == data);
    // The form of our own is read as the same colour, too.
    const QByteArray own = writeColorArchive(*color);
    const NSColorRef again = NSUnarchiver::unarchiveObjectWithData(own);
    expect(again && writeColorArchive(*again) == own);
    return 0;
}
