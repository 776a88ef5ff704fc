#include "host/WaitingUpdates.h"

#include "platform/foundation/bundles/BesideBundle.h"
#include "platform/foundation/system/NSLog.h"

#include <QFileInfo>
#include <QProcess>

namespace {

void runInstaller(const QString &program, const QString &bundle, std::chrono::milliseconds longest)
{
    QProcess installer;
    installer.setProcessChannelMode(QProcess::ForwardedChannels);
    installer.setStandardInputFile(QProcess::nullDevice());
    installer.start(program, {bundle});
    if (installer.waitForFinished(int(longest.count())))
        return;
    NSLog(QStringLiteral("lumaroo: %1: %2; the pane is opened as it is").arg(program, installer.errorString()));
    installer.kill();
    installer.waitForFinished(int(longest.count()));
}

} // namespace

void finishUpdates(const QStringList &bundles, std::chrono::milliseconds longest)
{
    for (const QString &bundle : bundles) {
        const QString program = bundle + QStringLiteral("/Contents/Resources/installer");
        if (isAnythingBesideBundle(bundle) && QFileInfo(program).isExecutable())
            runInstaller(program, bundle, longest);
    }
}
