#include "agent/life/linux/AgentBus.h"

#include "KTXAgentAnswer.h"
#include "KTXConstants.h"

QString agentService()
{
    return KTXLMAgentID;
}

QString agentPath()
{
    return KTXLMAgentPath;
}

QDBusMessage agentCall(const QString &method)
{
    QDBusMessage message = QDBusMessage::createMethodCall(agentService(), agentPath(), agentService(), method);
    message.setAutoStartService(false);
    return message;
}

bool meansNoOwner(const QDBusError &error)
{
    return error.type() == QDBusError::ServiceUnknown || error.type() == QDBusError::NoReply
        || error.name() == QStringLiteral("org.freedesktop.DBus.Error.NameHasNoOwner");
}
