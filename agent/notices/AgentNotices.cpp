#include "agent/notices/AgentNotices.h"

#include "KTXActionKeys.h"
#include "KeyCodeTranslator.h"
#include "agent/notices/NoticeTexts.h"
#include "agent/notices/WindowFailureText.h"

#include <utility>

namespace {

const QString keysMatter = QStringLiteral("keys");
const QString welcomeMatter = QStringLiteral("welcome");

QString textOf(const GestureRefusal &refusal)
{
    const bool hasTitle = !refusal.title.isEmpty();
    if (refusal.kind == GestureRefusal::Kind::Closed)
        return hasTitle ? noticeText("“%1” has been closed.").arg(refusal.title) : noticeText("It has been closed.");
    return hasTitle ? noticeText("The window manager did not turn to “%1”.").arg(refusal.title)
                    : noticeText("The window manager did not turn to it.");
}

Notice noticeOf(const GestureRefusal &refusal)
{
    using Kind = GestureRefusal::Kind;
    switch (refusal.kind) {
    case Kind::Unreadable:
        return {QStringLiteral("windows"), noticeText("Windows cannot be selected here"),
            windowFailureText(refusal.failure), {}};
    case Kind::KeyboardKept:
        return {QStringLiteral("keyboard"), noticeText("Another program keeps the keyboard"),
            noticeText("Until it lets go, Lumaroo's keys work with the modifier keys held."), {}};
    case Kind::NotActivated:
    case Kind::Closed:
        return {QStringLiteral("activation"), noticeText("A window did not come to the front"), textOf(refusal), {}};
    case Kind::NoWindow:
    case Kind::ScreenTaken:
        break;
    }
    return {};
}

QString offerText(quint32 modifiers)
{
    return noticeText("Use %1").arg(modifierGlyphs(modifiers));
}

} // namespace

AgentNotices::AgentNotices(const AgentHotKeys &hotKeys, const Gestures &gestures) : hotKeys_(hotKeys)
{
    connect(&gestures, &Gestures::refused, this, &AgentNotices::handleRefusal);
    connect(&gestures, &Gestures::began, this, [this] { unreadable_.reset(); });
    connect(&notices_, &Notices::pressed, this, &AgentNotices::handlePress);
    // Only the welcome has two buttons.
    connect(&notices_, &Notices::secondPressed, this, &AgentNotices::settingsChosen);
    connect(&notices_, &Notices::clicked, this, &AgentNotices::settingsChosen);
}

void AgentNotices::tell(Notice notice)
{
    notice.opening = noticeText("Settings");
    notices_.tell(notice);
}

void AgentNotices::handlePress(const QString &matter)
{
    if (matter == welcomeMatter)
        Q_EMIT tutorialChosen();
    else if (matter == keysMatter && offered_ != 0)
        Q_EMIT modifiersChosen(offered_);
}

void AgentNotices::tellOfUnstoredModifiers()
{
    tell({keysMatter, noticeText("The modifier keys stay as they are"),
        noticeText("Your choice could not be stored. The disk may be full."), offerText(offered_)});
}

void AgentNotices::lookAtKeys()
{
    const QStringList held = hotKeys_.movementKeysHeldByOthers();
    if (held.isEmpty())
        offered_ = 0;
    if (std::exchange(heldKeys_, held) == held || held.isEmpty())
        return;
    Notice notice{keysMatter, noticeText("Another program holds Lumaroo's keys"),
        noticeText("Lumaroo does not get %1.").arg(held.join(QStringLiteral(", "))), {}};
    offered_ = hotKeys_.freeModifiers().value(0);
    if (offered_ != 0) {
        notice.text +=
            u' ' + noticeText("With %1 held instead, all movement keys are free.").arg(modifierGlyphs(offered_));
        notice.button = offerText(offered_);
    }
    tell(notice);
}

void AgentNotices::tellOfMissingTutorial()
{
    tell({QStringLiteral("tutorial"), noticeText("The tutorial cannot be started"),
        noticeText("A part of Lumaroo is missing. Install it again."), {}});
}

void AgentNotices::welcome(const QString &keysToPress)
{
    const QString text =
        keysToPress.isEmpty() ? noticeText("Its keys do not work yet. The settings tell why.") : keysToPress;
    Notice notice{welcomeMatter, noticeText("Lumaroo is on"), text, noticeText("Show me")};
    notice.secondButton = noticeText("Settings");
    tell(notice);
}

void AgentNotices::handleRefusal(const GestureRefusal &refusal)
{
    if (refusal.kind == GestureRefusal::Kind::NoWindow)
        unreadable_.reset();
    // Each key would tell it anew until windows can be read again.
    if (refusal.kind == GestureRefusal::Kind::Unreadable
        && std::exchange(unreadable_, refusal.failure) == refusal.failure)
        return;
    if (const Notice notice = noticeOf(refusal); !notice.matter.isEmpty())
        tell(notice);
}
