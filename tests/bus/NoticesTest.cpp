// Bubbles of a server that takes its time, and of one that another server follows.

#include "agent/notices/Notices.h"
#include "Wait.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusVirtualObject>
#include <QSignalSpy>
#include <gtest/gtest.h>

namespace {

const QString service = QStringLiteral("org.freedesktop.Notifications");

/// A server that answers when it is told to. It has the name once no other one has.
class PatientServer
{
public:
    explicit PatientServer(const QString &name)
        : name_(name), bus_(QDBusConnection::connectToBus(QDBusConnection::SessionBus, name))
    {
        EXPECT_TRUE(bus_.registerVirtualObject("/org/freedesktop/Notifications", &object_));
        EXPECT_TRUE(bus_.interface()->registerService(service, QDBusConnectionInterface::QueueService));
    }
    ~PatientServer() { QDBusConnection::disconnectFromBus(name_); }

    qsizetype calls() const { return object_.calls.size(); }
    /// What one of the calls says, counted from 0.
    quint32 replaced(qsizetype call) const { return object_.calls.at(call).arguments().at(1).toUInt(); }
    QString title(qsizetype call) const { return object_.calls.at(call).arguments().at(3).toString(); }
    void answer(qsizetype call, quint32 id) { bus_.send(object_.calls.at(call).createReply(id)); }
    void press(quint32 id)
    {
        QDBusMessage signal = QDBusMessage::createSignal("/org/freedesktop/Notifications", service, "ActionInvoked");
        signal << id << "button";
        bus_.send(signal);
        // What others send from now on comes behind it.
        bus_.interface()->isServiceRegistered(service);
    }
    bool isHere() const { return bus_.interface()->serviceOwner(service) == bus_.baseService(); }
    void end() { bus_.interface()->unregisterService(service); }

private:
    class Object : public QDBusVirtualObject
    {
    public:
        QString introspect(const QString &) const override { return {}; }
        bool handleMessage(const QDBusMessage &message, const QDBusConnection &) override
        {
            calls += message;
            return true;
        }
        QList<QDBusMessage> calls;
    };
    const QString name_;
    QDBusConnection bus_;
    Object object_;
};

class NoticesOnBus : public testing::Test
{
protected:
    void tell(const QString &title) { notices.tell({"matter", title, "text", "Press"}); }
    /// Until it is heard.
    bool press(PatientServer &server, quint32 id)
    {
        pressed.clear();
        return waitUntil([&] {
            server.press(id);
            return !pressed.isEmpty();
        });
    }

    Notices notices;
    QSignalSpy pressed{&notices, &Notices::pressed};
};

} // namespace

TEST_F(NoticesOnBus, areForgottenWithAServerWhoseNamePassesToAnotherInOneGo)
{
    PatientServer first("first"), second("second");
    tell("one");
    ASSERT_TRUE(waitUntil([&] { return first.calls() == 1; }));
    first.answer(0, 7);
    ASSERT_TRUE(press(first, 7));
    first.end();
    ASSERT_TRUE(waitUntil([&] { return second.isHere(); }));
    QDBusConnection::sessionBus().interface()->isServiceRegistered(service);
    runPendingEvents();
    pressed.clear();
    second.press(7);
    tell("two");
    ASSERT_TRUE(waitUntil([&] { return second.calls() == 1; }));
    EXPECT_EQ(second.replaced(0), 0U) << "its number 7 is another program's";
    EXPECT_EQ(pressed.size(), 0);
}

TEST_F(NoticesOnBus, ofOneMatterAreOneBubbleAlsoBeforeTheFirstIsShown)
{
    PatientServer server("server");
    for (const char *title : {"one", "two", "three"})
        tell(title);
    ASSERT_TRUE(waitUntil([&] { return server.calls() > 0; }));
    server.answer(0, 7);
    ASSERT_TRUE(waitUntil([&] { return server.calls() == 2; }));
    EXPECT_EQ(server.replaced(1), 7U);
    EXPECT_EQ(server.title(1), "three") << "nobody needs the one in between";
    server.answer(1, 7);
    EXPECT_TRUE(press(server, 7));
    tell("four");
    ASSERT_TRUE(waitUntil([&] { return server.calls() == 3; }));
    EXPECT_EQ(server.replaced(2), 7U);
}

TEST_F(NoticesOnBus, waitForNoAnswerForLongerThanTwoSeconds)
{
    PatientServer server("server");
    tell("one");
    tell("two");
    ASSERT_TRUE(waitUntil([&] { return server.calls() == 2; }));
    EXPECT_EQ(server.title(1), "two");
    server.answer(1, 8);
    EXPECT_TRUE(press(server, 8));
}
