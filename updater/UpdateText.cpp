#include "updater/UpdateText.h"

#include "platform/foundation/bundles/NSBundle.h"

QString updateText(const NSBundle *bundle, const QString &english)
{
    return bundle->localizedStringForKeyValueTable(english, {}, QStringLiteral("Updates"));
}
