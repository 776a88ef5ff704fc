#include "platform/foundation/hotkeys/linux/HotKeyConnection.h"

#include "platform/foundation/keyboard/KeyboardEvents.h"

#include <xcb/xinput.h>

namespace {

constexpr quint16 realModifiers = 0xff; // in a key event, buttons and the layout's group stand beside them

} // namespace

std::unique_ptr<HotKeyConnection> HotKeyConnection::open(QString *failure)
{
    std::unique_ptr<HotKeyConnection> keys(new HotKeyConnection(connectToXServer()));
    if (keys->isLost()) {
        *failure = QStringLiteral("there is no X server");
        return nullptr;
    }
    const xcb_setup_t *setup = xcb_get_setup(keys->connection_.get());
    for (auto screen = xcb_setup_roots_iterator(setup); screen.rem > 0; xcb_screen_next(&screen))
        keys->roots_.push_back(screen.data->root);
    if (keys->startEvents())
        return keys;
    *failure = keys->isLost()
        ? QStringLiteral("the X server has gone")
        : QStringLiteral("the X server lacks the keyboard extension, or version 2.1 of the input extension");
    return nullptr;
}

bool HotKeyConnection::startEvents()
{
    const auto codes = startKeyboardEvents(connection_.get(), XCB_XKB_STATE_PART_MODIFIER_STATE);
    if (!codes)
        return false;
    firstKeyboardEvent_ = codes->firstKeyboardEvent;
    rawEventExtension_ = codes->inputExtension;
    return true;
}

void HotKeyConnection::watchReleases(bool watch)
{
    const struct
    {
        xcb_input_event_mask_t head;
        quint32 mask;
    } selection{{XCB_INPUT_DEVICE_ALL_MASTER, 1}, watch ? quint32(XCB_INPUT_XI_EVENT_MASK_RAW_KEY_RELEASE) : 0};
    xcb_input_xi_select_events(connection_.get(), roots_.front(), 1, &selection.head);
}

void HotKeyConnection::wait()
{
    fromServer(xcb_get_input_focus_reply(connection_.get(), xcb_get_input_focus(connection_.get()), nullptr));
    take(xcb_poll_for_queued_event);
}

std::optional<KeyboardMapping> HotKeyConnection::readKeyboard()
{
    auto keyboard = readKeyboardMapping(connection_.get());
    take(xcb_poll_for_queued_event);
    return keyboard;
}

std::vector<HotKeyConnection::GrabOnRoot> HotKeyConnection::onEveryRoot(const std::vector<KeyGrab> &grabs) const
{
    std::vector<GrabOnRoot> all;
    for (const xcb_window_t root : roots_) {
        for (const KeyGrab &grab : grabs)
            all.push_back({grab, root});
    }
    return all;
}

bool HotKeyConnection::grab(const std::vector<KeyGrab> &grabs)
{
    takeAnswer();
    // All requests go together; the answers to the first and the last are waited for.
    carryOut(tracker_.prepareToGrab());
    std::vector<GrabOnRoot> granted;
    std::vector<std::pair<GrabOnRoot, xcb_void_cookie_t>> requests;
    for (const GrabOnRoot &one : onEveryRoot(grabs)) {
        requests.emplace_back(one,
            xcb_grab_key_checked(connection_.get(), false, one.root, one.grab.modifiers, one.grab.keycode,
                XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC));
    }
    wait();
    takeAnswer();
    for (const auto &[one, request] : requests) {
        if (isGranted(request))
            granted.push_back(one);
    }
    const bool areAllGranted = granted.size() == requests.size() && !isLost();
    if (areAllGranted)
        tracker_.add(grabs);
    else
        ungrab(granted);
    // Who registers much is not to pile up answers.
    while (tracker_.isAnswerNext())
        carryOut(tracker_.handleNext().orders);
    return areAllGranted;
}

bool HotKeyConnection::isGranted(const xcb_void_cookie_t &request)
{
    return !fromServer(xcb_request_check(connection_.get(), request));
}

/// Asks for them and gives them back in one go.
std::vector<xcb_void_cookie_t> HotKeyConnection::tryToGrab(const std::vector<KeyGrab> &grabs)
{
    std::vector<xcb_void_cookie_t> requests;
    for (const GrabOnRoot &one : onEveryRoot(grabs)) {
        // What we have ourselves would be given back for good.
        if (tracker_.has(one.grab))
            continue;
        requests.push_back(xcb_grab_key_checked(connection_.get(), false, one.root, one.grab.modifiers,
            one.grab.keycode, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC));
        xcb_ungrab_key(connection_.get(), one.grab.keycode, one.root, one.grab.modifiers);
    }
    return requests;
}

std::vector<bool> HotKeyConnection::areFree(const std::vector<std::vector<KeyGrab>> &sets)
{
    takeAnswer();
    std::vector<std::vector<xcb_void_cookie_t>> requests;
    for (const std::vector<KeyGrab> &set : sets)
        requests.push_back(tryToGrab(set));
    wait();
    std::vector<bool> areFree;
    for (const std::vector<xcb_void_cookie_t> &ofSet : requests) {
        bool isFree = !isLost();
        // Each answer is taken, also where it is known already.
        for (const xcb_void_cookie_t &request : ofSet)
            isFree = isGranted(request) && isFree;
        areFree.push_back(isFree);
    }
    return areFree;
}

void HotKeyConnection::ungrab(const std::vector<KeyGrab> &grabs)
{
    tracker_.remove(grabs);
    ungrab(onEveryRoot(grabs));
}

void HotKeyConnection::ungrab(const std::vector<GrabOnRoot> &grabs)
{
    for (const GrabOnRoot &one : grabs)
        xcb_ungrab_key(connection_.get(), one.grab.keycode, one.root, one.grab.modifiers);
    wait();
}

bool HotKeyConnection::hasQueuedInput()
{
    take(xcb_poll_for_queued_event);
    return tracker_.hasEvents() || asked_;
}

bool HotKeyConnection::isKeyboardChangePending()
{
    take(xcb_poll_for_event);
    return tracker_.isKeyboardChangePending();
}

std::optional<HotKeyInput> HotKeyConnection::nextInput()
{
    for (;;) {
        takeAnswer();
        // Anew each time: what is written below may read events from the socket, which then tells of them no more.
        take(xcb_poll_for_event);
        if (!tracker_.hasEvents())
            return std::nullopt;
        const PressTracker::Step step = tracker_.handleNext();
        carryOut(step.orders);
        if (step.told)
            return step.told;
    }
}

void HotKeyConnection::carryOut(const std::vector<ServerOrder> &orders)
{
    for (const ServerOrder order : orders)
        carryOut(order);
    // A question is sent when its answer is waited for, so that a press is told at once.
    if (!orders.empty() && !asked_)
        xcb_flush(connection_.get());
}

void HotKeyConnection::carryOut(ServerOrder order)
{
    switch (order) {
    case ServerOrder::WatchReleases:
        return watchReleases(true);
    case ServerOrder::IgnoreReleases:
        return watchReleases(false);
    case ServerOrder::LetKeyboardGo:
        xcb_ungrab_keyboard(connection_.get(), XCB_CURRENT_TIME);
        return;
    case ServerOrder::AskHeldKeys:
        asked_ = xcb_query_keymap(connection_.get());
        return;
    }
}

/// Waits until the server has carried out what it was ordered, which includes that the keyboard is free. Where it has
/// gone, no key is down.
void HotKeyConnection::takeAnswer()
{
    if (!asked_)
        return;
    const auto asked = *std::exchange(asked_, std::nullopt);
    const auto reply = fromServer(xcb_query_keymap_reply(connection_.get(), asked, nullptr));
    take(xcb_poll_for_queued_event);
    HeldKeys held;
    for (size_t keycode = 0; reply && keycode < held.size(); ++keycode)
        held[keycode] = reply->keys[keycode / 8] & (1 << (keycode % 8));
    tracker_.take({KeyboardEvent::Kind::HeldKeysAnswered, {}, asked.sequence, held});
}

void HotKeyConnection::take(xcb_generic_event_t *(*poll)(xcb_connection_t *))
{
    while (const auto event = fromServer(poll(connection_.get())))
        take(event.get());
}

void HotKeyConnection::take(const xcb_generic_event_t *event)
{
    using Kind = KeyboardEvent::Kind;
    const quint8 type = event->response_type & eventTypeMask;
    if (type == XCB_KEY_PRESS || type == XCB_KEY_RELEASE) {
        const auto *key = reinterpret_cast<const xcb_key_press_event_t *>(event);
        tracker_.take({type == XCB_KEY_PRESS ? Kind::Press : Kind::Release,
            {key->detail, quint16(key->state & realModifiers)}, event->full_sequence, {}, key->time});
    } else if (type == XCB_GE_GENERIC) {
        const auto *raw = reinterpret_cast<const xcb_input_raw_key_release_event_t *>(event);
        if (raw->extension == rawEventExtension_ && raw->event_type == XCB_INPUT_RAW_KEY_RELEASE)
            tracker_.take({Kind::Release, {quint8(raw->detail), 0}, event->full_sequence, {}});
    } else if (type == firstKeyboardEvent_) {
        takeKeyboardEvent(event);
    }
}

void HotKeyConnection::takeKeyboardEvent(const xcb_generic_event_t *event)
{
    if (event->pad0 != XCB_XKB_STATE_NOTIFY) {
        tracker_.take({KeyboardEvent::Kind::KeyboardChanged, {}, event->full_sequence, {}});
        return;
    }
    const auto *state = reinterpret_cast<const xcb_xkb_state_notify_event_t *>(event);
    tracker_.take({KeyboardEvent::Kind::ModifiersChanged, {0, state->mods}, event->full_sequence, {}});
}
