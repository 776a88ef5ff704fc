#include "updater/CheckPermission.h"

#include "platform/foundation/bundles/NSBundle.h"
#include "updater/core/UpdatePermission.h"

UpdateProblem problemOfChecking(const NSBundle *bundle)
{
    const bool hasKey = !bundle->infoDictionary().value(QStringLiteral("SUPublicEDKey")).toString().isEmpty();
    return hasKey ? problemOfUpdating(bundle->bundlePath())
                  : UpdateProblem{UpdateProblem::Kind::NoKey, QStringLiteral("SUPublicEDKey of the bundle is empty")};
}
