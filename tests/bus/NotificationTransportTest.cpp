// What goes over the bus: filters, signatures, types, waiting.

#include "BusRecorder.h"
#include "Wait.h"
#include "platform/foundation/notifications/NSDistributedNotificationCenter.h"
#include "platform/foundation/notifications/linux/NotificationMessage.h"

#include <QDBusArgument>
#include <QDBusConnectionInterface>
#include <QDBusObjectPath>
#include <QDBusReply>
#include <QDBusVariant>
#include <QXmlStreamReader>
#include <csignal>
#include <gtest/gtest.h>

namespace {

const QString signalPath = "/com/quorvane/DistributedNotificationCenter";
const QString signalInterface = "com.quorvane.DistributedNotificationCenter";

class NotificationTransport : public testing::Test
{
protected:
    NotificationTransport()
    {
        const auto record = [this](const NSNotification &notification) { received += notification; };
        center->addObserverSelectorNameObject(&observer, record, "Name");
    }
    ~NotificationTransport() override { center->removeObserver(&observer); }

    NSNotification next()
    {
        EXPECT_TRUE(waitUntil([this] { return !received.isEmpty(); }));
        return received.isEmpty() ? NSNotification() : received.takeFirst();
    }

    /// A value as it reaches an observer after another program sent it.
    QVariant valueAfterSending(const QVariant &value)
    {
        others.post("Name", {}, {{"value", value}});
        return next().userInfo.value("value");
    }

    /// A value as it comes back to an observer here after it was posted here.
    QVariant valueAfterPosting(const QVariant &value)
    {
        center->postNotificationNameObjectUserInfoDeliverImmediately("Name", {}, {{"value", value}}, true);
        return next().userInfo.value("value");
    }

    /// The match rules that the bus holds for this process's connection.
    QStringList matchRules() const
    {
        QDBusMessage call = QDBusMessage::createMethodCall(
            "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus.Debug.Stats", "GetAllMatchRules");
        const QDBusMessage answer = QDBusConnection::sessionBus().call(call);
        const auto rules = qdbus_cast<QMap<QString, QStringList>>(answer.arguments().value(0));
        return rules.value(QDBusConnection::sessionBus().baseService()).filter(signalInterface);
    }

    NSDistributedNotificationCenter *const center = NSDistributedNotificationCenter::defaultCenter();
    BusRecorder others;
    QObject observer;
    QList<NSNotification> received;
};

QDBusMessage signalWith(const QVariantList &arguments)
{
    QDBusMessage message = QDBusMessage::createSignal(signalPath, signalInterface, "Notification");
    message.setArguments(arguments);
    return message;
}

QVariant structure()
{
    QDBusArgument argument;
    argument.beginStructure();
    argument << 1 << QString("two");
    argument.endStructure();
    return QVariant::fromValue(argument);
}

QVariant nested(int levels)
{
    QVariant value = "innermost";
    for (int level = 0; level < levels; ++level)
        value = QVariantList{value};
    return value;
}

int levelsOf(QVariant value)
{
    int levels = 0;
    for (; value.typeId() == QMetaType::QVariantList && !value.toList().isEmpty(); ++levels)
        value = value.toList().constFirst();
    return levels;
}

} // namespace

Q_DECLARE_METATYPE(QList<QDBusObjectPath>)

TEST_F(NotificationTransport, theBusFiltersByNameAndObject)
{
    QObject second;
    center->addObserverSelectorNameObject(
        &second, [](const NSNotification &) {}, "Other name", "an object");
    center->addObserverSelectorNameObject(
        &second, [](const NSNotification &) {}, "Other's", "an object");
    const QStringList rules = matchRules();
    ASSERT_EQ(rules.size(), 3);
    EXPECT_EQ(rules.filter("arg0='Name'").size(), 1);
    EXPECT_EQ(rules.filter("arg0='Other name'").filter("arg1='an object'").size(), 1);
    EXPECT_EQ(rules.filter("arg1='an object'").size(), 2);
}

TEST_F(NotificationTransport, theBusForgetsTheFilterWithItsLastObserver)
{
    {
        QObject second;
        center->addObserverSelectorNameObject(
            &second, [](const NSNotification &) {}, "Short", "an object");
        center->addObserverSelectorNameObject(
            &observer, [](const NSNotification &) {}, "Short", "an object");
        EXPECT_EQ(matchRules().filter("arg0='Short'").size(), 1);
    }
    EXPECT_EQ(matchRules().filter("arg0='Short'").size(), 1);
    center->removeObserver(&observer);
    EXPECT_TRUE(matchRules().isEmpty());
}

TEST_F(NotificationTransport, signalsOfAnotherSignatureAreIgnored)
{
    others.post(signalWith({}));
    others.post(signalWith({"Name"}));
    others.post(signalWith({"Name", "object"}));
    others.post(signalWith({"Name", 7, QVariantMap(), true}));
    others.post(signalWith({"Name", "object", "user information", true}));
    others.post(signalWith({"Name", "object", QVariantMap(), "true"}));
    others.post(signalWith({"Name", "object", QVariantMap(), true, "more"}));
    others.post("Name", "the right one");
    EXPECT_EQ(next().object, QVariant("the right one"));
    EXPECT_TRUE(received.isEmpty());
}

TEST_F(NotificationTransport, signalsFromAnotherPathAreIgnored)
{
    QDBusMessage elsewhere = QDBusMessage::createSignal("/elsewhere", signalInterface, "Notification");
    elsewhere << "Name"
              << "elsewhere" << QVariantMap() << true;
    others.post(elsewhere);
    others.post("Name", "the right one");
    EXPECT_EQ(next().object, QVariant("the right one"));
}

TEST_F(NotificationTransport, plainValuesArriveAsPlainValues)
{
    EXPECT_EQ(valueAfterSending(true).typeId(), QMetaType::Bool);
    EXPECT_EQ(valueAfterSending("text"), QVariant("text"));
    EXPECT_EQ(valueAfterSending(0.1), QVariant(0.1));
    EXPECT_EQ(valueAfterSending(QByteArray("\0\xff", 2)), QVariant(QByteArray("\0\xff", 2)));
}

TEST_F(NotificationTransport, everyIntegerArrivesAs64Bits)
{
    const QVariantList seven{QVariant::fromValue(uchar(7)), QVariant::fromValue(short(7)),
        QVariant::fromValue(ushort(7)), 7, 7U, qint64(7), quint64(7)};
    for (const QVariant &value : seven) {
        const QVariant arrived = valueAfterSending(value);
        EXPECT_EQ(arrived.typeId(), QMetaType::LongLong) << value.typeName();
        EXPECT_EQ(arrived.toLongLong(), 7) << value.typeName();
    }
    EXPECT_EQ(valueAfterSending(std::numeric_limits<qint64>::min()), QVariant(std::numeric_limits<qint64>::min()));
    EXPECT_EQ(valueAfterSending(-7), QVariant(qint64(-7)));
}

TEST_F(NotificationTransport, variantsAreUnpacked)
{
    EXPECT_EQ(valueAfterSending(QVariant::fromValue(QDBusVariant(QVariant::fromValue(QDBusVariant("inner"))))),
        QVariant("inner"));
}

TEST_F(NotificationTransport, arraysAndDictionariesArriveAsPlainListsAndMaps)
{
    const QVariantMap map{
        {"list", QVariantList{1, "two", QVariantMap{{"three", 3.5}}}}, {"texts", QStringList{"a", "b"}}};
    const QVariant arrived = valueAfterSending(map);
    const QVariantMap expected{
        {"list", QVariantList{qint64(1), "two", QVariantMap{{"three", 3.5}}}}, {"texts", QVariantList{"a", "b"}}};
    EXPECT_EQ(arrived.typeId(), QMetaType::QVariantMap);
    EXPECT_EQ(arrived.toMap(), expected);
    EXPECT_EQ(arrived.toMap().value("texts").typeId(), QMetaType::QVariantList);
    EXPECT_EQ(arrived.toMap().value("list").toList().constFirst().typeId(), QMetaType::LongLong);
}

TEST_F(NotificationTransport, valuesOfUnexpectedTypesCountAsAbsent)
{
    EXPECT_FALSE(valueAfterSending(structure()).isValid());
    EXPECT_FALSE(valueAfterSending(QVariant::fromValue(QDBusObjectPath("/a/path"))).isValid());
    EXPECT_FALSE(valueAfterSending(QVariant::fromValue(QDBusSignature("s"))).isValid());
    EXPECT_FALSE(valueAfterSending(std::numeric_limits<quint64>::max()).isValid());
    const QVariantList mixed{1, QVariant::fromValue(QDBusObjectPath("/a/path")), structure(), "two"};
    EXPECT_EQ(valueAfterSending(mixed), QVariant(QVariantList{qint64(1), "two"}));
}

TEST_F(NotificationTransport, propertyListValuesComeBackAsTheyWerePosted)
{
    const QDateTime date(QDate(2001, 2, 3), QTime(4, 5, 6), Qt::UTC);
    const QVariantMap map{{"bool", false}, {"integer", qint64(1) << 40}, {"double", 0.1}, {"text", "\u2303\u2325"},
        {"data", QByteArray("\0\1", 2)}, {"date", date}, {"list", QVariantList{true, QVariantMap{{"inner", date}}}}};
    const QVariant arrived = valueAfterPosting(map);
    EXPECT_EQ(arrived, QVariant(map));
    EXPECT_EQ(arrived.toMap().value("bool").typeId(), QMetaType::Bool);
    EXPECT_EQ(arrived.toMap().value("date").toDateTime(), date);
    EXPECT_EQ(valueAfterPosting(0.5F), QVariant(0.5));
}

TEST_F(NotificationTransport, whatTheBusCannotCarryIsLeftOutOfThePost)
{
    EXPECT_FALSE(valueAfterPosting(QVariant::fromValue<QObject *>(&observer)).isValid());
    EXPECT_FALSE(valueAfterPosting(QVariant()).isValid());
    EXPECT_FALSE(valueAfterPosting(QDateTime()).isValid());
    EXPECT_EQ(
        valueAfterPosting(QVariantList{1, QVariant(), QSize(1, 2), 2}), QVariant(QVariantList{qint64(1), qint64(2)}));
}

TEST_F(NotificationTransport, whatIsNestedTooDeepIsLeftOutAndThePostArrives)
{
    EXPECT_EQ(levelsOf(valueAfterPosting(nested(10))), 10);
    EXPECT_LT(levelsOf(valueAfterPosting(nested(500))), 20);
    EXPECT_EQ(valueAfterPosting("still there"), QVariant("still there"));
}

TEST_F(NotificationTransport, theDeepestValueThatTheBusCarriesArrives)
{
    EXPECT_EQ(levelsOf(valueAfterSending(nested(20))), 20);
}

TEST_F(NotificationTransport, postingDoesNotWaitForTheBus)
{
    const pid_t bus = qEnvironmentVariableIntValue("LUMAROO_BUS_PID");
    ASSERT_GT(bus, 1);
    ASSERT_EQ(kill(bus, SIGSTOP), 0);
    for (int number = 0; number < 100; ++number)
        center->postNotificationNameObjectUserInfoDeliverImmediately("Name", QString::number(number), {}, true);
    ASSERT_EQ(kill(bus, SIGCONT), 0);
    for (int number = 0; number < 100; ++number)
        EXPECT_EQ(next().object, QVariant(QString::number(number)));
}

TEST_F(NotificationTransport, theCheckedInDescriptionIsThatOfTheSignalsOnTheBus)
{
    QFile file(qEnvironmentVariable("LUMAROO_SOURCE")
        + "/platform/foundation/notifications/com.quorvane.DistributedNotificationCenter.xml");
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    QXmlStreamReader reader(&file);
    QStringList names;
    QString signature;
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement || reader.name() == u"annotation")
            continue;
        names += reader.attributes().value("name").toString();
        signature += reader.attributes().value("type").toString();
    }
    EXPECT_FALSE(reader.hasError());
    EXPECT_EQ(names,
        QStringList({signalPath, signalInterface, "Notification", "name", "object", "userInfo", "deliverImmediately"}));
    const QDBusMessage message = notificationMessage("Name", {}, {}, true);
    EXPECT_EQ(message.path(), signalPath);
    EXPECT_EQ(message.interface(), signalInterface);
    EXPECT_EQ(message.member(), "Notification");
    EXPECT_EQ(signature, notificationSignature());
}
