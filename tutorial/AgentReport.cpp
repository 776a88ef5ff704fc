#include "tutorial/AgentReport.h"

#include "KTXConstants.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <algorithm>

namespace {

AgentReport::Key keyFrom(const QJsonObject &object)
{
    const bool isRegistered = object.value(QStringLiteral("registered")).toBool();
    const QString refusal = object.value(QStringLiteral("refusal")).toString(QStringLiteral("unknown"));
    return {object.value(QStringLiteral("action")).toString(),
        VirtualKeyCode(quint32(object.value(QStringLiteral("keyCode")).toInt())), isRegistered ? QString() : refusal};
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
    return found && (found->refusal.isEmpty() || beginsByDoublePress);
}

std::optional<AgentReport> readAgentReport(const QString &json)
{
    const QJsonObject root = QJsonDocument::fromJson(json.toUtf8()).object();
    if (root.value(QStringLiteral("readings")).toInt() == 0)
        return {};
    const QJsonObject settings = root.value(QStringLiteral("settings")).toObject();
    AgentReport report;
    for (const QJsonValue &key : root.value(QStringLiteral("hotKeys")).toArray())
        report.keys += keyFrom(key.toObject());
    report.modifiers = quint32(settings.value(KTXModifierMask).toInteger());
    report.freeModifiers = quint32(root.value(QStringLiteral("freeModifiers")).toArray().first().toInteger());
    report.beginsByDoublePress = settings.value(KTXActivateDoubleClick).toBool();
    report.wrapsHorizontally = settings.value(KTXHWrap).toBool(true);
    report.cyclesAscending = settings.value(KTXCycleAscending).toBool();
    return report;
}
