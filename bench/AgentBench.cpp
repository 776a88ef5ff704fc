// The agent against a bare program of QtCore and QtDBus in the same run: from the announcement of a change until it has
// read its settings again, against a raw signal and one read of the same file; its resident memory; and how often it
// wakes up at rest. Needs a session bus, and the build folder as argument.

#include "KTXConstants.h"
#include "agent/life/AgentSettings.h"
#include "bench/Median.h"
#include "platform/foundation/notifications/CFNotificationCenter.h"
#include "platform/foundation/notifications/SessionBus.h"
#include "platform/foundation/preferences/CFPreferences.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QThread>
#include <cstdio>
#include <vector>

namespace {

constexpr int warmUpRounds = 50;
constexpr int rounds = 1000;
constexpr int longestWait = 10000; // milliseconds
constexpr int restSeconds = 5;

/// A program that writes a line for each thing that it has done.
class Program
{
public:
    Program(const QString &path, const QString &argument)
    {
        process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process_.start(path, {argument});
    }
    ~Program()
    {
        process_.kill();
        process_.waitForFinished();
    }

    bool waitForLine(const char *beginning)
    {
        for (;;) {
            while (process_.canReadLine()) {
                if (process_.readLine().startsWith(beginning))
                    return true;
            }
            if (!process_.waitForReadyRead(longestWait))
                return false;
        }
    }

    double residentMebibytes() const { return numberIn(folder() + QStringLiteral("/status"), "VmRSS:") / 1024; }

    /// How often its threads have run so far.
    double wakeUps() const
    {
        double sum = 0;
        const QString tasks = folder() + QStringLiteral("/task");
        for (const QString &task : QDir(tasks).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
            const QString status = tasks + u'/' + task + QStringLiteral("/status");
            sum += numberIn(status, "\nvoluntary_ctxt_switches:") + numberIn(status, "nonvoluntary_ctxt_switches:");
        }
        return sum;
    }

private:
    QString folder() const { return QStringLiteral("/proc/%1").arg(process_.processId()); }
    static double numberIn(const QString &path, const QByteArray &label)
    {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly))
            return 0;
        const QByteArray content = file.readAll();
        const qsizetype start = content.indexOf(label) + label.size();
        return content.mid(start, content.indexOf('\n', start) - start).trimmed().split(' ').first().toDouble();
    }

    QProcess process_;
};

/// Everything that the pane stores, and what the agent has by itself.
void storeEverything()
{
    const QVariantMap settings = effectiveSettings({});
    for (auto setting = settings.cbegin(); setting != settings.cend(); ++setting)
        CFPreferencesSetAppValue(setting.key(), setting.value(), KTXLMAppID);
    CFPreferencesSetAppValue(KTXFirstLaunch, true, KTXLMAppID);
}

bool storeChange(int number)
{
    CFPreferencesSetAppValue(KTXInitialDelay, float(number) / 1024, KTXLMAppID);
    return CFPreferencesAppSynchronize(KTXLMAppID);
}

void postRawSignal()
{
    QDBusConnection::sessionBus().send(QDBusMessage::createSignal(
        QStringLiteral("/raw"), QStringLiteral("com.quorvane.Raw"), QStringLiteral("Signal")));
}

void announceChange()
{
    CFNotificationCenterPostNotification(
        CFNotificationCenterGetDistributedCenter(), KTXLMPrefsChanged, KTXLMAppID, {}, true);
}

/// Microseconds, or a negative number when nothing came.
double timeUntilRead(Program &program, const char *line, void (*post)())
{
    QElapsedTimer timer;
    timer.start();
    post();
    return program.waitForLine(line) ? double(timer.nsecsElapsed()) / 1000 : -1;
}

/// Agent and floor in turns. Each is the first to run after a change, as in life: the machine has done something else
/// meanwhile. False when something was not read.
bool measureReadings(Program &agent, Program &bare)
{
    std::vector<double> figures;
    std::vector<double> floors;
    for (int round = -warmUpRounds; round < 2 * rounds; ++round) {
        if (!storeChange(round))
            return false;
        const bool isFloor = round % 2 == 0;
        const double time = isFloor ? timeUntilRead(bare, "read", postRawSignal)
                                    : timeUntilRead(agent, "settings read", announceChange);
        if (time < 0)
            return false;
        if (round >= 0)
            (isFloor ? floors : figures).push_back(time);
    }
    const double figure = median(figures);
    const double floor = median(floors);
    std::printf("change announced until the agent has read it: %.1f us; raw signal and one read: %.1f us; ratio %.2f "
                "(goal: at most 1.5; medians of %d)\n",
        figure, floor, figure / floor, rounds);
    return true;
}

/// Waits until a program has finished what its start brought along.
void waitForRest(const Program &program)
{
    double before = -1;
    for (int second = 0; second < restSeconds && program.wakeUps() != before; ++second) {
        before = program.wakeUps();
        QThread::sleep(1);
    }
}

void measureRest(const Program &agent, const Program &bare)
{
    waitForRest(agent);
    const double before = agent.wakeUps();
    QThread::sleep(restSeconds);
    std::printf("agent at rest: %.0f wake-ups in %d s (goal: 0)\n", agent.wakeUps() - before, restSeconds);
    const double figure = agent.residentMebibytes();
    const double floor = bare.residentMebibytes();
    std::printf("resident memory then: %.1f MiB; bare program on the bus: %.1f MiB; ratio %.2f (goal: at most 1.3)\n",
        figure, floor, figure / floor);
}

} // namespace

int main(int argumentCount, char **arguments)
{
    QCoreApplication application(argumentCount, arguments);
    if (argumentCount != 2) {
        std::fprintf(stderr, "usage: AgentBench BUILD-FOLDER\n");
        return 2;
    }
    const QString build = QCoreApplication::arguments().at(1);
    storeEverything();
    if (!storeChange(-1)) {
        std::fprintf(stderr, "AgentBench: the settings cannot be stored\n");
        return 1;
    }
    const QString settings =
        qEnvironmentVariable("XDG_CONFIG_HOME") + QStringLiteral("/lumaroo/com.quorvane.Lumaroo.plist");
    Program bare(build + QStringLiteral("/bench/BareBusProgram"), settings);
    Program agent(
        build + QStringLiteral("/Lumaroo.prefPane/Contents/Resources/LumarooAgent.app/Contents/Linux/LumarooAgent"),
        QStringLiteral("--foreground"));
    if (!bare.waitForLine("ready") || !agent.waitForLine("launched") || !waitForSessionBus()) {
        std::fprintf(stderr, "AgentBench: the programs do not start\n");
        return 1;
    }
    measureRest(agent, bare);
    if (!measureReadings(agent, bare)) {
        std::fprintf(stderr, "AgentBench: no reading came about\n");
        return 1;
    }
    return 0;
}
