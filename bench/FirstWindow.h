#pragma once

#include "bench/Median.h"

#include <QByteArray>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QStringList>
#include <QThread>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <optional>
#include <vector>
#include <xcb/xcb.h>

// How long a program takes until its first window is drawn, and its resident memory then.
//
// "Drawn" is what the X server holds, not what the program says: the window is listed by the window manager, and the
// pixel near its lower left corner, which is flushed last, has the ground colour that the dark scheme gives it. Nothing
// else on the screen has that colour.

namespace firstwindow {

inline constexpr int rounds = 15;
inline constexpr quint32 ground = 0x232528;
inline constexpr qint64 longestWait = 60'000'000'000;
inline constexpr int cornerDistance = 6;

struct Measurement
{
    double milliseconds;
    double mebibytes;
};

template <typename T>
using Reply = std::unique_ptr<T, decltype(&std::free)>;

class Screen
{
public:
    Screen()
        : connection_(xcb_connect(nullptr, nullptr), &xcb_disconnect),
          root_(xcb_setup_roots_iterator(xcb_get_setup(connection_.get())).data->root)
    {
        const auto cookie = xcb_intern_atom(connection_.get(), 0, std::strlen(listName), listName);
        clientList_ =
            Reply<xcb_intern_atom_reply_t>(xcb_intern_atom_reply(connection_.get(), cookie, nullptr), &std::free)->atom;
    }

    /// The only window that the window manager lists, or none.
    xcb_window_t window() const
    {
        const auto cookie = xcb_get_property(connection_.get(), 0, root_, clientList_, XCB_ATOM_WINDOW, 0, 1);
        const Reply<xcb_get_property_reply_t> reply(
            xcb_get_property_reply(connection_.get(), cookie, nullptr), &std::free);
        if (!reply || xcb_get_property_value_length(reply.get()) == 0)
            return XCB_NONE;
        return *static_cast<xcb_window_t *>(xcb_get_property_value(reply.get()));
    }

    bool isDrawn(xcb_window_t window) const
    {
        const Reply<xcb_get_geometry_reply_t> geometry(
            xcb_get_geometry_reply(connection_.get(), xcb_get_geometry(connection_.get(), window), nullptr),
            &std::free);
        if (!geometry)
            return false;
        const auto cookie = xcb_get_image(connection_.get(), XCB_IMAGE_FORMAT_Z_PIXMAP, window, cornerDistance,
            qint16(geometry->height - cornerDistance), 1, 1, ~0U);
        const Reply<xcb_get_image_reply_t> image(xcb_get_image_reply(connection_.get(), cookie, nullptr), &std::free);
        quint32 pixel = 0;
        if (image && xcb_get_image_data_length(image.get()) >= 4)
            std::memcpy(&pixel, xcb_get_image_data(image.get()), 4);
        return (pixel & 0xffffff) == ground;
    }

private:
    static constexpr char listName[] = "_NET_CLIENT_LIST";
    std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> connection_;
    xcb_window_t root_;
    xcb_atom_t clientList_ = XCB_ATOM_NONE;
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
