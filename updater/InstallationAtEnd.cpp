#include "updater/InstallationAtEnd.h"

#include "platform/foundation/Boundary.h"
#include "platform/foundation/bundles/NSBundle.h"
#include "platform/foundation/processes/NSTask.h"

bool installWhenThisEnds(const NSBundle *bundle)
{
    return runAtBoundary("installer", [bundle] {
        NSTask task;
        task.setLaunchPath(bundle->pathForResourceOfType(QStringLiteral("installer"), {}));
        task.setArguments({QStringLiteral("--after-input"), bundle->bundlePath()});
        task.setStandardInput(NSPipe::pipe());
        task.launch();
    });
}
