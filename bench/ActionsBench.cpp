// The picture of a window of 1920x1080 from when its program has drawn until it is stored, against the least that can
// be had: a bare copy by shared memory, and libpng with the same settings in the same process. How long it holds up the
// event loop at most. How often the preview draws while a window draws all the time, and how often it wakes up at rest.

#include "agent/actions/PictureThread.h"
#include "agent/actions/Preview.h"
#include "bench/Median.h"
#include "platform/foundation/system/X11.h"

#include <QCoreApplication>
#include <QDir>
#include <QEventLoop>
#include <QTemporaryDir>
#include <QTimer>
#include <chrono>
#include <cstdio>
#include <png.h>
#include <sys/mman.h>
#include <unistd.h>
#include <xcb/damage.h>
#include <xcb/shm.h>

namespace {

using Clock = std::chrono::steady_clock;
constexpr int width = 1920, height = 1080, rounds = 15, restMilliseconds = 2000;
constexpr double refreshRate = 60;

double millisecondsSince(Clock::time_point start)
{
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

/// A window like a desktop's: plain areas, rows of small marks, a shaded part. The server draws it.
class DrawnWindow
{
public:
    DrawnWindow() : id_(xcb_generate_id(server()))
    {
        const quint32 values[]{drawing(), true};
        xcb_create_window(server(), XCB_COPY_FROM_PARENT, id_, root(), 0, 0, width, height, 0,
            XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, XCB_CW_BACK_PIXMAP | XCB_CW_OVERRIDE_REDIRECT, values);
        xcb_map_window(server(), id_);
        sync();
    }

    xcb_window_t id() const { return id_; }
    xcb_connection_t *server() const { return connection_.get(); }
    xcb_window_t root() const { return xcb_setup_roots_iterator(xcb_get_setup(server())).data->root; }
    WindowDescription description() const
    {
        WindowDescription window;
        window.windowID = id_;
        window.windowRect = window.frameRect = {0, 0, width, height};
        return window;
    }
    /// A part, as a program does: servers without a graphics card take long for all of it.
    void draw()
    {
        xcb_clear_area(server(), false, id_, 200, 200, 300, 200);
        sync();
    }
    void sync() const { fromServer(xcb_get_input_focus_reply(server(), xcb_get_input_focus(server()), nullptr)); }

private:
    xcb_pixmap_t drawing()
    {
        const xcb_pixmap_t pixmap = xcb_generate_id(server());
        const xcb_gcontext_t context = xcb_generate_id(server());
        xcb_create_pixmap(server(), 24, pixmap, root(), width, height);
        xcb_create_gc(server(), context, pixmap, 0, nullptr);
        std::vector<quint32> row(width);
        for (int y = 0; y < height; ++y) {
            for (int x = 0; x < width; ++x)
                row[size_t(x)] = colorAt(quint32(x), quint32(y));
            xcb_put_image(server(), XCB_IMAGE_FORMAT_Z_PIXMAP, pixmap, context, width, 1, 0, qint16(y), 0, 24,
                width * 4, reinterpret_cast<const quint8 *>(row.data()));
        }
        return pixmap;
    }
    static quint32 colorAt(quint32 x, quint32 y)
    {
        if (x > width * 2 / 3)
            return (x / 4 & 0xff) << 16 | (y / 4 & 0xff) << 8 | ((x + y) / 8 & 0xff);
        const bool isMark = y % 20 > 6 && (x * 2654435761U ^ (y / 2) * 40503U) >> 28 < 5;
        return isMark ? 0x202830 : 0xf4f4f0;
    }

    const XConnection connection_ = connectToXServer();
    const xcb_window_t id_;
};

/// Knows how long each event held up the event loop.
class WatchedApplication : public QCoreApplication
{
public:
    using QCoreApplication::QCoreApplication;

    bool notify(QObject *receiver, QEvent *event) override
    {
        if (QThread::currentThread() != thread())
            return QCoreApplication::notify(receiver, event);
        const Clock::time_point start = Clock::now();
        const bool isHandled = QCoreApplication::notify(receiver, event);
        longest = std::max(longest, millisecondsSince(start));
        ++events;
        return isHandled;
    }

    double longest = 0; ///< in milliseconds
    int events = 0;
};

WatchedApplication *application()
{
    return static_cast<WatchedApplication *>(QCoreApplication::instance());
}

/// As the agent does it; milliseconds without the wait for the window's program.
double timeOfPicture(const DrawnWindow &window, const QString &program, const QString &folder, double *longestBlock)
{
    QEventLoop loop;
    PictureThread thread({window.description(), program, folder, QStringLiteral("Picture")});
    Clock::time_point start;
    double time = -1;
    QObject::connect(
        &thread, &PictureThread::drawn, &thread, [&] { start = Clock::now(); }, Qt::DirectConnection);
    QObject::connect(&thread, &PictureThread::stored, &loop, [&] {
        time = millisecondsSince(start);
        loop.quit();
    });
    QObject::connect(&thread, &PictureThread::notStored, &loop, &QEventLoop::quit);
    QObject::connect(&thread, &PictureThread::notCopied, &loop, &QEventLoop::quit);
    application()->longest = 0;
    QMetaObject::invokeMethod(
        &loop, [&] { thread.start(); }, Qt::QueuedConnection);
    loop.exec();
    *longestBlock = application()->longest;
    return time;
}

void writeBarePicture(const quint8 *pixels, const char *path)
{
    FILE *const file = std::fopen(path, "wb");
    png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
    png_infop info = png_create_info_struct(png);
    png_init_io(png, file);
    png_set_compression_level(png, 3);
    png_set_filter(png, PNG_FILTER_TYPE_BASE, PNG_FILTER_SUB | PNG_FILTER_UP);
    png_set_IHDR(png, info, width, height, 8, PNG_COLOR_TYPE_RGB, PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT,
        PNG_FILTER_TYPE_DEFAULT);
    png_write_info(png, info);
    png_set_filler(png, 0, PNG_FILLER_AFTER);
    png_set_bgr(png);
    for (int y = 0; y < height; ++y)
        png_write_row(png, pixels + size_t(y) * width * 4);
    png_write_end(png, info);
    png_destroy_write_struct(&png, &info);
    std::fflush(file);
    ::fsync(::fileno(file));
    std::fclose(file);
}

double timeOfBarePicture(const DrawnWindow &window, const QByteArray &path)
{
    constexpr size_t length = size_t(width) * height * 4;
    const Clock::time_point start = Clock::now();
    const int memory = ::memfd_create("floor", MFD_CLOEXEC);
    if (::ftruncate(memory, off_t(length)) != 0)
        return -1;
    void *const pixels = ::mmap(nullptr, length, PROT_READ, MAP_SHARED, memory, 0);
    const xcb_shm_seg_t segment = xcb_generate_id(window.server());
    xcb_shm_attach_fd(window.server(), segment, memory, false);
    const auto asked = xcb_shm_get_image(
        window.server(), window.id(), 0, 0, width, height, ~0u, XCB_IMAGE_FORMAT_Z_PIXMAP, segment, 0);
    const auto reply = fromServer(xcb_shm_get_image_reply(window.server(), asked, nullptr));
    writeBarePicture(static_cast<const quint8 *>(pixels), path.constData());
    xcb_shm_detach(window.server(), segment);
    ::munmap(pixels, length);
    return reply ? millisecondsSince(start) : -1;
}

bool measurePictures(const DrawnWindow &window, const QString &program)
{
    const QTemporaryDir folder;
    std::vector<double> ours, floors, blocks;
    for (int round = 0; round < rounds; ++round) {
        double block = 0;
        ours.push_back(timeOfPicture(window, program, folder.path(), &block));
        blocks.push_back(block);
        floors.push_back(timeOfBarePicture(window, folder.filePath(QStringLiteral("floor.png")).toUtf8()));
        if (ours.back() < 0 || floors.back() < 0)
            return false;
    }
    std::printf(
        "picture of 1920x1080: %.1f ms; bare copy and libpng: %.1f ms; ratio %.2f (goal: at most 1.30; medians of "
        "%d)\n",
        median(ours), median(floors), median(ours) / median(floors), rounds);
    std::printf("longest hold-up of the event loop: %.2f ms; median of the longest: %.2f ms (goal: at most 2)\n",
        *std::max_element(blocks.begin(), blocks.end()), median(blocks));
    return true;
}

/// Counts what is drawn on the preview.
class PreviewWatch
{
public:
    explicit PreviewWatch(const DrawnWindow &window)
    {
        xcb_connection_t *const server = connection_.get();
        fromServer(xcb_damage_query_version_reply(server, xcb_damage_query_version(server, 1, 1), nullptr));
        const auto tree = fromServer(xcb_query_tree_reply(server, xcb_query_tree(server, window.root()), nullptr));
        // The topmost.
        const xcb_window_t preview = xcb_query_tree_children(tree.get())[tree->children_len - 1];
        xcb_damage_create(server, xcb_generate_id(server), preview, XCB_DAMAGE_REPORT_LEVEL_RAW_RECTANGLES);
        take();
    }

    int take()
    {
        fromServer(xcb_get_input_focus_reply(connection_.get(), xcb_get_input_focus(connection_.get()), nullptr));
        int count = 0;
        while (const auto event = fromServer(xcb_poll_for_event(connection_.get()))) {
            // What the server draws of windows below is told with the border.
            const auto *damage = reinterpret_cast<const xcb_damage_notify_event_t *>(event.get());
            count += damage->area.x == 0 ? 1 : 0;
        }
        return count;
    }

private:
    const XConnection connection_ = connectToXServer();
};

void runLoopFor(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
}

/// Some are those by which this ends.
int eventsOfRest()
{
    const int before = application()->events;
    runLoopFor(restMilliseconds);
    return application()->events - before;
}

bool measurePreview(DrawnWindow &window)
{
    const int ownEvents = eventsOfRest();
    const Monitor monitor{{0, 0, width, height}, 1, refreshRate};
    const auto preview = showPreview(window.description(), monitor);
    if (!preview)
        return false;
    runLoopFor(500);
    PreviewWatch watch(window);
    QTimer drawing;
    QObject::connect(&drawing, &QTimer::timeout, &drawing, [&window] { window.draw(); });
    drawing.start(4);
    const Clock::time_point start = Clock::now();
    runLoopFor(restMilliseconds);
    const double frames = millisecondsSince(start) * refreshRate / 1000;
    drawing.stop();
    std::printf("preview of a window that draws all the time: %.2f redraws in a frame (goal: at most 1)\n",
        watch.take() / frames);
    window.sync();
    runLoopFor(500);
    std::printf("preview of a window that draws nothing: %d wake-ups in %d s (goal: 0)\n", eventsOfRest() - ownEvents,
        restMilliseconds / 1000);
    return true;
}

} // namespace

int main(int argumentCount, char **arguments)
{
    const WatchedApplication watched(argumentCount, arguments);
    const QString program = QCoreApplication::arguments().value(1);
    if (program.isEmpty()) {
        std::fputs("usage: ActionsBench PROGRAM-THAT-STORES-PICTURES\n", stderr);
        return 2;
    }
    DrawnWindow window;
    if (measurePictures(window, program) && measurePreview(window))
        return 0;
    std::fputs("ActionsBench: there was no picture\n", stderr);
    return 1;
}
