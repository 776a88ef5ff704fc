#pragma once

#include <QVariantMap>

/// What the agent has read, for people and tests: an object of "version", "readings" and "settings". No value is null,
/// a date is ISO 8601 in UTC, data is base64.
QByteArray settingsJson(int version, qint64 readings, const QVariantMap &settings);
