#include "pane/AgentKeysText.h"

#include "KTXActionKeys.h"
#include "KTXAgentAnswer.h"
#include "KTXConstants.h"
#include "KTXModifiers.h"
#include "KeyCodeTranslator.h"
#include "platform/appkit/controls/Mnemonics.h"
#include "platform/foundation/bundles/NSBundle.h"

#include <algorithm>

namespace {

/// What is told, in the bundle's words.
class Words
{
public:
    Words(const AgentKeys &keys, const NSBundle *bundle) : keys_(keys), bundle_(bundle) { }

    QString press() const;
    QString pressSentence() const;
    QStringList modifierNames() const;
    QStringList arrows() const;
    QString state() const;
    QString modifiers() const;
    QString held() const;
    QString offer() const;

private:
    QString localized(const char *text) const
    {
        return bundle_->localizedStringForKeyValueTable(QString::fromUtf8(text), {}, {});
    }
    bool isCauseOfAny(const QString &cause) const
    {
        return std::any_of(
            keys_.keys.cbegin(), keys_.keys.cend(), [&](const AgentKeys::Key &key) { return key.cause == cause; });
    }
    static QString nameOf(const AgentKeys::Key &key)
    {
        return KeyCodeTranslator::stringForKeyCodeWithModifierFlags(key.keyCode, 0);
    }

    const AgentKeys &keys_;
    const NSBundle *bundle_;
};

/// The keys of the four directions, as they are read.
QStringList Words::arrows() const
{
    QStringList names;
    for (const QString &action : {KTXLeftPref, KTXRightPref, KTXUpPref, KTXDownPref}) {
        const auto &all = KTXActionKeys();
        const auto place = std::find_if(
            all.cbegin(), all.cend(), [&action](const KTXActionKey &one) { return one.preferenceName == action; });
        names.append(nameOf(keys_.keys.at(place - all.cbegin())));
    }
    return names;
}

/// The modifiers as the page of the keys calls them.
QStringList Words::modifierNames() const
{
    struct Modifier
    {
        quint32 mask;
        const char *name;
    };
    const Modifier modifiers[] = {{KTXShiftModifier, "Sh&ift ⇧"}, {KTXControlModifier, "&Control ⌃"},
        {KTXOptionModifier, "A&lt ⌥"}, {KTXCommandModifier, "Sup&er ⌘"}};
    QStringList names;
    for (const auto &[mask, name] : modifiers) {
        const QString text = QString::fromUtf8(name);
        if (keys_.modifiers & mask)
            names.append(
                withoutMnemonic(bundle_->localizedStringForKeyValueTable(text, text, QStringLiteral("LumarooPref"))));
    }
    return names;
}

QString Words::pressSentence() const
{
    if (keys_.modifiers == 0 || isCauseOfAny(KTXCauseNoHotKeys) || isCauseOfAny(KTXCauseGivenUp))
        return {};
    return localized(isCauseOfAny(KTXCauseDoublePressAlone) ? "Press %1 twice, then press %2" : "Hold %1 and press %2");
}

QString Words::press() const
{
    const QString sentence = pressSentence();
    return sentence.isEmpty() ? QString() : sentence.arg(modifierGlyphs(keys_.modifiers), arrows().join(u' '));
}

QString Words::state() const
{
    struct Sentence
    {
        QString cause;
        const char *text;
    };
    // What keeps all keys away comes before what keeps one.
    const QList<Sentence> sentences{
        {KTXCauseGivenUp, "Lumaroo is off for now. The menu of its icon in the panel turns it on again."},
        {KTXCauseNoHotKeys, "This session has no hot keys for programs. Lumaroo needs an X11 session."},
        {KTXCauseNoModifiers, "No key works, since no modifier keys are chosen."},
        {KTXCauseDoublePressAlone, "Lumaroo takes no key from other programs."},
        {KTXCauseTyping, "Some keys do not work, since Shift alone would take the capital letters you type."},
        {KTXCauseOtherProgram, "Some keys do not work, since other programs use them. The page “Keys” names them."},
    };
    for (const Sentence &sentence : sentences) {
        if (isCauseOfAny(sentence.cause))
            return localized(sentence.text);
    }
    const bool doAllWork = std::all_of(
        keys_.keys.cbegin(), keys_.keys.cend(), [](const AgentKeys::Key &key) { return key.cause.isEmpty(); });
    return localized(doAllWork ? "All keys work." : "Some keys do not work. The page “Keys” shows all of them.");
}

QString Words::modifiers() const
{
    if (isCauseOfAny(KTXCauseNoModifiers))
        return localized("Choose one at least: without a modifier key, no key works.");
    if (isCauseOfAny(KTXCauseTyping))
        return localized("Shift alone would take the capital letters you type. Choose another modifier key with it.");
    return {};
}

QString Words::held() const
{
    QStringList combinations;
    for (qsizetype row = 0; row < keys_.keys.size(); ++row) {
        if (keys_.isHeldByOthers(int(row)))
            combinations.append(modifierGlyphs(keys_.modifiers) + nameOf(keys_.keys.at(row)));
    }
    if (combinations.isEmpty())
        return {};
    return localized(combinations.size() == 1 ? "%1 is used by another program. Lumaroo cannot take it."
                                              : "%1 are used by other programs. Lumaroo cannot take them.")
        .arg(combinations.join(QStringLiteral(", ")));
}

QString Words::offer() const
{
    return keys_.freeModifiers == 0 ? QString() : localized("Use %1 instead").arg(modifierGlyphs(keys_.freeModifiers));
}

} // namespace

AgentKeysText agentKeysText(const AgentKeys &keys, const NSBundle *bundle)
{
    if (!keys.isKnown())
        return {};
    const Words words(keys, bundle);
    return {words.press(), words.pressSentence(), words.modifierNames(), words.arrows(), words.state(),
        words.modifiers(), words.held(), words.offer()};
}
