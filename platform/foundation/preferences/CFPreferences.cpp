#include "platform/foundation/preferences/CFPreferences.h"

#include "platform/foundation/preferences/internal/PreferencesDomain.h"
#include "platform/foundation/propertylists/CFTypeID.h"
#include "platform/foundation/propertylists/NSNumber.h"

namespace {

void report(bool *keyExistsAndHasValidFormat, bool valid)
{
    if (keyExistsAndHasValidFormat)
        *keyExistsAndHasValidFormat = valid;
}

} // namespace

QVariant CFPreferencesCopyAppValue(const QString &key, const QString &applicationID)
{
    PreferencesDomain *domain = PreferencesDomain::named(applicationID);
    return domain ? domain->value(key) : QVariant();
}

bool CFPreferencesGetAppBooleanValue(const QString &key, const QString &applicationID, bool *keyExistsAndHasValidFormat)
{
    const QVariant value = CFPreferencesCopyAppValue(key, applicationID);
    report(keyExistsAndHasValidFormat, CFGetTypeID(value) == CFBooleanGetTypeID());
    return CFBooleanGetValue(value);
}

int CFPreferencesGetAppIntegerValue(const QString &key, const QString &applicationID, bool *keyExistsAndHasValidFormat)
{
    const std::optional<int> integer = integerWithin32Bits(CFPreferencesCopyAppValue(key, applicationID));
    report(keyExistsAndHasValidFormat, integer.has_value());
    return integer.value_or(0);
}

void CFPreferencesSetAppValue(const QString &key, const QVariant &value, const QString &applicationID)
{
    if (PreferencesDomain *domain = PreferencesDomain::named(applicationID))
        domain->setValue(key, value);
}

void LMPreferencesTakeBackAppValue(const QString &key, const QString &applicationID)
{
    if (PreferencesDomain *domain = PreferencesDomain::named(applicationID))
        domain->takeBack(key);
}

bool CFPreferencesAppSynchronize(const QString &applicationID)
{
    PreferencesDomain *domain = PreferencesDomain::named(applicationID);
    return domain && domain->flush();
}
