#include "agent/notices/AgentNotices.h"

#include "KTXActionKeys.h"
#include "KeyCodeTranslator.h"
#include "agent/notices/NoticeTexts.h"

#include <utility>

namespace {

const QString keysMatter = QStringLiteral("keys");
const QString welcomeMatter = QStringLiteral("welcome");

Notice noticeOf(const GestureRefusal &refusal)
{
    using Kind = GestureRefusal::Kind;
    switch (refusal.kind) {
    case Kind::Unreadable:
        return {QStringLiteral("windows"), noticeText("Windows cannot be selected here"), refusal.detail, {}};
    case Kind::KeyboardKept:
        return {QStringLiteral("keyboard"), noticeText("Another program keeps the keyboard"),
            noticeText("Until it lets go, Lumaroo's keys work with the modifier keys held."), {}};
    case Kind::NotActivated:
        return {QStringLiteral("activation"), noticeText("A window did not come to the front"),
            refusal.detail.isEmpty() ? noticeText("The window manager did not turn to it.")
                                     : noticeText("The window manager did not turn to “%1”.").arg(refusal.detail),
            {}};
    case Kind::NoWindow:
    case Kind::ScreenTaken:
        break;
    }
    return {};
}

} // namespace

AgentNotices::AgentNotices(const AgentHotKeys &hotKeys, const Gestures &gestures) : hotKeys_(hotKeys)
{
    connect(&gestures, &Gestures::refused, this, &AgentNotices::handleRefusal);
    connect(&notices_, &Notices::pressed, this, &AgentNotices::handlePress);
    // Only the welcome has two buttons.
    connect(&notices_, &Notices::secondPressed, this, &AgentNotices::settingsChosen);
}

void AgentNotices::handlePress(const QString &matter)
{
    if (matter == welcomeMatter)
        Q_EMIT tutorialChosen();
    else if (matter == keysMatter && offered_ != 0)
        Q_EMIT modifiersChosen(std::exchange(offered_, 0));
}

void AgentNotices::lookAtKeys()
{
    const QStringList held = hotKeys_.movementKeysHeldByOthers();
    if (std::exchange(heldKeys_, held) == held || held.isEmpty())
        return;
    Notice notice{keysMatter, noticeText("Another program holds Lumaroo's keys"),
        noticeText("Lumaroo does not get %1.").arg(held.join(QStringLiteral(", "))), {}};
    offered_ = hotKeys_.freeModifiers().value(0);
    if (offered_ != 0) {
        const QString glyphs = modifierGlyphs(offered_);
        notice.text += u' ' + noticeText("With %1 held instead, all movement keys are free.").arg(glyphs);
        notice.button = noticeText("Use %1").arg(glyphs);
    }
    notices_.tell(notice);
}

void AgentNotices::tellOfMissingTutorial()
{
    notices_.tell({QStringLiteral("tutorial"), noticeText("The tutorial cannot be started"),
        noticeText("A part of Lumaroo is missing. Install it again."), {}});
}

void AgentNotices::welcome(const QString &keysToPress)
{
    const QString text =
        keysToPress.isEmpty() ? noticeText("Its keys do not work yet. The settings tell why.") : keysToPress;
    Notice notice{welcomeMatter, noticeText("Lumaroo is on"), text, noticeText("Show me")};
    notice.secondButton = noticeText("Settings");
    notices_.tell(notice);
}

void AgentNotices::handleRefusal(const GestureRefusal &refusal)
{
    // Another window each time; the others stay as they are.
    const bool isNews = refusal.kind == GestureRefusal::Kind::NotActivated || !told_.contains(refusal.kind);
    told_ += refusal.kind;
    if (const Notice notice = noticeOf(refusal); isNews && !notice.matter.isEmpty())
        notices_.tell(notice);
}
