// How long a real key press takes until "KTXHotKeyPressed" has been delivered, against a bare client of the X server
// that receives the same grabbed key; and one registration, against the same grabs in one batch. Needs a display.

#include "KTXHotKey.h"
#include "KeyPress.h"
#include "bench/Median.h"
#include "platform/foundation/notifications/NSNotificationCenter.h"
#include "platform/foundation/system/X11.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <chrono>
#include <cstdio>
#include <linux/input-event-codes.h>
#include <poll.h>
#include <thread>

namespace {

constexpr int blocks = 100, roundsInABlock = 10;
constexpr VirtualKeyCode keyCode = 0;
constexpr quint32 modifiers = controlKey | optionKey;
constexpr quint8 keycode = KEY_A + evdevToX11;
constexpr quint16 mask = XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_1;

/// A client without a toolkit, that holds the same key with every state of the lock keys.
class BareClient
{
public:
    bool grab()
    {
        std::vector<xcb_void_cookie_t> grabs;
        for (const quint16 locks : lockStates)
            grabs.push_back(xcb_grab_key_checked(
                connection_.get(), false, root(), mask | locks, keycode, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC));
        wait();
        bool isGranted = !xcb_connection_has_error(connection_.get());
        for (const xcb_void_cookie_t grab : grabs)
            isGranted = !fromServer(xcb_request_check(connection_.get(), grab)) && isGranted;
        return isGranted;
    }
    void ungrab()
    {
        for (const quint16 locks : lockStates)
            xcb_ungrab_key(connection_.get(), keycode, root(), mask | locks);
        wait();
    }
    void receivePress()
    {
        while (!isPress(fromServer(xcb_poll_for_event(connection_.get())).get())) {
            pollfd descriptor{xcb_get_file_descriptor(connection_.get()), POLLIN, 0};
            poll(&descriptor, 1, -1);
        }
    }

private:
    static constexpr quint16 lockStates[]{0, XCB_MOD_MASK_LOCK, XCB_MOD_MASK_2, XCB_MOD_MASK_LOCK | XCB_MOD_MASK_2};

    static bool isPress(const xcb_generic_event_t *event)
    {
        return event && (event->response_type & eventTypeMask) == XCB_KEY_PRESS;
    }
    xcb_window_t root() const { return xcb_setup_roots_iterator(xcb_get_setup(connection_.get())).data->root; }
    void wait()
    {
        fromServer(xcb_get_input_focus_reply(connection_.get(), xcb_get_input_focus(connection_.get()), nullptr));
    }

    const XConnection connection_ = connectToXServer();
};

template <typename Operation>
double microseconds(Operation &&operation)
{
    QElapsedTimer timer;
    timer.start();
    operation();
    return double(timer.nsecsElapsed()) / 1000;
}

using Clock = std::chrono::steady_clock;

/// Presses the key as a user does, who is no part of the program that waits for it, and releases it afterwards.
/// `receive` waits for the press and tells when it had it. The time in microseconds.
template <typename Receive>
double timeOfPress(Receive &&receive)
{
    keyDown(KEY_LEFTCTRL);
    keyDown(KEY_LEFTALT);
    QCoreApplication::processEvents();
    Clock::time_point start;
    std::thread typist([&start] {
        // The program is asleep by then.
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
        start = Clock::now();
        keyDown(KEY_A);
    });
    const Clock::time_point end = receive();
    typist.join();
    keyUp(KEY_A);
    keyUp(KEY_LEFTALT);
    keyUp(KEY_LEFTCTRL);
    QCoreApplication::processEvents();
    return std::chrono::duration<double, std::micro>(end - start).count();
}

/// When the last press was delivered, as its observer knows it.
struct Delivery
{
    int count = 0;
    Clock::time_point time;

    Clock::time_point waitForNext() const
    {
        for (const int before = count; count == before;)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        return time;
    }
};

struct Times
{
    std::vector<double> presses, registrations;
};

bool measureOurs(KTXHotKey &hotKey, const Delivery &delivery, Times &times)
{
    OSStatus status = noErr;
    for (int round = 0; round < roundsInABlock && status == noErr; ++round) {
        hotKey.unregisterAsHotKey();
        times.registrations.push_back(microseconds([&] { status = hotKey.registerAsHotKey(); }));
    }
    for (int round = 0; round < roundsInABlock && status == noErr; ++round)
        times.presses.push_back(timeOfPress([&delivery] { return delivery.waitForNext(); }));
    hotKey.unregisterAsHotKey();
    return status == noErr;
}

bool measureFloor(BareClient &bare, Times &times)
{
    bool isGranted = true;
    for (int round = 0; round < roundsInABlock && isGranted; ++round) {
        bare.ungrab();
        times.registrations.push_back(microseconds([&] { isGranted = bare.grab(); }));
    }
    for (int round = 0; round < roundsInABlock && isGranted; ++round) {
        times.presses.push_back(timeOfPress([&bare] {
            bare.receivePress();
            return Clock::now();
        }));
    }
    bare.ungrab();
    return isGranted;
}

void print(const char *what, const char *floor, const std::vector<double> &ours, const std::vector<double> &floors,
    const char *goal)
{
    std::printf("%s: %.1f us; %s: %.1f us; ratio %.2f (%s; medians of %zu)\n", what, median(ours), floor,
        median(floors), median(ours) / median(floors), goal, ours.size());
}

} // namespace

int main(int argumentCount, char **arguments)
{
    QCoreApplication application(argumentCount, arguments);
    Delivery delivery;
    QObject observer;
    NSNotificationCenter::defaultCenter()->addObserverSelectorNameObject(
        &observer,
        [&delivery](const NSNotification &) {
            delivery = {delivery.count + 1, Clock::now()};
        },
        KTXHotKeyPressed);
    const auto hotKey = KTXHotKey::createWithKeyCodeAndModifiers(keyCode, modifiers);
    BareClient bare;
    Times ours, floors, warmUp;
    for (int block = -1; block < blocks; ++block) {
        if (!measureFloor(bare, block < 0 ? warmUp : floors)
            || !measureOurs(*hotKey, delivery, block < 0 ? warmUp : ours)) {
            std::fputs("HotKeyPressBench: the key cannot be had; it needs a display of its own\n", stderr);
            return 1;
        }
    }
    print("key pressed until KTXHotKeyPressed is delivered", "until a bare client has it", ours.presses, floors.presses,
        "goal: at most 1.5");
    print("hot key registered", "the same grabs in one batch", ours.registrations, floors.registrations,
        "one round trip each");
    return 0;
}
