#pragma once

#include "platform/foundation/system/X11.h"

#include <QFile>
#include <QProcess>
#include <QRandomGenerator>
#include <QRect>
#include <QTemporaryDir>
#include <chrono>
#include <thread>
#include <xcb/shape.h>

using Clock = std::chrono::steady_clock;

inline constexpr int screenWidth = 1280, screenHeight = 1024;
inline constexpr std::chrono::seconds longestWait(5);

/// An X server that keeps its picture in a file.
class SeenDisplay
{
public:
    SeenDisplay()
    {
        const QString name = u':' + QString::number(QRandomGenerator::global()->bounded(60000, 65000));
        server_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        server_.start(QStringLiteral("Xvfb"),
            {name, "-noreset", "-nolisten", "tcp", "-screen", "0", "1280x1024x24", "-fbdir", folder_.path(),
                "-displayfd", "1"});
        isThere_ = server_.waitForReadyRead(10000) && mapPicture();
        qputenv("DISPLAY", name.toLatin1());
    }
    ~SeenDisplay()
    {
        server_.kill();
        server_.waitForFinished();
    }
    SeenDisplay(const SeenDisplay &) = delete;
    SeenDisplay &operator=(const SeenDisplay &) = delete;

    bool isThere() const { return isThere_; }
    quint32 pixel(int x, int y) const { return pixels_[y * screenWidth + x] & 0xffffff; }
    /// False when it does not come. Looks all the time, or leaves the processor to others in between.
    bool waitForPixel(int x, int y, quint32 color, std::chrono::microseconds pause = {}) const
    {
        const Clock::time_point end = Clock::now() + longestWait;
        while (pixel(x, y) != color) {
            if (Clock::now() > end)
                return false;
            if (pause.count() > 0)
                std::this_thread::sleep_for(pause);
        }
        return true;
    }

private:
    static quint32 number(const uchar *place)
    {
        return quint32(place[0]) << 24 | quint32(place[1]) << 16 | quint32(place[2]) << 8 | place[3];
    }
    /// The picture is a window dump: a head that tells its own length, a table of colours of 12 bytes each, the pixels.
    bool mapPicture()
    {
        file_.setFileName(folder_.filePath(QStringLiteral("Xvfb_screen0")));
        if (!file_.open(QIODevice::ReadOnly))
            return false;
        const uchar *bytes = file_.map(0, file_.size());
        if (!bytes)
            return false;
        constexpr int colorsPlace = 19 * 4, colorLength = 12;
        pixels_ = reinterpret_cast<const volatile quint32 *>(
            bytes + number(bytes) + number(bytes + colorsPlace) * colorLength);
        return true;
    }

    QTemporaryDir folder_;
    QProcess server_;
    QFile file_;
    const volatile quint32 *pixels_ = nullptr;
    bool isThere_ = false;
};

/// The least that can be had: a window that is configured, cut and mapped.
class BareWindow
{
public:
    explicit BareWindow(quint32 color) : connection_(connectToXServer()), id_(xcb_generate_id(connection_.get()))
    {
        const quint32 values[]{color, true};
        xcb_create_window(connection_.get(), XCB_COPY_FROM_PARENT, id_,
            xcb_setup_roots_iterator(xcb_get_setup(connection_.get())).data->root, 0, 0, 1, 1, 0,
            XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, XCB_CW_BACK_PIXEL | XCB_CW_OVERRIDE_REDIRECT, values);
    }

    void show(const QRect &rect)
    {
        const quint32 values[]{
            quint32(rect.x()), quint32(rect.y()), quint32(rect.width()), quint32(rect.height()), XCB_STACK_MODE_ABOVE};
        xcb_configure_window(connection_.get(), id_,
            XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y | XCB_CONFIG_WINDOW_WIDTH | XCB_CONFIG_WINDOW_HEIGHT
                | XCB_CONFIG_WINDOW_STACK_MODE,
            values);
        const auto width = quint16(rect.width()), height = quint16(rect.height());
        const xcb_rectangle_t frame[]{{0, 0, width, band}, {0, 0, band, height},
            {qint16(width - band), 0, band, height}, {0, qint16(height - band), width, band}};
        xcb_shape_rectangles(connection_.get(), XCB_SHAPE_SO_SET, XCB_SHAPE_SK_BOUNDING, XCB_CLIP_ORDERING_UNSORTED,
            id_, 0, 0, std::size(frame), frame);
        xcb_map_window(connection_.get(), id_);
        xcb_flush(connection_.get());
    }
    void hide()
    {
        xcb_unmap_window(connection_.get(), id_);
        xcb_flush(connection_.get());
    }

private:
    static constexpr quint16 band = 8;

    const XConnection connection_;
    const xcb_window_t id_;
};
