#include "tutorial/AgentReport.h"

#include "KTXAgentAnswer.h"
#include "KTXConstants.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <algorithm>

namespace {

AgentReport::Key keyFrom(const QJsonObject &object)
{
    const bool isRegistered = object.value(KTXAnswerRegistered).toBool();
    const QString cause = object.value(KTXAnswerCause).toString(QStringLiteral("unknown"));
    return {object.value(KTXAnswerAction).toString(), VirtualKeyCode(quint32(object.value(KTXAnswerKeyCode).toInt())),
        isRegistered ? QString() : cause};
}

} // namespace

const AgentReport::Key *AgentReport::key(const QString &action) const
{
    const auto found =
        std::find_if(keys.cbegin(), keys.cend(), [&action](const Key &key) { return key.action == action; });
    return found == keys.cend() ? nullptr : &*found;
}

bool AgentReport::works(const QString &action) const
{
    const Key *const found = key(action);
    return found && (found->cause.isEmpty() || beginsByDoublePress);
}

std::optional<AgentReport> readAgentReport(const QString &json)
{
    const QJsonObject root = QJsonDocument::fromJson(json.toUtf8()).object();
    if (root.value(QStringLiteral("readings")).toInt() == 0)
        return {};
    const QJsonObject settings = root.value(KTXAnswerSettings).toObject();
    AgentReport report;
    for (const QJsonValue &key : root.value(KTXAnswerHotKeys).toArray())
        report.keys += keyFrom(key.toObject());
    report.modifiers = quint32(settings.value(KTXModifierMask).toInteger());
    report.freeModifiers = quint32(root.value(KTXAnswerFreeModifiers).toArray().first().toInteger());
    report.beginsByDoublePress = settings.value(KTXActivateDoubleClick).toBool();
    report.wrapsHorizontally = settings.value(KTXHWrap).toBool(true);
    report.cyclesAscending = settings.value(KTXCycleAscending).toBool();
    return report;
}
