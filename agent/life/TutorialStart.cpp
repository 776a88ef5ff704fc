#include "agent/life/TutorialStart.h"

#include "platform/foundation/bundles/NSBundle.h"
#include "platform/foundation/processes/LaunchServices.h"
#include "platform/foundation/system/NSLog.h"

#include <QDir>

namespace {

/// Beside the agent's own.
QString tutorialBundle()
{
    return QDir::cleanPath(NSBundle::mainBundle()->bundlePath() + QStringLiteral("/../LumarooTutorial.app"));
}

} // namespace

bool startTutorial()
{
    FSRef application;
    ProcessSerialNumber process;
    OSStatus status = FSPathMakeRef(tutorialBundle(), &application);
    if (status == noErr) {
        const LSApplicationParameters parameters{0, kLSLaunchAsync, &application};
        status = LSOpenApplication(&parameters, &process);
    }
    if (status != noErr)
        NSLog(QStringLiteral("lumaroo: agent: the tutorial %1 does not start (%2)").arg(tutorialBundle()).arg(status));
    return status == noErr;
}
