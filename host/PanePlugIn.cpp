#include "host/PanePlugIn.h"

#include "host/linux/PlugInImage.h"
#include "platform/appkit/interface/NSPreferencePane.h"
#include "platform/foundation/Boundary.h"
#include "platform/foundation/bundles/NSBundle.h"
#include "platform/foundation/crashlogs/CrashLogWriter.h"

#include <QFileInfo>
#include <QHash>
#include <QPluginLoader>

namespace {

PaneFailureReport checkBundle(const QString &bundlePath)
{
    if (!QFileInfo(bundlePath).isDir())
        return {PaneFailure::Missing, bundlePath};
    const QVariantMap info = NSBundle::infoDictionaryOnDisk(bundlePath);
    if (info.isEmpty())
        return {PaneFailure::Damaged, bundlePath + QStringLiteral("/Contents/Info.plist")};
    const int neededVersion = info.value(QStringLiteral("LMPlatformVersion")).toInt();
    if (neededVersion > LUMAROO_PLATFORM_VERSION)
        return {PaneFailure::NewerPlatform, QStringLiteral("%1 > %2").arg(neededVersion).arg(LUMAROO_PLATFORM_VERSION)};
    return {};
}

PaneFailureReport checkExecutable(const QString &path)
{
    const PlugInImage image = readPlugInImage(path);
    if (image.kind == PlugInImage::Kind::NoImage)
        return {PaneFailure::Damaged, path};
    if (image.kind == PlugInImage::Kind::OtherMachine)
        return {PaneFailure::WrongArchitecture, image.machine};
    return {};
}

PaneFailureReport initializeOnce(NSPrincipalClass *principalClass)
{
    static QHash<NSPrincipalClass *, bool> initialized;
    if (!initialized.contains(principalClass))
        initialized[principalClass] = runAtBoundary("initialize", [principalClass] { principalClass->initialize(); });
    return initialized.value(principalClass)
        ? PaneFailureReport{}
        : PaneFailureReport{PaneFailure::InitialiserFailed, QStringLiteral("initialize")};
}

void loadCode(PanePlugIn &plugIn)
{
    const bool isNewInLogs = nameInCrashLogs(plugIn.bundle->bundleIdentifier());
    QPluginLoader loader(plugIn.bundle->executablePath());
    // Code that lacks a function of ours must fail here, not end the process when it first calls it.
    loader.setLoadHints(QLibrary::ResolveAllSymbolsHint | QLibrary::PreventUnloadHint);
    QObject *instance = loader.instance();
    if (isNewInLogs && !loader.isLoaded())
        doNotNameInCrashLogs(plugIn.bundle->bundleIdentifier());
    if (!instance) {
        plugIn.report = {PaneFailure::Damaged, loader.errorString()};
        return;
    }
    plugIn.bundle->setLoaded();
    plugIn.principalClass = qobject_cast<NSPrincipalClass *>(instance);
    plugIn.report = plugIn.principalClass ? initializeOnce(plugIn.principalClass)
                                          : PaneFailureReport{PaneFailure::NoPrincipalClass, loader.fileName()};
}

} // namespace

PanePlugIn loadPanePlugIn(const QString &bundlePath)
{
    PanePlugIn plugIn;
    plugIn.report = checkBundle(bundlePath);
    if (plugIn.report)
        return plugIn;
    plugIn.bundle = NSBundle::bundleWithPath(bundlePath);
    plugIn.report = plugIn.bundle ? checkExecutable(plugIn.bundle->executablePath())
                                  : PaneFailureReport{PaneFailure::Missing, bundlePath};
    if (!plugIn.report)
        loadCode(plugIn);
    return plugIn;
}
