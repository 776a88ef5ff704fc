#include "platform/foundation/preferences/NSUserDefaults.h"

#include "platform/foundation/preferences/internal/PreferencesDomain.h"

NSUserDefaults *NSUserDefaults::standardUserDefaults()
{
    static NSUserDefaults defaults;
    return &defaults;
}

QVariantMap NSUserDefaults::persistentDomainForName(const QString &domainName) const
{
    PreferencesDomain *domain = PreferencesDomain::named(domainName);
    return domain ? domain->values() : QVariantMap();
}

void NSUserDefaults::setPersistentDomainForName(const QVariantMap &domain, const QString &domainName)
{
    if (PreferencesDomain *stored = PreferencesDomain::named(domainName))
        stored->replace(domain);
}
