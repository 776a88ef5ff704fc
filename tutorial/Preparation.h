#pragma once

#include "tutorial/AgentReport.h"

#include <QStringList>

/// What keeps the tutorial from its first step.
enum class Obstacle : quint8 {
    None,
    Asking, ///< the agent has yet to answer
    NoBus,
    AgentOff,
    OffForNow, ///< it runs, but has given its keys back
    AgentDoesNotStart,
    AgentSilent,
    NoHotKeys, ///< in this session at all
    NoModifiers, ///< none are chosen
    KeysHeld, ///< by another program
    KeysUseless ///< no step is possible with the keys that are set
};

struct Preparation
{
    Obstacle obstacle = Obstacle::None;
    QStringList keys = {}; ///< that another program holds with the modifiers, as their caps say
    quint32 modifiers = 0; ///< that are set
    quint32 offered = 0; ///< others that would do; 0 where none are known

    bool operator==(const Preparation &) const = default;
};

/// From what the agent that runs says.
Preparation preparationFor(const AgentReport &report);
