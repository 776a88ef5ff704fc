#pragma once

#include "agent/keys/AgentHotKeys.h"

#include <QVariantMap>

/// What the agent has read, for people and tests: an object of "version", "readings", "settings", "hotKeys" and
/// "freeModifiers". No value is null, a date is ISO 8601 in UTC, data is base64. A hot key has "action", "keyCode",
/// "combination" and "registered", and where it is not registered "refusal", in words, and "cause", one of
/// KTXAgentAnswer.h. "freeModifiers" are masks, best first; there are none while nobody else holds a movement key.
QByteArray settingsJson(int version, qint64 readings, const QVariantMap &settings, const QList<AgentHotKey> &hotKeys,
    const QList<quint32> &freeModifiers);
