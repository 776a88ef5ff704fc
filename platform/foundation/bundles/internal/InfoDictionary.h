#pragma once

#include <QString>
#include <QVariantMap>

/// An Info.plist as it stands on disk, and why it could not be read. A missing file is an empty dictionary without an
/// error.
struct InfoDictionaryReading
{
    QVariantMap dictionary;
    QString error;
};

InfoDictionaryReading readInfoDictionary(const QString &bundlePath);
