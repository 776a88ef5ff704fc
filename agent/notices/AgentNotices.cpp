#include "agent/notices/AgentNotices.h"

#include "KTXActionKeys.h"
#include "KeyCodeTranslator.h"
#include "platform/foundation/bundles/NSBundle.h"

#include <utility>

namespace {

const QString keysMatter = QStringLiteral("keys");

QString localized(const char *text)
{
    const QString key = QString::fromUtf8(text);
    return NSBundle::mainBundle()->localizedStringForKeyValueTable(key, {}, QStringLiteral("Notices"));
}

Notice noticeOf(const GestureRefusal &refusal)
{
    using Kind = GestureRefusal::Kind;
    switch (refusal.kind) {
    case Kind::Unreadable:
        return {QStringLiteral("windows"), localized("Windows cannot be selected here"), refusal.detail, {}};
    case Kind::KeyboardKept:
        return {QStringLiteral("keyboard"), localized("Another program keeps the keyboard"),
            localized("Until it lets go, Lumaroo's keys work with the modifier keys held."), {}};
    case Kind::NotActivated:
        return {QStringLiteral("activation"), localized("A window did not come to the front"),
            refusal.detail.isEmpty() ? localized("The window manager did not turn to it.")
                                     : localized("The window manager did not turn to “%1”.").arg(refusal.detail),
            {}};
    case Kind::NoWindow:
        break;
    }
    return {};
}

} // namespace

AgentNotices::AgentNotices(const AgentHotKeys &hotKeys, const Gestures &gestures) : hotKeys_(hotKeys)
{
    connect(&gestures, &Gestures::refused, this, &AgentNotices::handleRefusal);
    connect(&notices_, &Notices::pressed, this, [this](const QString &matter) {
        if (matter == keysMatter && offered_ != 0)
            Q_EMIT modifiersChosen(std::exchange(offered_, 0));
    });
}

void AgentNotices::lookAtKeys()
{
    const QStringList held = hotKeys_.movementKeysHeldByOthers();
    if (std::exchange(heldKeys_, held) == held || held.isEmpty())
        return;
    Notice notice{keysMatter, localized("Another program holds Lumaroo's keys"),
        localized("Lumaroo does not get %1.").arg(held.join(QStringLiteral(", "))), {}};
    offered_ = hotKeys_.freeModifiers().value(0);
    if (offered_ != 0) {
        const QString glyphs = modifierGlyphs(offered_);
        notice.text += u' ' + localized("With %1 held instead, all movement keys are free.").arg(glyphs);
        notice.button = localized("Use %1").arg(glyphs);
    }
    notices_.tell(notice);
}

void AgentNotices::tellOfMissingTutorial()
{
    notices_.tell({QStringLiteral("tutorial"), localized("The tutorial cannot be started"),
        localized("A part of Lumaroo is missing. Install it again."), {}});
}

void AgentNotices::handleRefusal(const GestureRefusal &refusal)
{
    // Another window each time; the others stay as they are.
    const bool isNews = refusal.kind == GestureRefusal::Kind::NotActivated || !told_.contains(refusal.kind);
    told_ += refusal.kind;
    if (const Notice notice = noticeOf(refusal); isNews && !notice.matter.isEmpty())
        notices_.tell(notice);
}
