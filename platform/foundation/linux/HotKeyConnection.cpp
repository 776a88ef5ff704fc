#include "platform/foundation/linux/HotKeyConnection.h"

#include <QString>
#include <algorithm>
#include <functional>
#include <utility>
#include <xcb/xinput.h>

namespace {

constexpr quint16 keyboardEvents = XCB_XKB_EVENT_TYPE_NEW_KEYBOARD_NOTIFY | XCB_XKB_EVENT_TYPE_MAP_NOTIFY;
constexpr quint16 mapParts = XCB_XKB_MAP_PART_KEY_SYMS | XCB_XKB_MAP_PART_MODIFIER_MAP;
// The first in which a grab does not hide raw events.
constexpr quint16 inputMajor = 2, inputMinor = 1;

bool isDown(const xcb_query_keymap_reply_t *held, quint8 keycode)
{
    return held->keys[keycode / 8] & (1 << (keycode % 8));
}

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
    *failure = QStringLiteral("the X server lacks the keyboard extension, or version 2.1 of the input extension");
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
    xcb_flush(connection_.get());
}

std::optional<KeyboardMapping> HotKeyConnection::readKeyboard()
{
    auto keyboard = readKeyboardMapping(connection_.get());
    takeQueuedEvents();
    return keyboard;
}

HotKeyConnection::HeldKeys HotKeyConnection::heldKeys()
{
    HeldKeys held = fromServer(xcb_query_keymap_reply(connection_.get(), xcb_query_keymap(connection_.get()), nullptr));
    takeQueuedEvents();
    return held;
}

bool HotKeyConnection::grab(const std::vector<KeyGrab> &grabs)
{
    std::vector<Request> requests;
    for (const xcb_window_t root : roots_) {
        for (const KeyGrab &grab : grabs)
            requests.push_back({root, grab,
                xcb_grab_key_checked(connection_.get(), false, root, grab.modifiers, grab.keycode, XCB_GRAB_MODE_ASYNC,
                    XCB_GRAB_MODE_ASYNC)});
    }
    // The one answer that is waited for: it comes after all the others.
    const HeldKeys held = heldKeys();
    const auto isRefused = [this](const Request &request) {
        return bool(fromServer(xcb_request_check(connection_.get(), request.cookie)));
    };
    const auto refused = std::stable_partition(requests.begin(), requests.end(), std::not_fn(isRefused));
    const bool isGranted = refused == requests.end() && held;
    requests.erase(refused, requests.end());
    if (isGranted)
        handleGrabbedWhileHeld(grabs, held);
    else
        ungrab(requests);
    return isGranted;
}

/// A key that is down already when it becomes a hot key repeats, but is not pressed.
void HotKeyConnection::handleGrabbedWhileHeld(const std::vector<KeyGrab> &grabs, const HeldKeys &held)
{
    for (const KeyGrab &grab : grabs) {
        if (isDown(held.get(), grab.keycode) && !down_.contains(grab.keycode))
            handlePress(grab.keycode);
    }
}

void HotKeyConnection::ungrab(const std::vector<KeyGrab> &grabs)
{
    std::vector<Request> requests;
    for (const xcb_window_t root : roots_) {
        for (const KeyGrab &grab : grabs)
            requests.push_back({root, grab, {}});
    }
    ungrab(requests);
}

void HotKeyConnection::ungrab(const std::vector<Request> &requests)
{
    for (const Request &request : requests)
        xcb_ungrab_key(connection_.get(), request.grab.keycode, request.root, request.grab.modifiers);
    heldKeys();
}

std::optional<HotKeyInput> HotKeyConnection::nextInput()
{
    while (const auto event = fromServer(xcb_poll_for_event(connection_.get())))
        take(event.get());
    while (!queue_.empty()) {
        const HotKeyInput input = queue_.front();
        queue_.pop_front();
        if (input.kind == HotKeyInput::Kind::Release)
            handleRelease(input.keycode);
        else if (input.kind == HotKeyInput::Kind::KeyboardChanged || handlePress(input.keycode))
            return input;
    }
    return std::nullopt;
}

void HotKeyConnection::takeQueuedEvents()
{
    while (const auto event = fromServer(xcb_poll_for_queued_event(connection_.get())))
        take(event.get());
}

void HotKeyConnection::take(const xcb_generic_event_t *event)
{
    using Kind = HotKeyInput::Kind;
    const quint8 type = event->response_type & eventTypeMask;
    if (type == XCB_KEY_PRESS || type == XCB_KEY_RELEASE) {
        const auto *key = reinterpret_cast<const xcb_key_press_event_t *>(event);
        constexpr quint16 modifiers = 0xff; // beside them stand buttons and the layout's group
        queue_.push_back(
            {type == XCB_KEY_PRESS ? Kind::Press : Kind::Release, key->detail, quint16(key->state & modifiers)});
    } else if (type == XCB_GE_GENERIC) {
        const auto *raw = reinterpret_cast<const xcb_input_raw_key_release_event_t *>(event);
        if (raw->extension == rawEventExtension_ && raw->event_type == XCB_INPUT_RAW_KEY_RELEASE)
            queue_.push_back({Kind::Release, quint8(raw->detail)});
    } else if (type == firstKeyboardEvent_) {
        queue_.push_back({Kind::KeyboardChanged});
    }
}

/// Whether it is a press of its own and no repeat.
bool HotKeyConnection::handlePress(quint8 keycode)
{
    xcb_ungrab_keyboard(connection_.get(), XCB_CURRENT_TIME);
    if (down_.contains(keycode)) {
        xcb_flush(connection_.get());
        return false;
    }
    if (down_.empty())
        watchReleases(true);
    down_.insert(keycode);
    // With this answer the keyboard is free. A release before this cannot be among the raw events, unlike one after it;
    // it counts after everything that has come in before.
    const HeldKeys held = heldKeys();
    if (held && !isDown(held.get(), keycode))
        queue_.push_back({HotKeyInput::Kind::Release, keycode});
    return true;
}

void HotKeyConnection::handleRelease(quint8 keycode)
{
    if (down_.erase(keycode) && down_.empty())
        watchReleases(false);
}
