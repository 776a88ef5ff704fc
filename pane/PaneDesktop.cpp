#include "pane/PaneDesktop.h"

#include "KTXAgentAnswer.h"
#include "KTXLoginEntry.h"
#include "pane/Controls.h"
#include "platform/appkit/controls/AssistiveTools.h"
#include "platform/appkit/controls/HeldKeyMarker.h"
#include "platform/appkit/controls/KeyCapsLine.h"
#include "platform/foundation/bundles/NSBundle.h"
#include "platform/foundation/system/NSLog.h"

#include <QEvent>
#include <QHash>
#include <algorithm>

namespace {

constexpr char onWayland[] =
    "This session runs on Wayland. There no program may take keys or see the windows of others, so Lumaroo’s keys do "
    "nothing here. Your settings are kept. To use Lumaroo, log out and choose “X11” or “Xorg” on the login screen.";

/// The agent goes by the same. While it does not run it cannot say so, but it would.
bool isKeptAwayByWayland(const AgentKeys &keys)
{
    const auto hasNoHotKeys = [](const AgentKeys::Key &key) { return key.cause == KTXCauseNoHotKeys; };
    return !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")
        && std::all_of(keys.keys.cbegin(), keys.keys.cend(), hasNoHotKeys);
}

} // namespace

PaneDesktop::PaneDesktop(QWidget *view, const NSBundle *bundle, QObject *parent)
    : QObject(parent), view_(view), bundle_(bundle)
{
    connect(&agent_, &AgentWatch::told, this, &PaneDesktop::showKeys);
    connect(&presence_, &AgentPresence::changed, this, &PaneDesktop::showPresence);
    connect(&loginEntry_, &LoginEntryWatch::changed, this, &PaneDesktop::showStartAtLogin);
    modifierHint_ = stringValue(control("modifierHint"));
    showKeys({});
    showStartAtLogin();
    showPresence();
    followFrameColor();
}

/// The picture has the colour that the well has when either comes up; a well that is given another one draws itself.
void PaneDesktop::followFrameColor()
{
    well_ = control("overlayColorWell");
    picture_ = qobject_cast<WindowsPicture *>(control("windowsPicture"));
    if (!well_ || !picture_)
        return;
    well_->installEventFilter(this);
    picture_->installEventFilter(this);
    picture_->setFrameColor(color(well_));
}

bool PaneDesktop::eventFilter(QObject *object, QEvent *event)
{
    const bool comesUp = event->type() == QEvent::Show || (object == well_ && event->type() == QEvent::Paint);
    if (comesUp && well_ && picture_)
        picture_->setFrameColor(color(well_));
    return QObject::eventFilter(object, event);
}

void PaneDesktop::showPress(const AgentKeysText &text)
{
    setStringValue(control("pressNowField"), text.press);
    QStringList spoken = text.modifierNames;
    for (QString &name : spoken)
        name = name.section(u' ', 0, -2);
    if (auto *line = qobject_cast<KeyCapsLine *>(control("pressNowField"))) {
        line->setSentence(text.pressSentence, {text.modifierNames, text.keyNames},
            text.pressSentence.isEmpty() ? QString()
                                         : text.pressSentence.arg(spoken.join(u' '), text.keyNames.join(u' ')));
    }
}

QString PaneDesktop::localized(const char *text) const
{
    return bundle_->localizedStringForKeyValueTable(QString::fromUtf8(text), {}, {});
}

void PaneDesktop::showPresence()
{
    static const QHash<AgentPresence::State, const char *> sentences{
        {AgentPresence::Unknown, "Turn &Lumaroo on with this switch."},
        {AgentPresence::Off, "Turn &Lumaroo on with this switch."},
        {AgentPresence::Runs, "&Lumaroo runs in the background. It stays on when you close this window."},
        {AgentPresence::Ended,
            "&Lumaroo has ended by itself: it crashed or was stopped. Turn it on again with this switch."},
        {AgentPresence::CannotStart,
            "&Lumaroo could not be started. Install it again, then turn it on with this switch."}};
    const bool isRemoved =
        bundle_->pathForResourceOfType(QStringLiteral("LumarooAgent"), QStringLiteral("app")).isEmpty();
    const bool runs = presence_.state() == AgentPresence::Runs;
    const QString text =
        localized(isRemoved && !runs ? "&Lumaroo was removed from this computer. Install it again to turn it on."
                                     : sentences.value(presence_.state()));
    QWidget *line = control("stateHint");
    if (!line || stringValue(line) == text)
        return;
    setStringValue(line, text);
    alertAssistiveTools(line);
}

void PaneDesktop::showKeys(const AgentKeys &keys)
{
    keys_ = keys;
    const AgentKeysText text = agentKeysText(keys, bundle_);
    showPress(text);
    setStringValue(control("keysStateField"), isKeptAwayByWayland(keys) ? localized(onWayland) : text.state);
    setStringValue(control("modifierHint"), text.modifiers.isEmpty() ? modifierHint_ : text.modifiers);
    setStringValue(control("heldKeysField"), text.held);
    // An assistive tool reads a text that is not there as well.
    setStringValue(control("freeModifiersButton"), text.offer);
    setHidden(control("freeModifiersButton"), text.offer.isEmpty());
    showMarkers(bundle_->localizedStringForKeyValueTable(
        QStringLiteral("Another program uses this key with the modifier keys."), {}, {}));
}

void PaneDesktop::showMarkers(const QString &reason)
{
    if (!view_)
        return;
    const auto markers = view_->findChildren<HeldKeyMarker *>();
    for (HeldKeyMarker *marker : markers)
        marker->setReason(keys_.isHeldByOthers(marker->row()) ? reason : QString());
}

bool PaneDesktop::setStartsAtLogin(bool on)
{
    const QString application = bundle_->pathForResourceOfType(QStringLiteral("LumarooAgent"), QStringLiteral("app"));
    const QString program = NSBundle::executablePathNamedBy(NSBundle::infoDictionaryOnDisk(application), application);
    const QString failure =
        program.isEmpty() ? QStringLiteral("there is no agent to start") : setStartAtLogin(on, program);
    if (!failure.isEmpty())
        NSLog(QStringLiteral("lumaroo: pane: start at login: ") + failure);
    showStartAtLogin();
    return failure.isEmpty();
}

void PaneDesktop::showStartAtLogin()
{
    setState(control("startAtLoginButton"), startsAtLogin() ? NSOnState : NSOffState);
}

QWidget *PaneDesktop::control(const char *name) const
{
    return view_ ? view_->findChild<QWidget *>(QString::fromLatin1(name)) : nullptr;
}
