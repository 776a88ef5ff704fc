#pragma once

#include "agent/keys/AgentHotKeys.h"

#include <QVariantMap>

/// What the agent has read, for people and tests: an object of "version", "readings", "settings" and "hotKeys". No
/// value is null, a date is ISO 8601 in UTC, data is base64. A hot key has "action", "keyCode", "combination" and
/// "registered", and where it is not registered "refusal".
QByteArray settingsJson(int version, qint64 readings, const QVariantMap &settings, const QList<AgentHotKey> &hotKeys);
