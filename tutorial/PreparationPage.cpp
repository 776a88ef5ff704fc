#include "tutorial/PreparationPage.h"

#include "KeyCodeTranslator.h"
#include "tutorial/KeyNames.h"
#include "tutorial/TutorialText.h"

namespace {

struct ObstacleTexts
{
    Obstacle obstacle;
    const char *title;
    const char *text;
    Wish wish = Wish::None;
    const char *button = nullptr;
};

constexpr ObstacleTexts obstacleTexts[]{
    {Obstacle::Asking, "One moment", "Lumaroo is asked for its keys."},
    {Obstacle::NoBus, "The tutorial does not work here",
        "This session has no message bus, over which programs hear of each other. Start the tutorial from within a "
        "desktop session.",
        Wish::Leave, "&Close"},
    {Obstacle::AgentOff, "Lumaroo is off", "The tutorial shows Lumaroo at work, so it has to be on.", Wish::StartAgent,
        "&Turn Lumaroo on"},
    {Obstacle::OffForNow, "Lumaroo is off", "The tutorial shows Lumaroo at work, so it has to be on.", Wish::StartAgent,
        "&Turn Lumaroo on"},
    {Obstacle::AgentDoesNotStart, "Lumaroo does not start", "A part of it is missing. Install Lumaroo again.",
        Wish::StartAgent, "&Try again"},
    {Obstacle::AgentSilent, "Lumaroo does not answer",
        "It is running, but it says nothing. Ask again in a moment, or turn it off and on in its settings.",
        Wish::AskAgain, "&Ask again"},
    {Obstacle::NoHotKeys, "Lumaroo gets no keys here",
        "It needs an X11 session. Most desktops offer one where you log in.", Wish::Leave, "&Close"},
    {Obstacle::NoModifiers, "No modifier keys are chosen",
        "Lumaroo's keys are pressed together with modifier keys, and your settings have none.", Wish::UseModifiers,
        nullptr},
    {Obstacle::KeysHeld, "Another program holds Lumaroo's keys", "With %1, Lumaroo does not get these keys: %2.",
        Wish::AskAgain, "&Ask again"},
    {Obstacle::KeysUseless, "The keys do not work",
        "Choose other keys on the page “Keys” of Lumaroo's settings, then ask again.", Wish::AskAgain, "&Ask again"},
};

const ObstacleTexts &textsOf(Obstacle obstacle)
{
    for (const ObstacleTexts &texts : obstacleTexts) {
        if (texts.obstacle == obstacle)
            return texts;
    }
    return obstacleTexts[0];
}

GuidePage::Button useButton(quint32 modifiers)
{
    return {Wish::UseModifiers, tutorialText("&Use %1").arg(modifierGlyphs(modifiers))};
}

/// Control+Super (⌃⌘).
QString namesAndGlyphs(quint32 modifiers)
{
    return QStringLiteral("%1 (%2)").arg(modifierNames(modifiers), modifierGlyphs(modifiers));
}

void offerOtherModifiers(GuidePage &page, const Preparation &preparation)
{
    page.text = page.text.arg(modifierNames(preparation.modifiers), preparation.keys.join(u' ')) + u' ';
    if (preparation.offered == 0) {
        page.text += tutorialText("Free them in that program, or choose others in Lumaroo's settings; then ask again.");
        return;
    }
    page.text += tutorialText("If you hold %1 instead, all of Lumaroo's movement keys are free.")
                     .arg(namesAndGlyphs(preparation.offered));
    page.second = page.first;
    page.first = useButton(preparation.offered);
}

} // namespace

GuidePage pageOfPreparation(const Preparation &preparation)
{
    const ObstacleTexts &texts = textsOf(preparation.obstacle);
    GuidePage page{.title = tutorialText(texts.title), .text = tutorialText(texts.text)};
    if (texts.button)
        page.first = {texts.wish, tutorialText(texts.button)};
    if (preparation.obstacle == Obstacle::NoModifiers)
        page.first = useButton(preparation.offered);
    if (preparation.obstacle == Obstacle::KeysHeld)
        offerOtherModifiers(page, preparation);
    return page;
}
