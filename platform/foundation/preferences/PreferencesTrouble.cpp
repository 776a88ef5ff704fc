#include "platform/foundation/preferences/PreferencesTrouble.h"

#include "platform/foundation/preferences/internal/PreferencesDomain.h"

QList<PreferencesTrouble> preferencesTroubles()
{
    QList<PreferencesTrouble> troubles;
    for (const PreferencesDomain *domain : PreferencesDomain::all()) {
        if (domain->trouble())
            troubles += *domain->trouble();
    }
    return troubles;
}

bool hasPreferencesTrouble(const QString &applicationID)
{
    const PreferencesDomain *domain = PreferencesDomain::named(applicationID);
    return domain && domain->trouble();
}

bool retryPreferences()
{
    for (PreferencesDomain *domain : PreferencesDomain::all()) {
        if (domain->trouble())
            domain->flush();
    }
    return preferencesTroubles().isEmpty();
}

QStringList preferencesFilesKeptAside()
{
    QStringList paths;
    for (const PreferencesDomain *domain : PreferencesDomain::all()) {
        const QString path = domain->newestFileKeptAside();
        if (!path.isEmpty())
            paths += path;
    }
    return paths;
}
