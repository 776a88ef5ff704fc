#include "updater/windows/UpdateFailures.h"

#include <QMap>

using Kind = UpdateProblem::Kind;

UpdateFailure updateFailure(Kind kind)
{
    static const QMap<Kind, UpdateFailure> failures{
        {Kind::Feed,
            {"New versions cannot be looked for now",
                "The list of versions cannot be reached, or cannot be read. Check your connection and try again "
                "later."}},
        {Kind::Download,
            {"The update cannot be downloaded",
                "The version that you have is unchanged. Check your connection and try again."}},
        {Kind::Storage,
            {"The update cannot be stored",
                "The version that you have is unchanged. Most often the disk is full: make some room and try again."}},
        {Kind::NoKey,
            {"This copy of Lumaroo cannot update itself",
                "Whoever built it gave it no key to tell genuine updates by. Get new versions from where you got this "
                "one."}},
        {Kind::Signature,
            {"The update is not genuine",
                "What came is not what the makers of Lumaroo have signed. It was removed, and the version that you "
                "have is unchanged. Try again later, best through another network."}},
        {Kind::Archive,
            {"The update is damaged",
                "What came cannot be unpacked. It was removed, and the version that you have is unchanged. Try again "
                "later."}},
        {Kind::Contents,
            {"The update is not what was announced",
                "It does not hold the version that the list of versions tells of. It was removed, and the version that "
                "you have is unchanged. Try again later."}},
        {Kind::NotWritable,
            {"Lumaroo is updated along with your system",
                "It was installed for everybody who uses this computer. Look for new versions where your system gets "
                "its programs and updates."}},
        {Kind::Superuser,
            {"Updates are not installed as root", "Open the settings under your own name and try again."}},
        {Kind::Busy,
            {"Lumaroo is being updated already", "Another program is about to do it. Wait a moment and try again."}},
        {Kind::Exchange,
            {"The update cannot take the old version's place",
                "The version that you have is unchanged. Close the settings, open them again and try once more."}},
    };
    return failures.value(kind, {"The update was not installed", "The version that you have is unchanged."});
}
