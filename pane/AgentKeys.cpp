#include "pane/AgentKeys.h"

#include "KTXActionKeys.h"
#include "KTXAgentAnswer.h"
#include "KTXConstants.h"
#include "KTXModifiers.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

/// No value for one of another action, or without a cause where one is due.
std::optional<AgentKeys::Key> keyOf(const QJsonObject &entry, const QString &action)
{
    const QJsonValue keyCode = entry.value(KTXAnswerKeyCode);
    const QString cause = entry.value(KTXAnswerCause).toString();
    const bool isRegistered = entry.value(KTXAnswerRegistered).toBool();
    if (entry.value(KTXAnswerAction) != action || !keyCode.isDouble() || isRegistered != cause.isEmpty())
        return {};
    return AgentKeys::Key{VirtualKeyCode(quint32(keyCode.toInteger())), cause};
}

quint32 maskOf(const QJsonValue &value)
{
    return quint32(value.toInteger()) & KTXAllModifiers;
}

} // namespace

bool AgentKeys::isHeldByOthers(int row) const
{
    return row >= 0 && row < keys.size() && keys.at(row).cause == KTXCauseOtherProgram;
}

AgentKeys agentKeys(const QByteArray &answer)
{
    const QJsonObject object = QJsonDocument::fromJson(answer).object();
    const QJsonArray entries = object.value(KTXAnswerHotKeys).toArray();
    AgentKeys all;
    for (const KTXActionKey &action : KTXActionKeys()) {
        const auto key = keyOf(entries.at(all.keys.size()).toObject(), action.preferenceName);
        if (!key)
            return {};
        all.keys.append(*key);
    }
    all.modifiers = maskOf(object.value(KTXAnswerSettings).toObject().value(KTXModifierMask));
    all.freeModifiers = maskOf(object.value(KTXAnswerFreeModifiers).toArray().at(0));
    return all;
}
