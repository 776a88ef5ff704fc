#pragma once

#include <QString>

/// A help book in the user's language, as it lies in a bundle.
struct HelpBook
{
    QString name;
    QString version; ///< of the bundle
    QString language; ///< as folders are named
    QString file; ///< the compressed help file; empty where no registered bundle has one

    bool operator==(const HelpBook &) const = default;
};

/// The book of a name that a bundle has registered: the file Help.qch in the folder of the user's language, below the
/// folder in Resources that the Info dictionary names as CFBundleHelpBookFolder.
HelpBook helpBookNamed(const QString &name);
