#include "platform/foundation/hotkeys/linux/HotKeyConnection.h"

#include <algorithm>
#include <xcb/xinput.h>

namespace {

constexpr quint16 keyboardEvents =
    XCB_XKB_EVENT_TYPE_NEW_KEYBOARD_NOTIFY | XCB_XKB_EVENT_TYPE_MAP_NOTIFY | XCB_XKB_EVENT_TYPE_STATE_NOTIFY;
constexpr quint16 mapParts = XCB_XKB_MAP_PART_KEY_SYMS | XCB_XKB_MAP_PART_MODIFIER_MAP;
constexpr quint16 realModifiers = 0xff; // in a key event, buttons and the layout's group stand beside them
// The first in which a grab does not hide raw events.
constexpr quint16 inputMajor = 2, inputMinor = 1;

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
    if (keys->startKeyboardEvents() && keys->startRawEvents())
        return keys;
    *failure = keys->isLost()
        ? QStringLiteral("the X server has gone")
        : QStringLiteral("the X server lacks the keyboard extension, or version 2.1 of the input extension");
    return nullptr;
}

bool HotKeyConnection::startKeyboardEvents()
{
    xcb_connection_t *const server = connection_.get();
    const auto use = fromServer(xcb_xkb_use_extension_reply(
        server, xcb_xkb_use_extension(server, XCB_XKB_MAJOR_VERSION, XCB_XKB_MINOR_VERSION), nullptr));
    if (!use || !use->supported)
        return false;
    firstKeyboardEvent_ = xcb_get_extension_data(server, &xcb_xkb_id)->first_event;
    constexpr quint32 detectableRepeat = XCB_XKB_PER_CLIENT_FLAG_DETECTABLE_AUTO_REPEAT;
    const auto flags =
        xcb_xkb_per_client_flags(server, XCB_XKB_ID_USE_CORE_KBD, detectableRepeat, detectableRepeat, 0, 0, 0);
    xcb_xkb_select_events_details_t details{};
    details.affectNewKeyboard = details.newKeyboardDetails = XCB_XKB_NKN_DETAIL_KEYCODES | XCB_XKB_NKN_DETAIL_DEVICE_ID;
    details.affectState = details.stateDetails = XCB_XKB_STATE_PART_MODIFIER_STATE;
    const auto select = xcb_xkb_select_events_aux_checked(
        server, XCB_XKB_ID_USE_CORE_KBD, keyboardEvents, 0, 0, mapParts, mapParts, &details);
    return fromServer(xcb_xkb_per_client_flags_reply(server, flags, nullptr))
        && !fromServer(xcb_request_check(server, select));
}

bool HotKeyConnection::startRawEvents()
{
    xcb_connection_t *const server = connection_.get();
    const xcb_query_extension_reply_t *extension = xcb_get_extension_data(server, &xcb_input_id);
    if (!extension || !extension->present)
        return false;
    rawEventExtension_ = extension->major_opcode;
    const auto version = fromServer(
        xcb_input_xi_query_version_reply(server, xcb_input_xi_query_version(server, inputMajor, inputMinor), nullptr));
    return version && std::pair(version->major_version, version->minor_version) >= std::pair(inputMajor, inputMinor);
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

HotKeyConnection::HeldKeys HotKeyConnection::heldKeys(xcb_query_keymap_cookie_t asked)
{
    HeldKeys held{fromServer(xcb_query_keymap_reply(connection_.get(), asked, nullptr)), asked.sequence};
    take(xcb_poll_for_queued_event);
    return held;
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
    // All requests go together; the answers to the first and the last are waited for.
    const auto before = xcb_query_keymap(connection_.get());
    std::vector<GrabOnRoot> granted;
    std::vector<std::pair<GrabOnRoot, xcb_void_cookie_t>> requests;
    for (const GrabOnRoot &one : onEveryRoot(grabs)) {
        requests.emplace_back(one,
            xcb_grab_key_checked(connection_.get(), false, one.root, one.grab.modifiers, one.grab.keycode,
                XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC));
    }
    wait();
    const HeldKeys held = heldKeys(before);
    for (const auto &[one, request] : requests) {
        if (!fromServer(xcb_request_check(connection_.get(), request)))
            granted.push_back(one);
    }
    if (granted.size() < requests.size() || isLost()) {
        ungrab(granted);
        return false;
    }
    grabbed_.insert(grabs.cbegin(), grabs.cend());
    noteHeldBefore(grabs, held);
    return true;
}

void HotKeyConnection::ungrab(const std::vector<KeyGrab> &grabs)
{
    for (const KeyGrab &grab : grabs)
        grabbed_.erase(grab);
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
    return !events_.empty() || unconfirmed_;
}

bool HotKeyConnection::isKeyboardChangePending()
{
    take(xcb_poll_for_event);
    const auto isChange = [](const Event &event) { return event.kind == Event::Kind::KeyboardChanged; };
    return std::any_of(events_.cbegin(), events_.cend(), isChange);
}

std::optional<HotKeyInput> HotKeyConnection::nextInput()
{
    for (;;) {
        confirmDown();
        // Anew each time: what is written below may read events from the socket, which then tells of them no more.
        take(xcb_poll_for_event);
        if (events_.empty())
            return std::nullopt;
        const Event event = events_.front();
        events_.pop_front();
        switch (event.kind) {
        case Event::Kind::Press:
            if (isNewPress(event.key.keycode))
                return HotKeyInput{HotKeyInput::Kind::Press, event.key};
            break;
        case Event::Kind::Release:
            noteRelease(event.key.keycode);
            break;
        case Event::Kind::ModifiersChanged:
            noteModifiers(event.key.modifiers);
            break;
        case Event::Kind::KeyboardChanged:
            return HotKeyInput{HotKeyInput::Kind::KeyboardChanged, {}};
        }
    }
}

void HotKeyConnection::take(xcb_generic_event_t *(*poll)(xcb_connection_t *))
{
    while (const auto event = fromServer(poll(connection_.get())))
        take(event.get());
}

void HotKeyConnection::take(const xcb_generic_event_t *event)
{
    using Kind = Event::Kind;
    const quint8 type = event->response_type & eventTypeMask;
    if (type == XCB_KEY_PRESS || type == XCB_KEY_RELEASE) {
        const auto *key = reinterpret_cast<const xcb_key_press_event_t *>(event);
        events_.push_back({type == XCB_KEY_PRESS ? Kind::Press : Kind::Release,
            {key->detail, quint16(key->state & realModifiers)}, event->full_sequence});
    } else if (type == XCB_GE_GENERIC) {
        const auto *raw = reinterpret_cast<const xcb_input_raw_key_release_event_t *>(event);
        if (raw->extension == rawEventExtension_ && raw->event_type == XCB_INPUT_RAW_KEY_RELEASE)
            events_.push_back({Kind::Release, {quint8(raw->detail), 0}, event->full_sequence});
    } else if (type == firstKeyboardEvent_) {
        takeKeyboardEvent(event);
    }
}

void HotKeyConnection::takeKeyboardEvent(const xcb_generic_event_t *event)
{
    if (event->pad0 != XCB_XKB_STATE_NOTIFY) {
        events_.push_back({Event::Kind::KeyboardChanged, {}, event->full_sequence});
        return;
    }
    const auto *state = reinterpret_cast<const xcb_xkb_state_notify_event_t *>(event);
    events_.push_back({Event::Kind::ModifiersChanged, {0, state->mods}, event->full_sequence});
}

bool HotKeyConnection::isNewPress(quint8 keycode)
{
    if (!down_.contains(keycode)) {
        noteDown(keycode);
        return true;
    }
    // A repeat grabs the keyboard, too.
    xcb_ungrab_keyboard(connection_.get(), XCB_CURRENT_TIME);
    xcb_flush(connection_.get());
    return false;
}

/// Has the keyboard be let go, and the release told: while the keyboard is grabbed as a key event, then as a raw one.
/// That is sent by confirmDown() only, so that a press is told at once.
void HotKeyConnection::noteDown(quint8 keycode)
{
    confirmDown();
    if (down_.empty())
        watchReleases(true);
    down_.insert(keycode);
    xcb_ungrab_keyboard(connection_.get(), XCB_CURRENT_TIME);
    unconfirmed_ = DownKey{keycode, xcb_query_keymap(connection_.get())};
}

/// Waits until the keyboard is free. What was released before raw events came is up by then, and counts as released
/// after what came in before.
void HotKeyConnection::confirmDown()
{
    if (!unconfirmed_)
        return;
    const DownKey key = *std::exchange(unconfirmed_, std::nullopt);
    const HeldKeys held = heldKeys(key.asked);
    if (held.contains(key.keycode))
        return;
    const auto later = std::find_if(
        events_.cbegin(), events_.cend(), [&held](const Event &event) { return !isBefore(event, held.sequence); });
    events_.insert(later, {Event::Kind::Release, {key.keycode, 0}, held.sequence});
}

void HotKeyConnection::noteRelease(quint8 keycode)
{
    if (!down_.erase(keycode) || !down_.empty())
        return;
    watchReleases(false);
    xcb_flush(connection_.get());
}

/// A key that repeats becomes a hot key with the modifiers that are pressed while it is down. It is not pressed, then.
void HotKeyConnection::noteModifiers(quint16 modifiers)
{
    std::vector<KeyGrab> grabs;
    std::copy_if(grabbed_.cbegin(), grabbed_.cend(), std::back_inserter(grabs),
        [modifiers](const KeyGrab &grab) { return grab.modifiers == modifiers; });
    if (!grabs.empty())
        noteHeldBefore(grabs, heldKeys());
}

/// Takes note of keys that were down, but not pressed as hot keys. One whose press has come in is pressed.
void HotKeyConnection::noteHeldBefore(const std::vector<KeyGrab> &grabs, const HeldKeys &held)
{
    for (const KeyGrab &grab : grabs) {
        const quint8 keycode = grab.keycode;
        if (held.contains(keycode) && !down_.contains(keycode) && !isPressPending(keycode, held.sequence))
            noteDown(keycode);
    }
}

/// Whether a press is still to be handled that came before the server got to a request.
bool HotKeyConnection::isPressPending(quint8 keycode, quint32 sequence) const
{
    return std::any_of(events_.cbegin(), events_.cend(), [keycode, sequence](const Event &event) {
        return event.kind == Event::Kind::Press && event.key.keycode == keycode && isBefore(event, sequence);
    });
}

bool HotKeyConnection::isBefore(const Event &event, quint32 sequence)
{
    return qint32(event.sequence - sequence) < 0;
}
