// From a key press until the selected window's frame is on screen, and from letting go until the window is active, with
// the real agent and window manager and 10, 100 and 1,000 windows; against a bare client that holds one grab and shows
// one window, against a bare message to the window manager, and with 100 windows against alttab and rofi, where they
// are installed. Needs a session bus; the display is one of its own.

#include "KeyPress.h"
#include "bench/Median.h"
#include "bench/OtherSwitchers.h"
#include "bench/RunningProgram.h"
#include "bench/SeenDisplay.h"

#include <QCoreApplication>
#include <cstdio>
#include <cstring>
#include <linux/input-event-codes.h>
#include <sys/socket.h>
#include <thread>

namespace {

constexpr int rounds = 40, warmUpRounds = 5;
/// With so many windows, others that do the like are measured too.
constexpr int comparedCount = 100;
constexpr quint32 markColor = 0x2a64b8, floorColor = 0x20c060;
/// Between two looks: what is measured are three programs, on as few as two processors.
constexpr std::chrono::microseconds pause(20);
/// A hand takes longer from one key to the next.
constexpr std::chrono::milliseconds rest(100);
const QList<int> modifiers{KEY_LEFTCTRL, KEY_LEFTALT};

double microsecondsSince(Clock::time_point start)
{
    return std::chrono::duration<double, std::micro>(Clock::now() - start).count();
}

/// Windows side by side over the whole screen, the first of which is at the upper left, and what the window manager
/// says of them.
class Windows
{
public:
    explicit Windows(int count) : columns_(count <= 10 ? 5 : count <= 100 ? 10 : 40), rows_(count / columns_)
    {
        for (int i = 0; i < count; ++i)
            windows_.push_back(addWindow(rectOf(i)));
        const quint32 mask = XCB_EVENT_MASK_PROPERTY_CHANGE;
        xcb_change_window_attributes(server(), root(), XCB_CW_EVENT_MASK, &mask);
        xcb_flush(server());
    }

    QRect rectOf(int place) const
    {
        const int width = screenWidth / columns_, height = screenHeight / rows_;
        return {place % columns_ * width, place / columns_ * height, width - 2, height - 2};
    }
    bool areManaged()
    {
        const auto isListed = [this] { return property("_NET_CLIENT_LIST_STACKING").size() == windows_.size(); };
        return waitFor(isListed);
    }
    void activate(int place)
    {
        const quint32 window = windows_.at(size_t(place));
        xcb_client_message_event_t message{};
        message.response_type = XCB_CLIENT_MESSAGE;
        message.format = 32;
        message.window = window;
        message.type = atom("_NET_ACTIVE_WINDOW");
        message.data.data32[0] = 2;
        xcb_send_event(server(), false, root(),
            XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
            reinterpret_cast<const char *>(&message));
        xcb_flush(server());
    }
    bool waitUntilActive(int place)
    {
        const quint32 window = windows_.at(size_t(place));
        return waitFor([&] { return property("_NET_ACTIVE_WINDOW") == std::vector<quint32>{window}; });
    }

private:
    xcb_connection_t *server() const { return connection_.get(); }
    xcb_window_t root() const { return xcb_setup_roots_iterator(xcb_get_setup(server())).data->root; }

    xcb_atom_t atom(const char *name) const
    {
        const auto cookie = xcb_intern_atom(server(), false, quint16(std::strlen(name)), name);
        return fromServer(xcb_intern_atom_reply(server(), cookie, nullptr))->atom;
    }
    std::vector<quint32> property(const char *name) const
    {
        const auto reply = fromServer(xcb_get_property_reply(
            server(), xcb_get_property(server(), false, root(), atom(name), XCB_ATOM_WINDOW, 0, 4096), nullptr));
        const auto *values = static_cast<const quint32 *>(xcb_get_property_value(reply.get()));
        return {values, values + reply->value_len};
    }
    template <typename Condition>
    bool waitFor(Condition &&isMet)
    {
        const Clock::time_point end = Clock::now() + longestWait * 4;
        while (!isMet()) {
            if (Clock::now() > end)
                return false;
            std::this_thread::sleep_for(pause);
        }
        return true;
    }
    quint32 addWindow(const QRect &rect)
    {
        const quint32 id = xcb_generate_id(server());
        const quint32 color = 0xe0e0e0;
        xcb_create_window(server(), XCB_COPY_FROM_PARENT, id, root(), qint16(rect.x()), qint16(rect.y()),
            quint16(rect.width()), quint16(rect.height()), 0, XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT,
            XCB_CW_BACK_PIXEL, &color);
        // No frame, and where it asks to be.
        const quint32 noDecorations[]{2, 0, 0, 0, 0};
        const xcb_atom_t hints = atom("_MOTIF_WM_HINTS");
        xcb_change_property(server(), XCB_PROP_MODE_REPLACE, id, hints, hints, 32, 5, noDecorations);
        const quint32 place[18]{1};
        xcb_change_property(server(), XCB_PROP_MODE_REPLACE, id, XCB_ATOM_WM_NORMAL_HINTS, XCB_ATOM_WM_SIZE_HINTS, 32,
            std::size(place), place);
        xcb_map_window(server(), id);
        return id;
    }

    const XConnection connection_ = connectToXServer();
    const int columns_;
    const int rows_;
    std::vector<quint32> windows_;
};

/// Shows a window at each press of a key that it has grabbed, from a thread that does nothing else.
class BareSelector
{
public:
    explicit BareSelector(const QRect &rect)
    {
        const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection_.get())).data->root;
        xcb_grab_key(connection_.get(), false, root, XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_1, KEY_B + evdevToX11,
            XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
        fromServer(xcb_get_input_focus_reply(connection_.get(), xcb_get_input_focus(connection_.get()), nullptr));
        thread_ = std::thread([this, rect] {
            while (const auto event = fromServer(xcb_wait_for_event(connection_.get()))) {
                if ((event->response_type & eventTypeMask) == XCB_KEY_PRESS)
                    window_.show(rect);
            }
        });
    }
    ~BareSelector()
    {
        shutdown(xcb_get_file_descriptor(connection_.get()), SHUT_RDWR);
        thread_.join();
    }
    BareSelector(const BareSelector &) = delete;
    BareSelector &operator=(const BareSelector &) = delete;

    void hide() { window_.hide(); }

private:
    const XConnection connection_ = connectToXServer();
    BareWindow window_{floorColor};
    std::thread thread_;
};

struct Times
{
    std::vector<double> first, next, floor, activation, bareActivation;
};

/// A place on the frame's left side.
bool waitForMark(const SeenDisplay &display, const QRect &rect, quint32 color)
{
    return display.waitForPixel(rect.x() + 3, rect.y() + rect.height() / 2, color, pause);
}

double timeUntilMarked(const SeenDisplay &display, const QRect &rect, quint32 color, int key)
{
    std::this_thread::sleep_for(rest);
    const Clock::time_point start = Clock::now();
    keyDown(key);
    const bool isSeen = waitForMark(display, rect, color);
    const double time = microsecondsSince(start);
    keyUp(key);
    return isSeen ? time : -1;
}

bool measureRound(const SeenDisplay &display, Windows &windows, BareSelector &bare, Times &times)
{
    std::this_thread::sleep_for(rest);
    Clock::time_point start = Clock::now();
    windows.activate(0);
    if (!windows.waitUntilActive(0))
        return false;
    times.bareActivation.push_back(microsecondsSince(start));
    const quint32 ground = display.pixel(windows.rectOf(1).x() + 3, windows.rectOf(1).center().y());
    for (const int key : modifiers)
        keyDown(key);
    times.floor.push_back(timeUntilMarked(display, windows.rectOf(1), floorColor, KEY_B));
    bare.hide();
    if (!waitForMark(display, windows.rectOf(1), ground))
        return false;
    times.first.push_back(timeUntilMarked(display, windows.rectOf(1), markColor, KEY_RIGHT));
    times.next.push_back(timeUntilMarked(display, windows.rectOf(2), markColor, KEY_RIGHT));
    std::this_thread::sleep_for(rest);
    start = Clock::now();
    for (const int key : modifiers)
        keyUp(key);
    const bool isActive = windows.waitUntilActive(2);
    times.activation.push_back(microsecondsSince(start));
    return isActive && waitForMark(display, windows.rectOf(2), ground) && times.floor.back() > 0
        && times.first.back() > 0 && times.next.back() > 0;
}

bool measure(int count, double goal)
{
    const SeenDisplay display;
    if (!display.isThere())
        return false;
    const RunningProgram manager(QStringLiteral("openbox"),
        {QStringLiteral("--config-file"),
            qEnvironmentVariable("LUMAROO_SOURCE") + QStringLiteral("/tests/support/openbox.xml")});
    Windows windows(count);
    RunningProgram agent(qEnvironmentVariable("LUMAROO_BUILD")
            + QStringLiteral("/Lumaroo.prefPane/Contents/Resources/LumarooAgent.app/Contents/Linux/LumarooAgent"),
        {QStringLiteral("--foreground")});
    if (!windows.areManaged() || !agent.waitForLine("launched"))
        return false;
    BareSelector bare(windows.rectOf(1));
    Times times, warmUp;
    for (int round = -warmUpRounds; round < rounds; ++round) {
        if (!measureRound(display, windows, bare, round < 0 ? warmUp : times))
            return false;
    }
    const double floor = median(times.floor);
    std::printf(
        "%4d windows: first press until its frame is seen %.2f ms, a bare client %.2f ms: %.2f ms more (goal: at "
        "most %.1f); next press %.2f ms\n",
        count, median(times.first) / 1000, floor / 1000, (median(times.first) - floor) / 1000, goal,
        median(times.next) / 1000);
    std::printf("              letting go until active %.2f ms, a bare message %.2f ms: ratio %.2f (goal: at most 2)\n",
        median(times.activation) / 1000, median(times.bareActivation) / 1000,
        median(times.activation) / median(times.bareActivation));
    std::fflush(stdout);
    if (count == comparedCount)
        compareWithOthers(display, median(times.first), [&windows] {
            windows.activate(0);
            return windows.waitUntilActive(0);
        });
    return true;
}

} // namespace

int main(int argumentCount, char **arguments)
{
    const QCoreApplication application(argumentCount, arguments);
    for (const auto &[count, goal] : {std::pair(10, 1.5), std::pair(100, 8.0), std::pair(1000, 50.0)}) {
        if (!measure(count, goal)) {
            std::fprintf(stderr, "SelectionBench: with %d windows something did not come about\n", count);
            return 1;
        }
    }
    return 0;
}
