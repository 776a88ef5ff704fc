#include "agent/actions/ActionTexts.h"

#include "platform/foundation/bundles/NSBundle.h"

QString actionText(const char *text)
{
    const QString key = QString::fromUtf8(text);
    return NSBundle::mainBundle()->localizedStringForKeyValueTable(key, {}, QStringLiteral("Actions"));
}
