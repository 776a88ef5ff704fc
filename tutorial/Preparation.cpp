#include "tutorial/Preparation.h"

#include "KTXActionKeys.h"
#include "KTXModifiers.h"
#include "tutorial/KeyNames.h"
#include "tutorial/Steps.h"

namespace {

// The agent's words.
const QString heldByAnother = QStringLiteral("another program holds it");
const QString noHotKeys = QStringLiteral("there are no hot keys in this session");

/// The movement keys that were refused for a reason.
QStringList movementKeysRefused(const AgentReport &report, const QString &reason)
{
    QStringList refused;
    for (int i = 0; i < KTXMovementKeyCount; ++i) {
        const QString &action = KTXActionKeys().at(size_t(i)).preferenceName;
        const AgentReport::Key *const key = report.key(action);
        if (key && key->refusal == reason)
            refused += keyName(report, action);
    }
    return refused;
}

} // namespace

Preparation preparationFor(const AgentReport &report)
{
    if (report.modifiers == 0)
        return {Obstacle::NoModifiers, {}, 0, DEFAULT_MODIFIER_MASK};
    if (!movementKeysRefused(report, noHotKeys).isEmpty())
        return {Obstacle::NoHotKeys};
    if (const QStringList held = movementKeysRefused(report, heldByAnother); !held.isEmpty())
        return {Obstacle::KeysHeld, held, report.modifiers, report.freeModifiers};
    return {possibleSteps(report).isEmpty() ? Obstacle::KeysUseless : Obstacle::None};
}
