#include "pane/KTXLumarooPreferencePane.h"

#include "KTXConstants.h"
#include "platform/foundation/preferences/NSUserDefaults.h"

namespace {

enum Tag { DelaySliderTag = 71, RateSliderTag = 72 };

} // namespace

/// The agent is not told: it goes by the new value when it next reads its settings.
void KTXLumarooPreferencePane::changeSlider(QObject *sender)
{
    QVariantMap domain = NSUserDefaults::standardUserDefaults()->persistentDomainForName(KTXLMAppID);
    if (tag(sender) == RateSliderTag)
        domain.insert(KTXRepeatRate, floatValue(sender));
    if (tag(sender) == DelaySliderTag)
        domain.insert(KTXInitialDelay, floatValue(sender));
    NSUserDefaults::standardUserDefaults()->setPersistentDomainForName(domain, KTXLMAppID);
}
