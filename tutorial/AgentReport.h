#pragma once

#include "platform/foundation/keyboard/VirtualKeyCodes.h"

#include <QList>
#include <QString>
#include <optional>

/// What the running agent says of itself: the settings that it goes by, and which of its keys work.
struct AgentReport
{
    struct Key
    {
        QString action; ///< the name under which its key is stored
        VirtualKeyCode keyCode;
        QString cause; ///< why it does not work, by KTXAgentAnswer.h; empty where it does
    };

    QList<Key> keys;
    quint32 modifiers = 0;
    quint32 freeModifiers = 0; ///< to hold instead, where another program holds a movement key; 0 for none known
    bool beginsByDoublePress = false; ///< and by nothing else
    bool wrapsHorizontally = true;
    bool cyclesAscending = false;

    /// Null for an action that the agent does not tell of.
    const Key *key(const QString &action) const;
    /// Whether its key does what it is for, where need be once the modifiers have been pressed twice.
    bool works(const QString &action) const;
};

/// From the answer of the agent's `Settings`; nothing where that is none, or the agent has yet to read its settings.
std::optional<AgentReport> readAgentReport(const QString &json);
