#include "host/HostText.h"

#include "platform/foundation/bundles/NSBundle.h"

QString hostText(const QString &english)
{
    return NSBundle::mainBundle()->localizedStringForKeyValueTable(english, QString(), QStringLiteral("Settings"));
}
