#include "platform/appkit/web/NSWorkspace.h"

#include "platform/appkit/web/internal/WebAddress.h"
#include "platform/foundation/processes/LaunchServices.h"
#include "platform/foundation/system/NSLog.h"

NSWorkspace *NSWorkspace::sharedWorkspace()
{
    static NSWorkspace workspace;
    return &workspace;
}

bool NSWorkspace::openURL(const QUrl &address)
{
    if (isWebAddress(address))
        return LSOpenCFURLRef(address) == noErr;
    NSLog(QStringLiteral("lumaroo: open: %1 is no web page and not opened").arg(address.toDisplayString()));
    return false;
}
