#include "pane/SuppressedAlerts.h"

#include "KTXConstants.h"
#include "platform/foundation/preferences/CFPreferences.h"
#include "platform/foundation/propertylists/CFTypeID.h"

bool isSuppressed(const QString &suppressionKey)
{
    return CFBooleanGetValue(CFPreferencesCopyAppValue(suppressionKey, KTXLMAppID));
}
