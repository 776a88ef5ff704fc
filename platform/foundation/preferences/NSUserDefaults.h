#pragma once

#include "platform/foundation/Export.h"

#include <QString>
#include <QVariantMap>

/// Posted on the process's own centre when a domain reads otherwise than before: after this process has set something,
/// and when a reading or a flush finds what others have written. The object is the domain's name, as a text.
inline const QString NSUserDefaultsDidChangeNotification = QStringLiteral("NSUserDefaultsDidChangeNotification");

/// Whole-domain access to the settings of CFPreferences.h.
class LM_FOUNDATION NSUserDefaults
{
public:
    static NSUserDefaults *standardUserDefaults();

    /// Every key and value of a domain as it stands now, this process's unflushed writes and removals included; empty
    /// when it does not exist.
    QVariantMap persistentDomainForName(const QString &domainName) const;

    /// Replaces the domain exactly and at once: keys absent from `domain` vanish, also those another process added
    /// meanwhile, and pending writes of this process that it supersedes are dropped. An equal domain is not written
    /// again. If the write fails, the whole replacement stays pending: reads show it, and the next flush tries it
    /// again.
    void setPersistentDomainForName(const QVariantMap &domain, const QString &domainName);
};
