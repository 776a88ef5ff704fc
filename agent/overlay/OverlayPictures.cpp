#include "agent/overlay/OverlayPictures.h"

#include "platform/foundation/system/LibraryBeside.h"
#include "platform/foundation/system/NSLog.h"

namespace {

const OverlayPictures *loadPictures()
{
    const LoadedFunction loaded = functionOfLibraryBeside(LUMAROO_PICTURES_LIBRARY, overlayPicturesFunction);
    if (loaded.address)
        return reinterpret_cast<OverlayPicturesFunction>(loaded.address)();
    NSLog(QStringLiteral("lumaroo: agent: titles and digits are not drawn: %1").arg(loaded.error));
    return nullptr;
}

} // namespace

const OverlayPictures *overlayPictures()
{
    static const OverlayPictures *const pictures = loadPictures();
    return pictures;
}
