#include "pane/AgentKeysText.h"

#include "KTXActionKeys.h"
#include "KTXAgentAnswer.h"
#include "KTXConstants.h"
#include "KeyCodeTranslator.h"
#include "platform/foundation/bundles/NSBundle.h"

#include <algorithm>

namespace {

/// What is told, in the bundle's words.
class Words
{
public:
    Words(const AgentKeys &keys, const NSBundle *bundle) : keys_(keys), bundle_(bundle) { }

    QString press() const;
    QString state() const;
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
        return KeyCodeTranslator::stringForKeyCodeWithModifierFlags(key.keyCode, 0).toUpper();
    }
    QString arrows() const;

    const AgentKeys &keys_;
    const NSBundle *bundle_;
};

/// The keys of the four directions, as they are read.
QString Words::arrows() const
{
    QStringList names;
    for (const QString &action : {KTXLeftPref, KTXRightPref, KTXUpPref, KTXDownPref}) {
        const auto &all = KTXActionKeys();
        const auto place = std::find_if(
            all.cbegin(), all.cend(), [&action](const KTXActionKey &one) { return one.preferenceName == action; });
        names.append(nameOf(keys_.keys.at(place - all.cbegin())));
    }
    return names.join(u' ');
}

QString Words::press() const
{
    if (keys_.modifiers == 0 || isCauseOfAny(KTXCauseNoHotKeys) || isCauseOfAny(KTXCauseGivenUp))
        return {};
    const char *const text =
        isCauseOfAny(KTXCauseDoublePressAlone) ? "Press %1 twice, then press %2" : "Hold %1 and press %2";
    return localized(text).arg(modifierGlyphs(keys_.modifiers), arrows());
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
    return {words.press(), words.state(), words.held(), words.offer()};
}
