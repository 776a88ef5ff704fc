#include "crashreporter/ReportParts.h"

#include "crashreporter/ProcessorSpeed.h"
#include "crashreporter/QBSystemInformation.h"
#include "platform/foundation/bundles/NSBundle.h"
#include "platform/foundation/preferences/NSUserDefaults.h"
#include "platform/foundation/propertylists/Description.h"

QString reportedMachine()
{
    const QString name = QBMachineName();
    return name.isNull() ? description(QVariant()) : name;
}

QString reportedProcessorSpeed()
{
    return processorSpeed(QBCountCores(), QBClockSpeed());
}

QString reportedPreferences(const NSBundle *bundle)
{
    const QString domain = bundle ? bundle->bundleIdentifier() : QString();
    return domain.isEmpty() ? description(QVariant())
                            : description(NSUserDefaults::standardUserDefaults()->persistentDomainForName(domain));
}
