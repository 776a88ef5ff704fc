#include "updater/core/UpdateChoice.h"

#include "updater/core/OperatingSystem.h"
#include "updater/core/Versions.h"

namespace {

bool runsHere(const AppcastItem &item, const UpdateCircumstances &circumstances)
{
    const QString &minimum = item.minimumSystemVersion;
    const bool isSystemNewEnough =
        minimum.isEmpty() || (isBundleVersion(minimum) && !isNewer(minimum, circumstances.systemVersion));
    return isForThisSystem(item.operatingSystem) && isSystemNewEnough
        && item.minimumPlatformVersion <= circumstances.platformVersion
        && (item.channel.isEmpty() || circumstances.channels.contains(item.channel));
}

bool isSkipped(const AppcastItem &item, const UpdateCircumstances &circumstances)
{
    return !circumstances.isAskedByUser && !circumstances.skippedVersion.isEmpty()
        && !isNewer(item.version, circumstances.skippedVersion) && !isCriticalFor(item, circumstances.installedVersion);
}

QString highestOf(const QList<AppcastItem> &items)
{
    QString highest;
    for (const AppcastItem &item : items)
        highest = isNewer(item.version, highest) ? item.version : highest;
    return highest;
}

std::optional<AppcastItem> newestFor(const QList<AppcastItem> &items, const UpdateCircumstances &circumstances)
{
    std::optional<AppcastItem> newest;
    for (const AppcastItem &item : items) {
        const QString &toBeat = newest ? newest->version : circumstances.installedVersion;
        if (isNewer(item.version, toBeat) && runsHere(item, circumstances))
            newest = item;
    }
    return newest;
}

} // namespace

bool isCriticalFor(const AppcastItem &item, const QString &installedVersion)
{
    return item.isCritical && (item.criticalBelow.isEmpty() || isNewer(item.criticalBelow, installedVersion));
}

bool isInformationalFor(const AppcastItem &item, const QString &installedVersion)
{
    const bool isForAll =
        item.archive.isEmpty() || (item.informationalFor.isEmpty() && item.informationalBelow.isEmpty());
    return item.isInformational
        && (isForAll || item.informationalFor.contains(installedVersion)
            || isNewer(item.informationalBelow, installedVersion));
}

UpdateChoice chooseUpdate(const QList<AppcastItem> &items, const UpdateCircumstances &circumstances)
{
    const QString highest = highestOf(items);
    if (isNewer(circumstances.highestVersionSeen, highest))
        return {std::nullopt, circumstances.highestVersionSeen, true};
    std::optional<AppcastItem> newest = newestFor(items, circumstances);
    if (newest && isSkipped(*newest, circumstances))
        newest.reset();
    return {newest, highest, false};
}
