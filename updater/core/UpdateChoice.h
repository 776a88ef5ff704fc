#pragma once

#include "updater/core/AppcastItem.h"

#include <QList>
#include <optional>

/// What is installed here, and what was seen and said before.
struct UpdateCircumstances
{
    QString installedVersion;
    QString highestVersionSeen; ///< in any feed before; empty: none
    QString skippedVersion; ///< that the user wants to hear no more of
    QString systemVersion; ///< of the kernel
    int platformVersion = 0; ///< of the libraries that the bundle is loaded by
    QStringList channels; ///< beside what is for everybody
    bool isAskedByUser = false; ///< who asks hears of a skipped version too
};

/// What comes of a feed.
struct UpdateChoice
{
    std::optional<AppcastItem> item; ///< to be offered
    QString highestVersion; ///< of the feed and of all before it
    bool hasGoneBack = false; ///< the feed's highest version is below one seen before: nothing of it is offered
};

/// The newest version of a feed that is newer than the installed one and runs here.
UpdateChoice chooseUpdate(const QList<AppcastItem> &items, const UpdateCircumstances &circumstances);

/// Whether a version matters so much to this installation that it is not skipped.
bool isCriticalFor(const AppcastItem &item, const QString &installedVersion);

/// Whether a version is only told of, with its link, and installed by other means.
bool isInformationalFor(const AppcastItem &item, const QString &installedVersion);
