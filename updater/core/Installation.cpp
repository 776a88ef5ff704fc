#include "updater/core/Installation.h"

#include "platform/foundation/system/SystemCalls.h"
#include "updater/core/InstalledBundle.h"
#include "updater/core/UpdatePermission.h"
#include "updater/core/WaitingUpdate.h"
#include "updater/core/linux/BundleExchange.h"
#include "updater/core/linux/MappedFiles.h"
#include "updater/core/linux/SystemProblem.h"

#include <QDir>

namespace {

using Kind = UpdateProblem::Kind;

UpdateProblem changePlaces(const UpdatePlaces &places, const QString &newBundle)
{
    const QString unsecured = secureFileSystem(newBundle);
    if (!unsecured.isEmpty())
        return {Kind::Storage, unsecured};
    const QString notExchanged = exchangeFolders(newBundle, places.bundle());
    return notExchanged.isEmpty() ? UpdateProblem{} : UpdateProblem{Kind::Exchange, notExchanged};
}

UpdateProblem install(const UpdatePlaces &places, const ExpectedUpdate &expected)
{
    // The room that it takes on the disk is needed now.
    QDir(places.unpacked()).removeRecursively();
    const QString aside = newPrivateFolder(places.asideStart());
    if (aside.isEmpty())
        return {Kind::Storage, systemProblem("mkdtemp")};
    QString newBundle;
    UpdateProblem problem = unpackVerified(places, expected, aside, &newBundle);
    if (problem.isNone())
        problem = changePlaces(places, newBundle);
    if (!problem.isNone())
        QDir(aside).removeRecursively();
    return problem;
}

void removeOldBundles(const UpdatePlaces &places)
{
    for (const QString &aside : places.aside()) {
        if (!isMappedByAnyProcess(aside))
            QDir(aside).removeRecursively();
    }
}

UpdateProblem busy(const QString &bundle)
{
    return {Kind::Busy, QStringLiteral("another process is about to update %1").arg(bundle)};
}

} // namespace

Installation installWaitingUpdate(const QString &bundlePath)
{
    const UpdatePlaces places(InstalledBundle(bundlePath).path);
    if (places.bundle().isEmpty())
        return {};
    // Whoever had the lock before may have installed what waited until then.
    const FolderLock lock(places.folder());
    const std::optional<ExpectedUpdate> expected = waitingUpdate(places);
    if (!expected)
        return {};
    const UpdateProblem refusal = problemOfUpdating(bundlePath);
    if (!refusal.isNone())
        return {InstalledBundle(bundlePath).version, *expected, refusal};
    const UpdateProblem problem = lock ? install(places, *expected) : busy(places.bundle());
    if (problem.isNone() || isForGood(problem.kind))
        removeWaitingUpdate(places);
    if (problem.isNone())
        secureFileSystem(places.folder());
    return {InstalledBundle(bundlePath).version, *expected, problem};
}

UpdateProblem verifyWaitingUpdate(const QString &bundlePath)
{
    const UpdatePlaces places(InstalledBundle(bundlePath).path);
    const FolderLock lock(places.folder());
    const std::optional<ExpectedUpdate> expected = waitingUpdate(places);
    if (!expected)
        return {Kind::Archive, QStringLiteral("the update does not wait any more")};
    const UpdateProblem refusal = problemOfUpdating(bundlePath);
    if (!refusal.isNone())
        return refusal;
    const UpdateProblem problem = lock ? problemOfArchive(places, *expected) : busy(places.bundle());
    if (isForGood(problem.kind))
        removeWaitingUpdate(places);
    return problem;
}

bool waitForOtherUpdates(const QString &bundlePath, std::chrono::milliseconds longest)
{
    const QString folder = UpdatePlaces(InstalledBundle(bundlePath).path).folder();
    const auto end = systemCalls().monotonicTime() + longest;
    while (!FolderLock(folder)) {
        if (systemCalls().monotonicTime() >= end)
            return false;
        systemCalls().sleep(std::chrono::milliseconds(20));
    }
    return true;
}

void removeWhatIsOver(const QString &bundlePath)
{
    const UpdatePlaces places(InstalledBundle(bundlePath).path);
    const FolderLock lock(places.folder());
    if (places.bundle().isEmpty() || !problemOfUpdating(bundlePath).isNone() || !lock)
        return;
    removeOldBundles(places);
    if (!waitingUpdate(places))
        removeWaitingUpdate(places);
}
