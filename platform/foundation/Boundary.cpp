#include "platform/foundation/Boundary.h"

#include "platform/foundation/NSException.h"
#include "platform/foundation/system/NSLog.h"

void logCaughtException(const char *place)
{
    const QString prefix = QStringLiteral("lumaroo: %1: ").arg(QLatin1StringView(place));
    try {
        throw;
    } catch (const NSException &exception) {
        NSLog(prefix + QStringLiteral("%1: %2").arg(exception.name(), exception.reason()));
    } catch (const std::exception &exception) {
        NSLog(prefix + QString::fromUtf8(exception.what()));
    } catch (...) {
        NSLog(prefix + QStringLiteral("unknown exception"));
    }
}
