// How long a change that the agent announces takes until the pane's controls hold it, against a raw signal on the same
// bus plus one read of the settings file in the same run. Needs a session bus and the built pane bundle as argument.

#include "KTXActionKeys.h"
#include "KTXConstants.h"
#include "bench/Median.h"
#include "bench/OpenedPane.h"
#include "pane/KTXLumarooPreferencePane.h"
#include "platform/foundation/bundles/NSBundle.h"
#include "platform/foundation/preferences/CFPreferences.h"
#include "platform/foundation/propertylists/PropertyList.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QElapsedTimer>
#include <QFile>
#include <QLineEdit>
#include <QSaveFile>
#include <cstdio>
#include <functional>
#include <vector>

namespace {

constexpr int warmUpRounds = 50;
constexpr int rounds = 1000;
const QString path = QStringLiteral("/com/quorvane/DistributedNotificationCenter");
const QString interface = QStringLiteral("com.quorvane.DistributedNotificationCenter");
const QString member = QStringLiteral("Notification");
const QString rawName = QStringLiteral("raw");

QString settingsFile()
{
    return qEnvironmentVariable("XDG_CONFIG_HOME") + QStringLiteral("/lumaroo/com.quorvane.Lumaroo.plist");
}

QByteArray readSettingsFile()
{
    QFile file(settingsFile());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// What the agent does: it changes its file, then says so.
class Agent
{
public:
    void changeLastKey(int keyCode)
    {
        QVariantMap domain = readPropertyList(readSettingsFile()).value.toMap();
        domain.insert(KTXSnapPref, QVariantMap{{KTXKeycode, QString::number(keyCode)}});
        QSaveFile file(settingsFile());
        file.open(QIODevice::WriteOnly);
        file.write(writeBinaryPropertyList(domain));
        file.commit();
    }
    void post(const QString &name) const
    {
        QDBusMessage message = QDBusMessage::createSignal(path, interface, member);
        message << name << KTXLMAgentID << QVariantMap() << true;
        connection_.send(message);
    }

private:
    QDBusConnection connection_ = QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("agent"));
};

/// How long after a posting something happens, for which `mark` is called.
class StopWatch
{
public:
    void mark() { elapsed_ = timer_.nsecsElapsed(); }
    double microsecondsAfter(const std::function<void()> &post)
    {
        // What the round before left to be painted is not counted.
        QCoreApplication::processEvents();
        elapsed_ = 0;
        timer_.start();
        post();
        while (elapsed_ == 0)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        return double(elapsed_) / 1000;
    }

private:
    QElapsedTimer timer_;
    qint64 elapsed_ = 0;
};

/// Hears the same signal with nothing in between, and reads the file.
class RawReceiver : public QObject
{
    Q_OBJECT

public:
    explicit RawReceiver(StopWatch *watch) : watch_(watch)
    {
        QDBusConnection::sessionBus().connect(
            {}, path, interface, member, {rawName}, {}, this, SLOT(receive(QString, QString, QVariantMap, bool)));
    }

public Q_SLOTS:
    void receive(const QString &, const QString &, const QVariantMap &, bool)
    {
        if (!readSettingsFile().isEmpty())
            watch_->mark();
    }

private:
    StopWatch *watch_;
};

const QLineEdit *lastKeyField(const QWidget *view)
{
    for (const QLineEdit *field : view->findChildren<QLineEdit *>()) {
        if (tag(field) == KTXActionKeyCount - 1)
            return field;
    }
    return nullptr;
}

} // namespace

int main(int argumentCount, char **arguments)
{
    QApplication application(argumentCount, arguments);
    // The pane would start the real agent, which writes the file between the stand-in's reading and writing.
    CFPreferencesSetAppValue(KTXFirstLaunch, true, KTXLMAppID);
    CFPreferencesAppSynchronize(KTXLMAppID);
    const auto pane = openedPane(QString::fromLocal8Bit(argumentCount > 1 ? arguments[1] : ""));
    if (!pane || !QDBusConnection::sessionBus().isConnected()) {
        std::fputs("usage: PaneBench PANE-BUNDLE, in a session with a bus\n", stderr);
        return 1;
    }
    Agent agent;
    StopWatch watch;
    const RawReceiver raw(&watch);
    // Of all keys and options this field is the last that a reading sets.
    const QLineEdit *field = lastKeyField(pane->mainView());
    QObject::connect(field, &QLineEdit::textChanged, field, [&watch] { watch.mark(); });
    std::vector<double> rawTimes;
    std::vector<double> paneTimes;
    for (int round = -warmUpRounds; round < rounds; ++round) {
        agent.changeLastKey(round % 2 ? 2 : 3);
        const double rawTime = watch.microsecondsAfter([&] { agent.post(rawName); });
        const double paneTime = watch.microsecondsAfter([&] { agent.post(KTXLMPrefsChanged); });
        if (round >= 0) {
            rawTimes.push_back(rawTime);
            paneTimes.push_back(paneTime);
        }
    }
    const double floor = median(rawTimes);
    const double ours = median(paneTimes);
    std::printf("announced change until the controls hold it: %.1f us; raw signal and one read of the file: %.1f us; "
                "ratio %.2f (medians of %d)\n",
        ours, floor, ours / floor, rounds);
    return 0;
}

#include "PaneBench.moc"
