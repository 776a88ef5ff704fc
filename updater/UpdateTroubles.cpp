#include "updater/UpdateTroubles.h"

#include "updater/UpdateText.h"

#include <QMap>

namespace {

using Kind = UpdateProblem::Kind;

/// Of those that an installation meets; which of them have the update removed, isForGood tells.
const char *reasonOf(Kind kind)
{
    static const QMap<Kind, const char *> reasons{
        {Kind::Storage,
            "Most often the disk is full: make some room. It is tried again when you close the settings and when you "
            "open them."},
        {Kind::Busy,
            "Another program was updating Lumaroo just then. It is tried again when you close the settings and when "
            "you open them."},
        {Kind::NotWritable,
            "Lumaroo was installed for everybody who uses this computer. New versions come with the updates of the "
            "system."},
        {Kind::Superuser, "Updates are not installed as root: open the settings under your own name."},
        {Kind::NoKey,
            "This copy of Lumaroo has no key to tell genuine updates by, so that the update was removed. Get new "
            "versions from where you got this one."},
        {Kind::Signature,
            "It was not what the makers of Lumaroo have signed, and was removed. Check again, best through another "
            "network."},
        {Kind::Archive, "What had been downloaded was damaged or gone. Check again to have it downloaded once more."},
        {Kind::Contents, "It did not hold the version that was announced, and was removed. Check again later."},
    };
    return reasons.value(kind,
        "It could not take the old version's place. It is tried again when you close the settings and when you open "
        "them.");
}

} // namespace

QString troubleWithInstallation(const NSBundle *bundle, const QString &version, Kind kind)
{
    const QString what = updateText(bundle, QStringLiteral("⚠ Version %1 was not installed.")).arg(version);
    return what + u' ' + updateText(bundle, QString::fromLatin1(reasonOf(kind)));
}

QString troubleWithChecks(const NSBundle *bundle, Kind kind)
{
    static const QMap<Kind, const char *> texts{
        {Kind::NoKey, "This copy of Lumaroo cannot update itself. Get new versions from where you got this one."},
        {Kind::NotWritable,
            "Lumaroo was installed for everybody who uses this computer: updates come with the system's updates."},
        {Kind::Superuser, "Nothing is looked for as root: open the settings under your own name."},
    };
    return updateText(bundle, QString::fromLatin1(texts.value(kind, "Lumaroo cannot look for new versions.")));
}
