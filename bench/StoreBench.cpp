// What it costs to set one key and flush it, against writing the same bytes by hand: write, fsync, rename, fsync of the
// folder, in the same folder and the same run. And what a flush costs when nothing has changed.

#include "SystemCallFaults.h"
#include "bench/Median.h"
#include "platform/foundation/preferences/CFPreferences.h"
#include "platform/foundation/preferences/NSUserDefaults.h"

#include <QByteArray>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <cstdio>
#include <fcntl.h>
#include <unistd.h>
#include <vector>

namespace {

constexpr int warmUpRounds = 50;
constexpr int rounds = 300;
const QString domain = QStringLiteral("com.example.bench");

template <typename Operation>
double microseconds(Operation operation)
{
    QElapsedTimer timer;
    timer.start();
    operation();
    return double(timer.nsecsElapsed()) / 1000;
}

bool replaceByHand(const QByteArray &folder, const QByteArray &bytes)
{
    const QByteArray temporary = folder + "/raw.new";
    const int file = open(temporary.constData(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
    bool done = write(file, bytes.constData(), size_t(bytes.size())) == bytes.size() && fsync(file) == 0;
    done = close(file) == 0 && done && rename(temporary.constData(), (folder + "/raw").constData()) == 0;
    const int directory = open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    done = fsync(directory) == 0 && done;
    return close(directory) == 0 && done;
}

/// As many keys, of the same kinds, as the pane's domain has.
QVariantMap filledDomain()
{
    QVariantMap values{{QStringLiteral("color"), QByteArray(126, 'c')}, {QStringLiteral("rate"), 1.0f}};
    for (int number = 0; number < 11; ++number)
        values.insert(QStringLiteral("hotKey%1").arg(number),
            QVariantMap{{QStringLiteral("keycode"), QString::number(100 + number)}});
    for (int number = 0; number < 16; ++number)
        values.insert(QStringLiteral("option%1").arg(number), number % 2 == 0);
    return values;
}

QByteArray settingsFolder()
{
    return QFile::encodeName(qEnvironmentVariable("XDG_CONFIG_HOME")) + "/lumaroo";
}

QByteArray storedBytes()
{
    QFile file(QFile::decodeName(settingsFolder()) + u'/' + domain + QStringLiteral(".plist"));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool setAndFlush(int round)
{
    CFPreferencesSetAppValue(QStringLiteral("modifierKeyMask"), round, domain);
    return CFPreferencesAppSynchronize(domain);
}

bool measureAChange()
{
    std::vector<double> rawTimes;
    std::vector<double> flushTimes;
    bool done = true;
    for (int round = -warmUpRounds; round < rounds; ++round) {
        const QByteArray bytes = storedBytes();
        const double rawTime = microseconds([&] { done = replaceByHand(settingsFolder(), bytes) && done; });
        const double flushTime = microseconds([&] { done = setAndFlush(round) && done; });
        if (round >= 0) {
            rawTimes.push_back(rawTime);
            flushTimes.push_back(flushTime);
        }
    }
    const double floor = median(rawTimes);
    const double ours = median(flushTimes);
    std::printf("one key set and flushed: %.1f us; raw write, fsync, rename, fsync of the folder: %.1f us; ratio %.2f "
                "(goal: at most 1.3; medians of %d)\n",
        ours, floor, ours / floor, rounds);
    return done;
}

bool measureNoChange()
{
    const auto writingCalls = countWritingCalls();
    std::vector<double> times;
    bool done = true;
    for (int round = 0; round < rounds; ++round)
        times.push_back(microseconds([&] { done = setAndFlush(rounds - 1) && done; }));
    std::printf("one key set to what it is and flushed: %.1f us (median of %d), %d system calls that write\n",
        median(times), rounds, *writingCalls);
    return done && *writingCalls == 0;
}

} // namespace

int main()
{
    if (!qEnvironmentVariableIsSet("XDG_CONFIG_HOME")) {
        std::fputs("StoreBench: there is no XDG_CONFIG_HOME\n", stderr);
        return 1;
    }
    NSUserDefaults::standardUserDefaults()->setPersistentDomainForName(filledDomain(), domain);
    return measureAChange() && measureNoChange() ? 0 : 1;
}
