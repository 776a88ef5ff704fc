#include "tutorial/KeyNames.h"

#include "KTXModifiers.h"
#include "KeyCodeTranslator.h"
#include "tutorial/TutorialText.h"

#include <array>

namespace {

struct ModifierName
{
    quint32 bit;
    const char *name;
};

constexpr std::array<ModifierName, 4> modifierKeys{{
    {KTXControlModifier, "Control"},
    {KTXOptionModifier, "Alt"},
    {KTXShiftModifier, "Shift"},
    {KTXCommandModifier, "Super"},
}};

} // namespace

QStringList modifierCaps(quint32 modifiers)
{
    QStringList caps;
    for (const ModifierName &modifier : modifierKeys) {
        if (modifiers & modifier.bit)
            caps += modifierGlyphs(modifier.bit) + u' ' + tutorialText(modifier.name);
    }
    return caps;
}

QString modifierNames(quint32 modifiers)
{
    QStringList names;
    for (const ModifierName &modifier : modifierKeys) {
        if (modifiers & modifier.bit)
            names += tutorialText(modifier.name);
    }
    return names.join(u'+');
}

QString keyName(const AgentReport &report, const QString &action)
{
    const AgentReport::Key *const key = report.key(action);
    return key ? KeyCodeTranslator::stringForKeyCodeWithModifierFlags(key->keyCode, 0) : QString();
}
