#include "pane/KTXLumarooPreferencePane.h"

#include "KTXConstants.h"
#include "KTXOptions.h"
#include "platform/foundation/preferences/NSUserDefaults.h"

/// The agent is not told: it goes by the new value when it next reads its settings.
void KTXLumarooPreferencePane::changeSlider(QObject *sender)
{
    QVariantMap domain = NSUserDefaults::standardUserDefaults()->persistentDomainForName(KTXLMAppID);
    if (tag(sender) == KTXRateSliderTag)
        domain.insert(KTXRepeatRate, floatValue(sender));
    if (tag(sender) == KTXDelaySliderTag)
        domain.insert(KTXInitialDelay, floatValue(sender));
    NSUserDefaults::standardUserDefaults()->setPersistentDomainForName(domain, KTXLMAppID);
}
