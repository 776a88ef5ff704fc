// How long a notification takes from its posting until its handler ran, against a raw signal on the same bus in the
// same run.

#include "bench/Median.h"
#include "platform/foundation/notifications/NSDistributedNotificationCenter.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QElapsedTimer>
#include <QEventLoop>
#include <cstdio>
#include <vector>

namespace {

constexpr int warmUpRounds = 200;
constexpr int rounds = 4000;
const char *const rawPath = "/raw";
const char *const rawInterface = "com.quorvane.Raw";
const char *const rawMember = "Signal";

/// Waits for one arrival at a time, on the run loop.
class Arrival : public QObject
{
    Q_OBJECT

public:
    void wait()
    {
        while (!hasArrived_)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        hasArrived_ = false;
    }

public Q_SLOTS:
    void arrive() { hasArrived_ = true; }
    void receive(const QDBusMessage &) { arrive(); }

private:
    bool hasArrived_ = false;
};

template <typename Post>
double microseconds(Arrival &arrival, Post post)
{
    QElapsedTimer timer;
    timer.start();
    post();
    arrival.wait();
    return double(timer.nsecsElapsed()) / 1000;
}

void postRawSignal()
{
    QDBusConnection::sessionBus().send(QDBusMessage::createSignal(rawPath, rawInterface, rawMember));
}

void postNotification()
{
    NSDistributedNotificationCenter::defaultCenter()->postNotificationNameObjectUserInfoDeliverImmediately(
        QStringLiteral("Lumaroo Preferences Changed"), QStringLiteral("com.quorvane.LumarooAgent"), {}, true);
}

} // namespace

int main(int argumentCount, char **arguments)
{
    QCoreApplication application(argumentCount, arguments);
    if (!QDBusConnection::sessionBus().isConnected()) {
        std::fputs("BusBench: there is no session bus\n", stderr);
        return 1;
    }
    Arrival raw;
    QDBusConnection::sessionBus().connect({}, rawPath, rawInterface, rawMember, &raw, SLOT(receive(QDBusMessage)));
    Arrival notification;
    NSDistributedNotificationCenter::defaultCenter()->addObserverSelectorNameObject(
        &notification, [&notification](const NSNotification &) { notification.arrive(); },
        QStringLiteral("Lumaroo Preferences Changed"), QStringLiteral("com.quorvane.LumarooAgent"));

    std::vector<double> rawTimes;
    std::vector<double> notificationTimes;
    for (int round = -warmUpRounds; round < rounds; ++round) {
        const double rawTime = microseconds(raw, postRawSignal);
        const double notificationTime = microseconds(notification, postNotification);
        if (round >= 0) {
            rawTimes.push_back(rawTime);
            notificationTimes.push_back(notificationTime);
        }
    }
    const double floor = median(rawTimes);
    const double ours = median(notificationTimes);
    std::printf("notification until its handler ran: %.1f us; raw signal: %.1f us; ratio %.2f (medians of %d)\n", ours,
        floor, ours / floor, rounds);
    return 0;
}

#include "BusBench.moc"
