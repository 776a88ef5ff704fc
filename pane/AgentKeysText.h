#pragma once

#include "pane/AgentKeys.h"

class NSBundle;

/// What the pane tells of the agent's keys, in the user's language. Each is empty where there is nothing to tell.
struct AgentKeysText
{
    QString press; ///< what to do now, with the keys that are set
    QString pressSentence; ///< the same, with %1 for the modifiers and %2 for the keys
    QStringList modifierNames; ///< with their signs, as on key caps
    QStringList keyNames;
    QString state; ///< whether the keys work
    QString modifiers; ///< what is wrong with those that are chosen
    QString held; ///< which are other programs'
    QString offer; ///< what the button says that takes other modifiers
};

/// The strings are those of a bundle.
AgentKeysText agentKeysText(const AgentKeys &keys, const NSBundle *bundle);
