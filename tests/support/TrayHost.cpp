#include "TrayHost.h"

#include "Wait.h"

#include <QDBusArgument>
#include <QDBusConnectionInterface>
#include <QDBusObjectPath>
#include <QDBusPendingCall>
#include <QDBusPendingCallWatcher>
#include <QDBusVariant>

namespace {

const QString watcher = QStringLiteral("org.kde.StatusNotifierWatcher");
const QString iconPath = QStringLiteral("/StatusNotifierItem");
const QString iconInterface = QStringLiteral("org.kde.StatusNotifierItem");
const QString menuInterface = QStringLiteral("com.canonical.dbusmenu");

/// A line of a menu with those below it.
QMap<int, QVariantMap> linesIn(const QDBusArgument &node)
{
    QMap<int, QVariantMap> lines;
    int id = 0;
    QVariantMap properties;
    QVariantList children;
    node.beginStructure();
    node >> id >> properties >> children;
    node.endStructure();
    lines.insert(id, properties);
    for (const QVariant &child : std::as_const(children))
        lines.insert(linesIn(child.value<QDBusArgument>()));
    return lines;
}

} // namespace

TrayHost::TrayHost(const QString &connection)
    : bus_(QDBusConnection::connectToBus(QDBusConnection::SessionBus, connection))
{
    living_.setConnection(bus_);
    living_.setWatchMode(QDBusServiceWatcher::WatchForUnregistration);
    connect(&living_, &QDBusServiceWatcher::serviceUnregistered, this, &TrayHost::forget);
    for (const QString &interface : {iconInterface, menuInterface})
        bus_.connect({}, {}, interface, {}, this, SLOT(hear(QDBusMessage)));
    bus_.registerObject(QStringLiteral("/StatusNotifierWatcher"), this,
        QDBusConnection::ExportScriptableSlots | QDBusConnection::ExportScriptableProperties);
    bus_.interface()->registerService(watcher, QDBusConnectionInterface::QueueService);
}

TrayHost::~TrayHost()
{
    QDBusConnection::disconnectFromBus(bus_.name());
}

bool TrayHost::hasIcon() const
{
    return waitUntil([this] { return icons_.size() == 1; });
}

void TrayHost::RegisterStatusNotifierItem(const QString &service)
{
    ++arrivals_;
    if (icons_.contains(service))
        return;
    icons_ += service;
    living_.addWatchedService(service);
}

void TrayHost::forget(const QString &service)
{
    icons_.removeAll(service);
    living_.removeWatchedService(service);
}

QDBusMessage TrayHost::callAt(
    const QString &path, const QString &interface, const QString &method, const QVariantList &arguments) const
{
    QDBusMessage message = QDBusMessage::createMethodCall(icons_.value(0), path, interface, method);
    message.setArguments(arguments);
    const QDBusPendingCallWatcher answer(bus_.asyncCall(message));
    waitUntil([&] { return answer.isFinished(); });
    return answer.reply();
}

QDBusMessage TrayHost::call(const QString &method, const QVariantList &arguments) const
{
    return callAt(iconPath, iconInterface, method, arguments);
}

QDBusMessage TrayHost::callMenu(const QString &method, const QVariantList &arguments) const
{
    return callAt(property(QStringLiteral("Menu")).value<QDBusObjectPath>().path(), menuInterface, method, arguments);
}

QVariant TrayHost::property(const QString &name) const
{
    const QDBusMessage answer = callAt(
        iconPath, QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"), {iconInterface, name});
    return answer.arguments().value(0).value<QDBusVariant>().variant();
}

QString TrayHost::toolTip() const
{
    const QDBusArgument argument = property(QStringLiteral("ToolTip")).value<QDBusArgument>();
    QString iconName, title, text;
    argument.beginStructure();
    argument >> iconName;
    argument.beginArray();
    argument.endArray();
    argument >> title >> text;
    argument.endStructure();
    return title + u'|' + text;
}

QMap<int, TrayHost::Line> TrayHost::menu() const
{
    const QDBusMessage answer = callMenu(QStringLiteral("GetLayout"), {0, -1, QStringList()});
    const QMap<int, QVariantMap> all = linesIn(answer.arguments().value(1).value<QDBusArgument>());
    QMap<int, Line> lines;
    for (auto line = all.cbegin(); line != all.cend(); ++line) {
        lines.insert(line.key(),
            {line->value(QStringLiteral("label")).toString(), line->value(QStringLiteral("type")).toString(),
                line->value(QStringLiteral("toggle-state"), -1).toInt()});
    }
    lines.remove(0);
    return lines;
}

void TrayHost::choose(int id) const
{
    callMenu(QStringLiteral("Event"),
        {id, QStringLiteral("clicked"), QVariant::fromValue(QDBusVariant(QString())), uint(0)});
}
