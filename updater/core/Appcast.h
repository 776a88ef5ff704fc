#pragma once

#include "updater/core/AppcastItem.h"

#include <QList>

/// The namespaces of a feed's elements beside those of RSS 2.0.
inline const QString appcastNamespace = QStringLiteral("http://www.andymatuschak.org/xml-namespaces/sparkle");
/// Of our own: minimumPlatformVersion.
inline const QString ownAppcastNamespace = QStringLiteral("https://lumaroo.example/xml-namespaces/appcast");

/// The largest feed that is read.
inline constexpr qint64 largestAppcast = qint64(1024) * 1024;
/// The largest archive that is downloaded or installed.
inline constexpr qint64 largestUpdateArchive = qint64(256) * 1024 * 1024;

/// What a feed holds, or why it holds nothing.
struct AppcastReading
{
    QList<AppcastItem> items;
    QStringList problems; ///< one for each item that is left out, in English for the log
    QString error; ///< empty on success; then nothing of the feed is taken

    explicit operator bool() const { return error.isEmpty(); }
};

/// Reads a feed that came from `address`, which relative addresses in it count from.
///
/// Whatever may stand as an element or as an attribute of the enclosure (version, shortVersionString) is taken from
/// either; where both are there and differ, the item is left out. Of several enclosures the one for this system counts,
/// and two for it leave the item out. An item needs a version of the form that bundles
/// carry, and unless it is informational an enclosure with its length and a signature of exactly 64 bytes, unbroken, in
/// base 64. Deltas are not looked at.
///
/// Bounds: 1 MiB, 1,000 items, no document type (and so no entities). Never throws, never crashes on any input.
AppcastReading readAppcast(const QByteArray &bytes, const QUrl &address);
