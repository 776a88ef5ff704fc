#include "ScreenReader.h"

#include "Wait.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusReply>
#include <QDBusVariant>
#include <gtest/gtest.h>

namespace {

constexpr auto launcherProgram = "/usr/libexec/at-spi-bus-launcher"; // of the package at-spi2-core
const QString accessible = QStringLiteral("org.a11y.atspi.Accessible");

QString propertyOf(const QDBusConnection &bus, const QString &service, const QString &object, const QString &property)
{
    QDBusMessage question = QDBusMessage::createMethodCall(
        service, object, QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
    question << accessible << property;
    return QDBusReply<QDBusVariant>(bus.call(question)).value().variant().toString();
}

QString roleOf(const QDBusConnection &bus, const QString &service, const QString &object)
{
    return QDBusReply<QString>(
        bus.call(QDBusMessage::createMethodCall(service, object, accessible, QStringLiteral("GetRoleName"))))
        .value();
}

quint64 statesOf(const QDBusConnection &bus, const QString &service, const QString &object)
{
    const QDBusMessage answer =
        bus.call(QDBusMessage::createMethodCall(service, object, accessible, QStringLiteral("GetState")));
    if (answer.type() != QDBusMessage::ReplyMessage)
        return 0;
    const auto halves = qdbus_cast<QList<uint>>(answer.arguments().constFirst());
    return halves.value(0) | quint64(halves.value(1)) << 32;
}

QRect placeOf(const QDBusConnection &bus, const QString &service, const QString &object)
{
    QDBusMessage question = QDBusMessage::createMethodCall(
        service, object, QStringLiteral("org.a11y.atspi.Component"), QStringLiteral("GetExtents"));
    question << uint(0); // on the screen
    const QDBusMessage answer = bus.call(question);
    if (answer.type() != QDBusMessage::ReplyMessage)
        return {};
    return qdbus_cast<QRect>(answer.arguments().constFirst().value<QDBusArgument>());
}

QStringList childrenOf(const QDBusConnection &bus, const QString &service, const QString &object)
{
    const QDBusMessage answer =
        bus.call(QDBusMessage::createMethodCall(service, object, accessible, QStringLiteral("GetChildren")));
    QStringList children;
    if (answer.type() != QDBusMessage::ReplyMessage)
        return children;
    const QDBusArgument list = answer.arguments().constFirst().value<QDBusArgument>();
    for (list.beginArray(); !list.atEnd();) {
        QString childsService;
        QDBusObjectPath child;
        list.beginStructure();
        list >> childsService >> child;
        list.endStructure();
        if (childsService == service)
            children += child.path();
    }
    list.endArray();
    return children;
}

/// The objects of a list of them.
QStringList pathsIn(const QDBusArgument &list)
{
    QStringList paths;
    for (list.beginArray(); !list.atEnd();) {
        QString service;
        QDBusObjectPath path;
        list.beginStructure();
        list >> service >> path;
        list.endStructure();
        paths += path.path();
    }
    list.endArray();
    return paths;
}

/// Not by the connection's own interface object: its end and the connection's may meet in the bus library's thread.
QDBusMessage askBus(const QDBusConnection &bus, const QString &method, const QVariantList &arguments = {})
{
    const QString service = QStringLiteral("org.freedesktop.DBus");
    QDBusMessage question =
        QDBusMessage::createMethodCall(service, QStringLiteral("/org/freedesktop/DBus"), service, method);
    question.setArguments(arguments);
    return bus.call(question);
}

} // namespace

ScreenReader::ScreenReader()
{
    qputenv("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1");
    launcher_.start(QString::fromLatin1(launcherProgram), {QStringLiteral("--launch-immediately")});
    QDBusMessage question = QDBusMessage::createMethodCall(QStringLiteral("org.a11y.Bus"),
        QStringLiteral("/org/a11y/bus"), QStringLiteral("org.a11y.Bus"), QStringLiteral("GetAddress"));
    QString address;
    EXPECT_TRUE(waitUntil([&] {
        address = QDBusReply<QString>(QDBusConnection::sessionBus().call(question)).value();
        return !address.isEmpty();
    }));
    readers_ = QDBusConnection::connectToBus(address, QStringLiteral("screen reader"));
}

ScreenReader::~ScreenReader()
{
    qunsetenv("QT_LINUX_ACCESSIBILITY_ALWAYS_ON");
    QDBusConnection::disconnectFromBus(readers_.name());
    launcher_.terminate();
    launcher_.waitForFinished();
}

QStringList ScreenReader::textsOf(qint64 process) const
{
    QStringList texts;
    for (const ToldObject &object : named(process))
        texts += object.name;
    return texts;
}

QList<ToldObject> ScreenReader::objectsOf(qint64 process) const
{
    QList<ToldObject> objects = named(process);
    const QString service = connectionOf(process);
    for (ToldObject &object : objects) {
        object.role = roleOf(readers_, service, object.path);
        object.description = propertyOf(readers_, service, object.path, QStringLiteral("Description"));
        object.states = statesOf(readers_, service, object.path);
        object.place = placeOf(readers_, service, object.path);
    }
    return objects;
}

/// All objects with their names alone, which is quick.
QList<ToldObject> ScreenReader::named(qint64 process) const
{
    QList<ToldObject> objects;
    const QString service = connectionOf(process);
    if (!service.isEmpty())
        collect(service, QStringLiteral("/org/a11y/atspi/accessible/root"), 0, objects);
    return objects;
}

QString ScreenReader::labelOf(qint64 process, const ToldObject &object) const
{
    constexpr uint labelledBy = 2;
    const QString service = connectionOf(process);
    const QDBusMessage answer = readers_.call(
        QDBusMessage::createMethodCall(service, object.path, accessible, QStringLiteral("GetRelationSet")));
    const QDBusArgument relations = answer.arguments().value(0).value<QDBusArgument>();
    QString label;
    for (relations.beginArray(); !relations.atEnd();) {
        uint kind = 0;
        relations.beginStructure();
        relations >> kind;
        const QStringList targets = pathsIn(relations);
        relations.endStructure();
        if (kind == labelledBy && !targets.isEmpty())
            label = propertyOf(readers_, service, targets.first(), QStringLiteral("Name"));
    }
    relations.endArray();
    return label;
}

void ScreenReader::press(qint64 process, const ToldObject &object) const
{
    QDBusMessage question = QDBusMessage::createMethodCall(
        connectionOf(process), object.path, QStringLiteral("org.a11y.atspi.Action"), QStringLiteral("DoAction"));
    question << 0;
    EXPECT_TRUE(QDBusReply<bool>(readers_.call(question)).value()) << qPrintable(object.name);
}

bool ScreenReader::waitForText(qint64 process, const QString &text) const
{
    return waitUntil([&] { return textsOf(process).contains(text); });
}

QString ScreenReader::connectionOf(qint64 process) const
{
    for (const QString &name : QDBusReply<QStringList>(askBus(readers_, QStringLiteral("ListNames"))).value()) {
        const bool isUnique = name.startsWith(u':') && name != readers_.baseService();
        const QDBusReply<uint> owner = askBus(readers_, QStringLiteral("GetConnectionUnixProcessID"), {name});
        if (isUnique && owner.isValid() && qint64(owner.value()) == process)
            return name;
    }
    return {};
}

void ScreenReader::collect(const QString &service, const QString &path, int depth, QList<ToldObject> &objects) const
{
    ToldObject object;
    object.path = path;
    object.name = propertyOf(readers_, service, path, QStringLiteral("Name"));
    object.depth = depth;
    objects += object;
    for (const QString &child : childrenOf(readers_, service, path))
        collect(service, child, depth + 1, objects);
}
