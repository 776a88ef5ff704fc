#include "agent/tray/linux/TrayPlace.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>

namespace {

const QString watcher = QStringLiteral("org.kde.StatusNotifierWatcher");
constexpr uint doNotQueue = 4;

/// A name that an icon has to itself: with it, the icon goes.
QString ownName()
{
    return QStringLiteral("org.kde.StatusNotifierItem-%1-1").arg(QCoreApplication::applicationPid());
}

void send(const QString &service, const QString &path, const QString &method, const QVariantList &arguments)
{
    QDBusMessage call = QDBusMessage::createMethodCall(service, path, service, method);
    call.setAutoStartService(false);
    call.setArguments(arguments);
    // Nobody waits for an answer: where there is no such service, one that comes is told of later.
    QDBusConnection::sessionBus().send(call);
}

void sendToBus(const QString &method, const QVariantList &arguments)
{
    send(QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"), method, arguments);
}

} // namespace

TrayPlace::TrayPlace() : desktop_(watcher, QDBusConnection::sessionBus(), QDBusServiceWatcher::WatchForOwnerChange)
{
    // One desktop's may take over from another's in one go.
    connect(&desktop_, &QDBusServiceWatcher::serviceOwnerChanged, this,
        [this](const QString &, const QString &, const QString &owner) {
            if (!owner.isEmpty())
                take();
        });
    sendToBus(QStringLiteral("RequestName"), {ownName(), doNotQueue});
    take();
}

TrayPlace::~TrayPlace()
{
    sendToBus(QStringLiteral("ReleaseName"), {ownName()});
}

void TrayPlace::take() const
{
    send(watcher, QStringLiteral("/StatusNotifierWatcher"), QStringLiteral("RegisterStatusNotifierItem"), {ownName()});
}
