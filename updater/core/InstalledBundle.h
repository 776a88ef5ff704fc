#pragma once

#include "updater/core/UpdateProblem.h"

#include <QByteArray>
#include <QUrl>
#include <QVariantMap>

/// A bundle as it stands on disk now.
struct InstalledBundle
{
    explicit InstalledBundle(const QString &bundlePath);

    QString path; ///< where it really stands, links followed; empty where there is none
    QString identifier;
    QString version;
    QUrl feed; ///< SUFeedURL
    QByteArray publicKey; ///< SUPublicEDKey, 32 bytes; empty: whoever builds the bundle has set none
};

/// What a bundle that came out of an archive has to be.
struct ExpectedBundle
{
    QString identifier;
    QString version; ///< to the letter
    QString newerThan;
    int platformVersion = 0; ///< of the libraries that it will be loaded by
};

/// Compares a bundle with what was expected; none, or what is wrong with it.
UpdateProblem problemOfBundle(const QString &bundlePath, const ExpectedBundle &expected);
