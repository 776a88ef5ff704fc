// How long a change that the agent announces takes until the pane's controls hold it, against a raw signal on the same
// bus plus one read of the settings file in the same run. Needs a session bus and the built pane bundle as argument.

#include "KTXConstants.h"
#include "pane/KTXLumarooPreferencePane.h"
#include "platform/foundation/NSArchiver.h"
#include "platform/foundation/NSBundle.h"
#include "platform/foundation/PropertyList.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QElapsedTimer>
#include <QSaveFile>
#include <algorithm>
#include <cstdio>
#include <functional>
#include <memory>
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
    void changeOverlayColor(const NSColorRef &color)
    {
        QVariantMap domain = readPropertyList(readSettingsFile()).value.toMap();
        domain.insert(KTXOverlayColor, NSArchiver::archivedDataWithRootObject(color));
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

/// Hears the same signal with nothing in between, and reads the file.
class RawReceiver : public QObject
{
    Q_OBJECT

public:
    RawReceiver()
    {
        QDBusConnection::sessionBus().connect(
            {}, path, interface, member, {rawName}, {}, this, SLOT(receive(QString, QString, QVariantMap, bool)));
    }
    qsizetype bytesRead = 0;

public Q_SLOTS:
    void receive(const QString &, const QString &, const QVariantMap &, bool) { bytesRead = readSettingsFile().size(); }
};

double microseconds(const std::function<void()> &post, const std::function<bool()> &hasArrived)
{
    QElapsedTimer timer;
    timer.start();
    post();
    while (!hasArrived())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return double(timer.nsecsElapsed()) / 1000;
}

double median(std::vector<double> values)
{
    const auto middle = values.begin() + std::ptrdiff_t(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

std::unique_ptr<KTXLumarooPreferencePane> openedPane(const QString &bundlePath)
{
    NSBundle *bundle = NSBundle::bundleWithPath(bundlePath);
    auto pane = std::make_unique<KTXLumarooPreferencePane>();
    if (!pane->initWithBundle(bundle) || !pane->loadMainView())
        return nullptr;
    pane->willSelect();
    pane->mainView()->show();
    QCoreApplication::processEvents();
    return pane;
}

} // namespace

int main(int argumentCount, char **arguments)
{
    QApplication application(argumentCount, arguments);
    const auto pane = openedPane(QString::fromLocal8Bit(argumentCount > 1 ? arguments[1] : ""));
    if (!pane || !QDBusConnection::sessionBus().isConnected()) {
        std::fputs("usage: PaneBench PANE-BUNDLE, in a session with a bus\n", stderr);
        return 1;
    }
    Agent agent;
    RawReceiver raw;
    // The well is the control that a reading sets last.
    const auto *well = pane->mainView()->findChild<NSColorWell *>(QStringLiteral("overlayColorWell"));
    std::vector<double> rawTimes;
    std::vector<double> paneTimes;
    for (int round = -warmUpRounds; round < rounds; ++round) {
        const float red = float(round & 0xff) / 0xff;
        agent.changeOverlayColor(NSColor::colorWithCalibratedRGBA(red, 0, 0, 1));
        raw.bytesRead = 0;
        const double rawTime = microseconds([&] { agent.post(rawName); }, [&] { return raw.bytesRead > 0; });
        const NSColorRef before = well->color();
        const double paneTime =
            microseconds([&] { agent.post(KTXLMPrefsChanged); }, [&] { return well->color() != before; });
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
    return well->color()->rgba()[0] == float((rounds - 1) & 0xff) / 0xff ? 0 : 1;
}

#include "PaneBench.moc"
