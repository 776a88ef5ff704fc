#include "platform/appkit/Relaunch.h"

#include "platform/appkit/NSApplication.h"
#include "platform/foundation/processes/NSTask.h"

void relaunchWithPane(const QString &paneBundlePath, const QString &launcher, LauncherLog log)
{
    const bool isVerbose = log == LauncherLog::Verbose;
    NSTask task;
    task.setLaunchPath(launcher);
    task.setArguments({paneBundlePath, isVerbose ? QStringLiteral("Yes") : QStringLiteral("No")});
    // It waits for the end of this input, which is the end of this process.
    task.setStandardInput(NSPipe::pipe());
    task.launch();
    NSApplication::sharedApplication()->terminate(nullptr);
}
