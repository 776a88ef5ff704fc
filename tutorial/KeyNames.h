#pragma once

#include "tutorial/AgentReport.h"

#include <QStringList>

/// What is on the caps of the modifier keys, as "⌃ Control", in the order in which people say them.
QStringList modifierCaps(quint32 modifiers);
/// "Control+Alt".
QString modifierNames(quint32 modifiers);

/// What is on the cap of an action's key, by the user's keyboard; empty where it has none.
QString keyName(const AgentReport &report, const QString &action);
