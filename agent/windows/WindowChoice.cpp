#include "agent/windows/WindowChoice.h"

#include "KTXConstants.h"

WindowChoice windowChoice(const QVariantMap &settings)
{
    return {settings.value(KTXShowHidden).toBool(), settings.value(KTXExcludedApplications).toStringList()};
}
