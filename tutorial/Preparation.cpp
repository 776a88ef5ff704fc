#include "tutorial/Preparation.h"

#include "KTXActionKeys.h"
#include "KTXAgentAnswer.h"
#include "KTXModifiers.h"
#include "tutorial/KeyNames.h"
#include "tutorial/Steps.h"

namespace {

/// The movement keys that do not work for this cause.
QStringList movementKeysRefused(const AgentReport &report, const QString &cause)
{
    QStringList refused;
    for (int i = 0; i < KTXMovementKeyCount; ++i) {
        const QString &action = KTXActionKeys().at(size_t(i)).preferenceName;
        const AgentReport::Key *const key = report.key(action);
        if (key && key->cause == cause)
            refused += keyName(report, action);
    }
    return refused;
}

} // namespace

Preparation preparationFor(const AgentReport &report)
{
    if (report.modifiers == 0)
        return {Obstacle::NoModifiers, {}, 0, DEFAULT_MODIFIER_MASK};
    if (!movementKeysRefused(report, KTXCauseGivenUp).isEmpty())
        return {Obstacle::OffForNow};
    if (!movementKeysRefused(report, KTXCauseNoHotKeys).isEmpty())
        return {Obstacle::NoHotKeys};
    if (const QStringList held = movementKeysRefused(report, KTXCauseOtherProgram); !held.isEmpty())
        return {Obstacle::KeysHeld, held, report.modifiers, report.freeModifiers};
    return {possibleSteps(report).isEmpty() ? Obstacle::KeysUseless : Obstacle::None};
}
