#include "pane/PaneDesktop.h"

#include "KTXLoginEntry.h"
#include "pane/Controls.h"
#include "platform/appkit/controls/HeldKeyMarker.h"
#include "platform/foundation/bundles/NSBundle.h"
#include "platform/foundation/system/NSLog.h"

PaneDesktop::PaneDesktop(QWidget *view, const NSBundle *bundle, QObject *parent)
    : QObject(parent), view_(view), bundle_(bundle)
{
    connect(&agent_, &AgentWatch::told, this, &PaneDesktop::showKeys);
    connect(&loginEntry_, &LoginEntryWatch::changed, this, &PaneDesktop::showStartAtLogin);
    showKeys({});
    showStartAtLogin();
}

void PaneDesktop::showKeys(const AgentKeys &keys)
{
    keys_ = keys;
    const AgentKeysText text = agentKeysText(keys, bundle_);
    setStringValue(control("pressNowField"), text.press);
    setStringValue(control("keysStateField"), text.state);
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
