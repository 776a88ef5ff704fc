#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <QStringList>
#include <QUrl>

/// One version that a feed tells of.
struct AppcastItem
{
    QString version; ///< the bundle's CFBundleVersion
    QString displayVersion; ///< as people call it; the version where the feed has no other
    QString title;
    QDateTime published;

    QString operatingSystem; ///< empty: any
    QString minimumSystemVersion; ///< of the kernel; empty: any
    int minimumPlatformVersion = 0; ///< of the libraries that the bundle is loaded by
    QString channel; ///< empty: for everybody

    bool isCritical = false;
    QString criticalBelow; ///< critical for installed versions below this one alone; empty: for all
    bool isInformational = false; ///< tells of a version that is not installed from here
    QStringList informationalFor; ///< for these installed versions alone; empty, with the next: for all
    QString informationalBelow;

    QUrl link; ///< a page about the version
    QUrl releaseNotes;
    QString description; ///< release notes within the feed

    QUrl archive;
    qint64 length = 0; ///< of the archive, in bytes
    QByteArray signature; ///< of the archive, 64 bytes

    bool operator==(const AppcastItem &) const = default;
};
