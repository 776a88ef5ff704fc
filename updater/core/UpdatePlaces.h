#pragma once

#include <QString>
#include <QStringList>

/// Where the parts of an update lie: hidden, beside the bundle, and so on its file system.
///
/// The waiting update is one folder: the archive, the bundle unpacked from it, and, written last, the record that makes
/// it one. What stands aside is a folder with a bundle in it: the new one until the two have changed places, the old
/// one afterwards. Wherever a process dies, nothing beside the bundle is needed, but for a waiting update with its
/// record.
class UpdatePlaces
{
public:
    /// The bundle's real path.
    explicit UpdatePlaces(const QString &bundle);

    const QString &bundle() const { return bundle_; }
    const QString &folder() const { return folder_; }

    QString waiting() const { return hidden(QStringLiteral("update")); }
    QString archive() const { return waiting() + QStringLiteral("/archive"); }
    QString unpacked() const { return waiting() + QStringLiteral("/unpacked"); }
    QString record() const { return waiting() + QStringLiteral("/update.plist"); }

    /// What the name of a folder that stands aside starts with, and those that there are.
    QString asideStart() const { return hidden(QStringLiteral("aside-")); }
    QStringList aside() const;

private:
    QString hidden(const QString &what) const;

    QString bundle_, folder_;
};
