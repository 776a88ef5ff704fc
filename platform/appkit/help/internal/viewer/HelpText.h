#pragma once

#include "platform/foundation/bundles/NSBundle.h"

/// A text of the viewer in the user's language; the host's bundle has them, as it has those of alerts.
inline QString helpText(const QString &english)
{
    return NSBundle::mainBundle()->localizedStringForKeyValueTable(english, QString(), QStringLiteral("HelpViewer"));
}
