#include "agent/notices/Notices.h"

#include "platform/foundation/system/NSLog.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QTimer>
#include <QUrl>
#include <QVariantMap>
#include <chrono>
#include <utility>

using namespace std::chrono_literals;

namespace {

const QString service = QStringLiteral("org.freedesktop.Notifications");
const QString path = QStringLiteral("/org/freedesktop/Notifications");
const QString buttonAction = QStringLiteral("button");
const QString secondAction = QStringLiteral("second");
const QString clickAction = QStringLiteral("default");
constexpr auto patience = 2s;
constexpr int longestAnswer = 60000; // milliseconds, of a server that is started for it
constexpr int asLongAsTheDesktopLikes = -1;

QStringList actionsOf(const Notice &notice)
{
    QStringList actions;
    if (!notice.button.isEmpty())
        actions << buttonAction << notice.button;
    if (!notice.secondButton.isEmpty())
        actions << secondAction << notice.secondButton;
    if (!notice.opening.isEmpty())
        actions << clickAction << notice.opening;
    return actions;
}

void log(const Notice &notice)
{
    NSLog(QStringLiteral("lumaroo: agent: %1: %2").arg(notice.title, notice.text));
}

QDBusMessage notifyCall(const Notice &notice, quint32 replaced)
{
    QDBusMessage call = QDBusMessage::createMethodCall(service, path, service, QStringLiteral("Notify"));
    QVariantMap hints{{QStringLiteral("desktop-entry"), QStringLiteral("com.quorvane.LumarooSettings")}};
    if (!notice.picture.isEmpty())
        hints.insert(QStringLiteral("image-path"), QUrl::fromLocalFile(notice.picture).toString(QUrl::FullyEncoded));
    // A server may take the text for markup.
    call << QStringLiteral("Lumaroo") << replaced << QStringLiteral("com.quorvane.LumarooSettings") << notice.title
         << notice.text.toHtmlEscaped() << actionsOf(notice) << hints << asLongAsTheDesktopLikes;
    return call;
}

} // namespace

Notices::Notices() : server_(new QDBusServiceWatcher(this))
{
    server_->setConnection(QDBusConnection::sessionBus());
    server_->setWatchMode(QDBusServiceWatcher::WatchForOwnerChange);
    connect(server_, &QDBusServiceWatcher::serviceOwnerChanged, this, &Notices::forgetAll);
}

Notices::~Notices()
{
    listen(false);
}

void Notices::tell(const Notice &notice)
{
    // Its answer tells which bubble the next one of the matter takes the place of.
    if (asked_.contains(notice.matter)) {
        waiting_.insert(notice.matter, notice);
        return;
    }
    asked_.insert(notice.matter);
    ask(notice);
}

void Notices::ask(const Notice &notice)
{
    const auto call =
        QDBusConnection::sessionBus().asyncCall(notifyCall(notice, shown_.value(notice.matter)), longestAnswer);
    auto *const answer = new QDBusPendingCallWatcher(call, this);
    auto *const limit = new QTimer(answer);
    limit->setSingleShot(true);
    connect(limit, &QTimer::timeout, this, [this, notice] {
        log(notice);
        goOn(notice.matter);
    });
    limit->start(patience);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer, limit, notice] {
        answer->deleteLater();
        const QDBusPendingReply<quint32> shown = *answer;
        const bool isInTime = limit->isActive();
        if (!shown.isError())
            handleShown(notice, shown.value());
        else if (isInTime)
            log(notice);
        if (isInTime)
            goOn(notice.matter);
    });
}

void Notices::goOn(const QString &matter)
{
    asked_.remove(matter);
    if (waiting_.contains(matter))
        tell(waiting_.take(matter));
}

void Notices::handleShown(const Notice &notice, quint32 id)
{
    shown_.insert(notice.matter, id);
    if (actionsOf(notice).isEmpty())
        pressable_.remove(notice.matter);
    else
        pressable_.insert(notice.matter);
    followShown();
}

void Notices::handleAction(quint32 id, const QString &action)
{
    const QString matter = shown_.key(id);
    if (matter.isEmpty())
        return;
    if (action == buttonAction)
        Q_EMIT pressed(matter);
    else if (action == secondAction)
        Q_EMIT secondPressed(matter);
    else if (action == clickAction)
        Q_EMIT clicked(matter);
}

void Notices::handleClosing(quint32 id)
{
    const QString matter = shown_.key(id);
    shown_.remove(matter);
    pressable_.remove(matter);
    followShown();
}

/// Another server numbers its bubbles anew.
void Notices::forgetAll()
{
    shown_.clear();
    pressable_.clear();
    followShown();
}

void Notices::followShown()
{
    listen(!pressable_.isEmpty());
    server_->setWatchedServices(shown_.isEmpty() ? QStringList() : QStringList{service});
}

void Notices::listen(bool listen)
{
    if (std::exchange(isListening_, listen) == listen)
        return;
    QDBusConnection bus = QDBusConnection::sessionBus();
    const auto follow = [&](const char *signal, const char *slot) {
        if (listen)
            bus.connect(service, path, service, QString::fromLatin1(signal), this, slot);
        else
            bus.disconnect(service, path, service, QString::fromLatin1(signal), this, slot);
    };
    follow("ActionInvoked", SLOT(handleAction(quint32, QString)));
    follow("NotificationClosed", SLOT(handleClosing(quint32)));
}
