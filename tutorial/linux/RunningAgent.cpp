#include "tutorial/RunningAgent.h"

#include "KTXConstants.h"
#include "platform/foundation/bundles/NSBundle.h"
#include "platform/foundation/notifications/CFNotificationCenter.h"
#include "platform/foundation/notifications/NSDistributedNotificationCenter.h"
#include "platform/foundation/processes/LaunchServices.h"
#include "platform/foundation/system/NSLog.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QDir>
#include <functional>

namespace {

const QString &service = KTXLMAgentID;
const QString path = QStringLiteral("/com/quorvane/LumarooAgent");
constexpr int patience = 5000; // milliseconds

bool meansNoOwner(const QDBusError &error)
{
    return error.type() == QDBusError::ServiceUnknown
        || error.name() == QStringLiteral("org.freedesktop.DBus.Error.NameHasNoOwner");
}

void call(QObject *caller, const QString &method, const std::function<void(const QDBusMessage &)> &handle)
{
    QDBusMessage message = QDBusMessage::createMethodCall(service, path, service, method);
    message.setAutoStartService(false);
    auto *const answer =
        new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(message, patience), caller);
    QObject::connect(answer, &QDBusPendingCallWatcher::finished, caller, [answer, handle] {
        answer->deleteLater();
        handle(answer->reply());
    });
}

} // namespace

RunningAgent::RunningAgent()
{
    auto *const owner =
        new QDBusServiceWatcher(service, QDBusConnection::sessionBus(), QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(owner, &QDBusServiceWatcher::serviceRegistered, this, &RunningAgent::ask);
    connect(owner, &QDBusServiceWatcher::serviceUnregistered, this, &RunningAgent::handleEnd);
    const auto relay = [this](const char *name, const char *signal) {
        QDBusConnection::sessionBus().connect(service, path, service, QString::fromLatin1(name), this, signal);
    };
    relay("SelectionBegan", SIGNAL(selectionBegan()));
    relay("SelectionMoved", SIGNAL(selectionMoved()));
    relay("SelectionAccepted", SIGNAL(selectionAccepted()));
    relay("SelectionCancelled", SIGNAL(selectionCancelled()));
    relay("SelectionRefused", SIGNAL(selectionRefused()));
    relay("HotKeysChanged", SIGNAL(keysChanged()));
    connect(this, &RunningAgent::keysChanged, this, &RunningAgent::ask);
    for (const QString &name : {KTXLMAgentLaunched, KTXLMPrefsChanged})
        NSDistributedNotificationCenter::defaultCenter()->addObserverSelectorNameObject(
            this, [this](const NSNotification &) { ask(); }, name);
}

bool RunningAgent::isBusThere()
{
    return QDBusConnection::sessionBus().isConnected();
}

void RunningAgent::ask()
{
    call(this, QStringLiteral("Settings"), [this, question = ++question_](const QDBusMessage &answer) {
        if (question != question_)
            return;
        if (answer.type() == QDBusMessage::ReplyMessage)
            handleAnswer(answer.arguments().value(0).toString());
        else if (meansNoOwner(QDBusError(answer)))
            Q_EMIT wentOff();
        else
            Q_EMIT saidNothing();
    });
}

void RunningAgent::askAfterReading()
{
    call(this, QStringLiteral("ReadSettings"), [this](const QDBusMessage &) { ask(); });
}

/// One that has yet to read its settings announces itself afterwards.
void RunningAgent::handleAnswer(const QString &json)
{
    if (const auto report = readAgentReport(json))
        Q_EMIT told(*report);
}

void RunningAgent::handleEnd()
{
    ++question_;
    Q_EMIT wentOff();
}

void RunningAgent::switchOn()
{
    CFNotificationCenterPostNotification(
        CFNotificationCenterGetDistributedCenter(), KTXLMRunTutorial, KTXLMAppID, {}, true);
}

bool RunningAgent::start()
{
    const QString bundle =
        QDir::cleanPath(NSBundle::mainBundle()->bundlePath() + QStringLiteral("/../LumarooAgent.app"));
    FSRef application;
    ProcessSerialNumber process;
    OSStatus status = FSPathMakeRef(bundle, &application);
    if (status == noErr) {
        const LSApplicationParameters parameters{0, kLSLaunchDontSwitch | kLSLaunchAsync, &application};
        status = LSOpenApplication(&parameters, &process);
    }
    if (status != noErr)
        NSLog(QStringLiteral("lumaroo: tutorial: the agent %1 does not start (%2)").arg(bundle).arg(status));
    return status == noErr;
}
