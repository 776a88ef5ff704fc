#pragma once

#include <QIcon>
#include <QList>
#include <QString>
#include <QStringList>
#include <QVariant>

/// What the overview knows of a pane without loading its code.
struct InstalledPane
{
    QString path; ///< the bundle's folder, links resolved
    QString identifier; ///< empty where the Info dictionary cannot be read
    QString name;
    QString iconFile; ///< empty where it names none
    QStringList keywords;
};

/// Where panes are looked for, best first: the user's own folder, the folder beside the host's bundle, the folder that
/// holds the host's bundle.
QStringList paneFolders();

/// The bundles in these folders and the one that a request means by its path, as paths alone: nothing of them is read.
QStringList paneBundles(const QStringList &folders, const QString &request);

/// The panes of these folders by name; of several with one identifier the first found. Damaged bundles are listed too,
/// under their file name.
QList<InstalledPane> installedPanes(const QStringList &folders);

/// One bundle, whether or not it exists.
InstalledPane describePane(const QString &bundlePath);

/// The bundle that a request (a path or an identifier) means, or empty when it names no installed pane and is no path.
QString paneForRequest(const QString &request, const QList<InstalledPane> &panes);

/// Whether each word of `search` begins or stands within the pane's name or one of its keywords.
bool paneMatches(const InstalledPane &pane, const QString &search);

/// The keywords as an Info dictionary states them: a list of texts, or one text with commas.
QStringList paneKeywords(const QVariant &value);

/// The pane's icon, or a tile with its first letter where there is no readable one.
QIcon paneIcon(const InstalledPane &pane);
