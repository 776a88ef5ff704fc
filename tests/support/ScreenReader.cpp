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

QString nameOf(const QDBusConnection &bus, const QString &service, const QString &object)
{
    QDBusMessage question = QDBusMessage::createMethodCall(
        service, object, QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
    question << accessible << QStringLiteral("Name");
    return QDBusReply<QDBusVariant>(bus.call(question)).value().variant().toString();
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
    const QString service = connectionOf(process);
    if (!service.isEmpty())
        collect(service, QStringLiteral("/org/a11y/atspi/accessible/root"), texts);
    return texts;
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

void ScreenReader::collect(const QString &service, const QString &object, QStringList &texts) const
{
    texts += nameOf(readers_, service, object);
    for (const QString &child : childrenOf(readers_, service, object))
        collect(service, child, texts);
}
