#include "agent/notices/Notices.h"

#include "platform/foundation/system/NSLog.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QUrl>
#include <QVariantMap>
#include <utility>

namespace {

const QString service = QStringLiteral("org.freedesktop.Notifications");
const QString path = QStringLiteral("/org/freedesktop/Notifications");
const QString buttonAction = QStringLiteral("button");
constexpr int patience = 2000; // milliseconds
constexpr int asLongAsTheDesktopLikes = -1;

QDBusMessage notifyCall(const Notice &notice, quint32 replaced)
{
    QDBusMessage call = QDBusMessage::createMethodCall(service, path, service, QStringLiteral("Notify"));
    const QStringList actions = notice.button.isEmpty() ? QStringList() : QStringList{buttonAction, notice.button};
    QVariantMap hints{{QStringLiteral("desktop-entry"), QStringLiteral("com.quorvane.LumarooSettings")}};
    if (!notice.picture.isEmpty())
        hints.insert(QStringLiteral("image-path"), QUrl::fromLocalFile(notice.picture).toString(QUrl::FullyEncoded));
    // A server may take the text for markup.
    call << QStringLiteral("Lumaroo") << replaced << QStringLiteral("com.quorvane.LumarooSettings") << notice.title
         << notice.text.toHtmlEscaped() << actions << hints << asLongAsTheDesktopLikes;
    return call;
}

} // namespace

Notices::~Notices()
{
    listen(false);
}

void Notices::tell(const Notice &notice)
{
    const auto call =
        QDBusConnection::sessionBus().asyncCall(notifyCall(notice, shown_.value(notice.matter)), patience);
    auto *const answer = new QDBusPendingCallWatcher(call, this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer, notice] {
        answer->deleteLater();
        const QDBusPendingReply<quint32> shown = *answer;
        if (shown.isError())
            NSLog(QStringLiteral("lumaroo: agent: %1: %2").arg(notice.title, notice.text));
        else if (!notice.button.isEmpty())
            handleShown(notice, shown.value());
    });
}

void Notices::handleShown(const Notice &notice, quint32 id)
{
    shown_.insert(notice.matter, id);
    listen(true);
}

void Notices::handleAction(quint32 id, const QString &action)
{
    const QString matter = shown_.key(id);
    if (!matter.isEmpty() && action == buttonAction)
        Q_EMIT pressed(matter);
}

void Notices::handleClosing(quint32 id)
{
    forget(id);
}

void Notices::forget(quint32 id)
{
    shown_.remove(shown_.key(id));
    if (shown_.isEmpty())
        listen(false);
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
