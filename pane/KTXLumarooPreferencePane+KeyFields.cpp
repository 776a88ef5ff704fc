#include "pane/KTXLumarooPreferencePane.h"

#include "KeyCodeTranslator.h"
#include "platform/appkit/NSEvent.h"

// What this desktop adds to the fields of the hot key table.

/// With the activation modifiers held the user presses the hot key as it will be pressed later.
bool KTXLumarooPreferencePane::controlComesBeforeShortcuts(QWidget *, const NSEvent &event)
{
    return event.modifierFlags == hKeyModsToCGEventParams(modifierStateMask_);
}

QString KTXLumarooPreferencePane::controlReasonAgainstKey(QWidget *, const NSEvent &)
{
    return localized(QStringLiteral(
        "This key cannot be used. Press a letter, a digit, a sign, an arrow or a key of the number pad."));
}
