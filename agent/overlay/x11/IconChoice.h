#pragma once

#include "agent/overlay/OverlayPictures.h"

#include <functional>
#include <vector>

// Which of the icons that a window has set is taken. Items in, a picture out: nothing here asks the server.

/// A part of a property whose items have four bytes.
struct PropertyItems
{
    std::vector<quint32> values;
    quint32 rest = 0; ///< how many follow
};

/// Reads at most `length` items from `start` on; none where the property is absent or of another kind. What it reads
/// may differ from one call to the next.
using ItemReader = std::function<PropertyItems(quint32 start, quint32 length)>;

/// The icon whose size is nearest to `side` from above, or else the greatest. Empty where there is none that can be
/// believed: icons are looked at up to the first size that cannot be.
OverlayPicture chosenIcon(const ItemReader &read, int side);
