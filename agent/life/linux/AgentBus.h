#pragma once

#include <QDBusError>
#include <QDBusMessage>

// Where the running agent is found on the session bus; com.quorvane.LumarooAgent.xml describes it.

QString agentService();
QString agentPath();

/// A call of the running agent's interface that starts nothing where none runs.
QDBusMessage agentCall(const QString &method);

/// Whether a call failed because nobody owns the name, or its owner went before it answered.
bool meansNoOwner(const QDBusError &error);
