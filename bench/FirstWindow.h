#pragma once

#include "bench/DrawnWindow.h"
#include "bench/Median.h"

#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QStringList>
#include <QThread>
#include <cstdio>
#include <optional>
#include <vector>

// How long a program takes until its first window is drawn, and its resident memory then.

namespace firstwindow {

inline constexpr int rounds = 15;
inline constexpr qint64 longestWait = 60'000'000'000;

struct Measurement
{
    double milliseconds;
    double mebibytes;
};

inline double residentMebibytes(qint64 process)
{
    QFile status(QStringLiteral("/proc/%1/status").arg(process));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    const QByteArray content = status.readAll();
    const qsizetype line = content.indexOf("VmRSS:");
    return content.mid(line + 6).trimmed().split(' ').first().toDouble() / 1024;
}

/// Asks again until `condition` holds; a tenth of a millisecond between two questions leaves the machine to the
/// program.
template <typename Condition>
bool becomes(const QElapsedTimer &since, Condition condition)
{
    while (!condition()) {
        if (since.nsecsElapsed() > longestWait)
            return false;
        QThread::usleep(100);
    }
    return true;
}

inline std::optional<Measurement> measure(const Screen &screen, const QString &program, const QStringList &arguments)
{
    QElapsedTimer timer;
    timer.start();
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    process.start(program, arguments);
    if (!process.waitForStarted() || !becomes(timer, [&screen] { return screen.isDrawn(screen.window()); }))
        return std::nullopt;
    const double milliseconds = double(timer.nsecsElapsed()) / 1e6;
    const Measurement measurement{milliseconds, residentMebibytes(process.processId())};
    process.terminate();
    process.waitForFinished();
    timer.restart();
    becomes(timer, [&screen] { return screen.window() == XCB_NONE; });
    return measurement;
}

struct Series
{
    std::vector<double> milliseconds;
    std::vector<double> mebibytes;

    void add(const Measurement &measurement)
    {
        milliseconds.push_back(measurement.milliseconds);
        mebibytes.push_back(measurement.mebibytes);
    }
};

struct Comparison
{
    Series figures;
    Series floors;
};

/// Both programs in turn, so that what else the machine does meets both; nothing where one shows no window.
inline std::optional<Comparison> compare(const QString &build, const QString &program, const QStringList &arguments)
{
    const Screen screen;
    Comparison comparison;
    for (int round = -1; round < rounds; ++round) {
        const auto floor = measure(screen, build + QStringLiteral("/bench/OneLineWindow"), {});
        const auto figure = measure(screen, program, arguments);
        if (!floor || !figure)
            return std::nullopt;
        // The first round warms the file cache.
        if (round < 0)
            continue;
        comparison.floors.add(*floor);
        comparison.figures.add(*figure);
    }
    return comparison;
}

inline void print(const char *what, const char *unit, double figure, double floor, double goal)
{
    std::printf("%s: %.1f %s, window with one line of text %.1f %s, ratio %.2f (goal: at most %.1f)\n", what, figure,
        unit, floor, unit, figure / floor, goal);
}

} // namespace firstwindow
