#include "updater/core/WaitingUpdate.h"

#include "updater/core/Appcast.h"
#include "updater/core/InstalledBundle.h"
#include "updater/core/Signature.h"
#include "updater/core/UpdateArchive.h"
#include "updater/core/linux/BundleExchange.h"
#include "updater/core/linux/SealedFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace {

using Kind = UpdateProblem::Kind;

UpdateProblem problem(Kind kind, const QString &detail)
{
    return detail.isEmpty() ? UpdateProblem{} : UpdateProblem{kind, detail};
}

/// An archive that is gone does not come back; what else keeps one from being read is the machine's trouble of now.
Kind kindOfUnreadable(const QString &archive)
{
    const QFileInfo file(archive);
    const bool isThere = file.isFile() && !file.isSymLink() && file.size() > 0 && file.size() <= largestUpdateArchive;
    return isThere ? Kind::Storage : Kind::Archive;
}

UpdateProblem problemOfArchive(const InstalledBundle &installed, const SealedFile &archive, const UpdatePlaces &places,
    const ExpectedUpdate &expected)
{
    if (installed.publicKey.isEmpty())
        return {Kind::NoKey, QStringLiteral("%1 names no key for updates").arg(installed.path)};
    if (!archive)
        return {kindOfUnreadable(places.archive()), archive.problem()};
    const bool isGenuine = archive.bytes().size() == expected.length
        && isSignedBy(installed.publicKey, archive.bytes(), expected.signature);
    return isGenuine ? UpdateProblem{}
                     : UpdateProblem{Kind::Signature, QStringLiteral("the archive is not the one that was signed")};
}

UpdateProblem writeRecord(const UpdatePlaces &places, const ExpectedUpdate &expected)
{
    // The record makes the rest count: that has to be on the disk before it.
    const QString unsecured = secureFileSystem(places.waiting());
    if (!unsecured.isEmpty())
        return {Kind::Storage, unsecured};
    QSaveFile file(places.record());
    const QByteArray bytes = recordOfWaitingUpdate(expected);
    const bool isWritten = file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
    return problem(Kind::Storage, isWritten ? QString() : file.errorString());
}

UpdateProblem prepare(const UpdatePlaces &places, const ExpectedUpdate &expected)
{
    const QString notMade = makePrivateFolder(places.unpacked());
    if (!notMade.isEmpty())
        return {Kind::Storage, notMade};
    QString bundle;
    const UpdateProblem unusable = unpackVerified(places, expected, places.unpacked(), &bundle);
    return unusable.isNone() ? writeRecord(places, expected) : unusable;
}

} // namespace

UpdateProblem beginWaitingUpdate(const UpdatePlaces &places)
{
    removeWaitingUpdate(places);
    return problem(Kind::Storage, makePrivateFolder(places.waiting()));
}

UpdateProblem completeWaitingUpdate(const UpdatePlaces &places, const ExpectedUpdate &expected)
{
    const UpdateProblem unusable = prepare(places, expected);
    if (!unusable.isNone())
        removeWaitingUpdate(places);
    return unusable;
}

void removeWaitingUpdate(const UpdatePlaces &places)
{
    // Without its record it is none any more, however far the rest comes.
    QFile::remove(places.record());
    QDir(places.waiting()).removeRecursively();
}

UpdateProblem problemOfArchive(const UpdatePlaces &places, const ExpectedUpdate &expected)
{
    const SealedFile archive = SealedFile::copyOf(places.archive(), largestUpdateArchive);
    return problemOfArchive(InstalledBundle(places.bundle()), archive, places, expected);
}

UpdateProblem unpackVerified(
    const UpdatePlaces &places, const ExpectedUpdate &expected, const QString &into, QString *bundle)
{
    const InstalledBundle installed(places.bundle());
    const SealedFile archive = SealedFile::copyOf(places.archive(), largestUpdateArchive);
    const UpdateProblem unusable = problemOfArchive(installed, archive, places, expected);
    if (!unusable.isNone())
        return unusable;
    const ArchiveListing listing = listUpdateArchive(archive.bytes());
    if (!listing)
        return {Kind::Archive, listing.error};
    // There is nothing wrong with the archive, so it is the disk.
    const QString notUnpacked = unpackUpdateArchive(archive.bytes(), into);
    if (!notUnpacked.isEmpty())
        return {Kind::Storage, notUnpacked};
    *bundle = into + u'/' + listing.bundle;
    return problemOfBundle(
        *bundle, {installed.identifier, expected.version, installed.version, expected.platformVersion});
}
