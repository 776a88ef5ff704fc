#pragma once

#include "platform/foundation/keyboard/VirtualKeyCodes.h"

#include <QString>

/// The keys with which the agent that runs goes, as it tells them itself.
struct AgentKeys
{
    struct Key
    {
        VirtualKeyCode keyCode;
        QString cause; ///< why the agent does not have it (KTXAgentAnswer.h); empty where it has
    };

    quint32 modifiers = 0;
    QList<Key> keys; ///< in the order of the actions; none where nothing is known
    quint32 freeModifiers = 0; ///< the best with which nobody else holds a movement key; 0 for none

    bool isKnown() const { return !keys.isEmpty(); }
    bool isHeldByOthers(int row) const;
};

/// From the agent's answer. Nothing is known of an answer that lacks something or is damaged, as that of an older
/// agent.
AgentKeys agentKeys(const QByteArray &answer);
