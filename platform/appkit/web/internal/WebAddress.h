#pragma once

#include <QUrl>

/// Whether an address can be that of a web page.
inline bool isWebAddress(const QUrl &address)
{
    const QString scheme = address.scheme();
    return (scheme == QLatin1StringView("http") || scheme == QLatin1StringView("https")) && !address.host().isEmpty();
}
