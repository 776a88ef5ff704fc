#pragma once

#include <QUrl>

// Where an update may come from.

/// Whether a feed may be read from an address: https, or http from this machine itself.
bool isAllowedFeedAddress(const QUrl &address);

/// Whether something that a feed tells of, or an answer redirects to, may be fetched: from the host of the feed alone,
/// and never by plain http where the feed came by https.
bool isAllowedAddress(const QUrl &address, const QUrl &feed);
