#include "pane/KTXLumarooPreferencePane.h"

#include "KTXConstants.h"
#include "platform/foundation/colors/NSArchiver.h"

void KTXLumarooPreferencePane::updateColorInfo(QObject *sender)
{
    storeAndSync(KTXOverlayColor, NSArchiver::archivedDataWithRootObject(color(sender)));
    // The very object counts: a colour picked by hand that only looks like the system's can still be reset.
    setEnabled(defaultColorButton_, color(sender) != NSColor::selectedTextBackgroundColor());
}

void KTXLumarooPreferencePane::useSystemColor(QObject *)
{
    setColor(overlayColorWell_, NSColor::selectedTextBackgroundColor());
    updateColorInfo(overlayColorWell_);
    setEnabled(defaultColorButton_, false);
}
