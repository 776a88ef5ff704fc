#include "platform/foundation/keyboard/linux/KeyboardConnection.h"

#include <utility>
#include <xkbcommon/xkbcommon-x11.h>

namespace {

constexpr quint16 groupParts = XCB_XKB_STATE_PART_GROUP_STATE | XCB_XKB_STATE_PART_GROUP_BASE
    | XCB_XKB_STATE_PART_GROUP_LATCH | XCB_XKB_STATE_PART_GROUP_LOCK;
constexpr quint16 mapParts = XCB_XKB_MAP_PART_KEY_TYPES | XCB_XKB_MAP_PART_KEY_SYMS | XCB_XKB_MAP_PART_MODIFIER_MAP
    | XCB_XKB_MAP_PART_EXPLICIT_COMPONENTS | XCB_XKB_MAP_PART_KEY_ACTIONS | XCB_XKB_MAP_PART_VIRTUAL_MODS
    | XCB_XKB_MAP_PART_VIRTUAL_MOD_MAP;

} // namespace

std::unique_ptr<KeyboardConnection> KeyboardConnection::open(const XkbContext &context)
{
    std::unique_ptr<KeyboardConnection> keyboard(new KeyboardConnection(context, connectToXServer()));
    return keyboard->start() ? std::move(keyboard) : nullptr;
}

KeyboardConnection::KeyboardConnection(XkbContext context, XConnection connection)
    : context_(std::move(context)), connection_(std::move(connection))
{
}

bool KeyboardConnection::start()
{
    if (isLost())
        return false;
    const int hasKeyboards = xkb_x11_setup_xkb_extension(connection_.get(), XKB_X11_MIN_MAJOR_XKB_VERSION,
        XKB_X11_MIN_MINOR_XKB_VERSION, XKB_X11_SETUP_XKB_EXTENSION_NO_FLAGS, nullptr, nullptr, &firstEvent_, nullptr);
    if (!hasKeyboards)
        return false;
    keyboard_ = xkb_x11_get_core_keyboard_device_id(connection_.get());
    return keyboard_ != -1 && selectEvents() && readKeymap();
}

bool KeyboardConnection::selectEvents()
{
    constexpr quint16 events =
        XCB_XKB_EVENT_TYPE_NEW_KEYBOARD_NOTIFY | XCB_XKB_EVENT_TYPE_MAP_NOTIFY | XCB_XKB_EVENT_TYPE_STATE_NOTIFY;
    xcb_xkb_select_events_details_t details{};
    details.affectNewKeyboard = details.newKeyboardDetails = XCB_XKB_NKN_DETAIL_KEYCODES | XCB_XKB_NKN_DETAIL_DEVICE_ID;
    details.affectState = details.stateDetails = groupParts;
    const auto request = xcb_xkb_select_events_aux_checked(
        connection_.get(), xcb_xkb_device_spec_t(keyboard_), events, 0, 0, mapParts, mapParts, &details);
    return !fromServer(xcb_request_check(connection_.get(), request));
}

bool KeyboardConnection::isLost() const
{
    return xcb_connection_has_error(connection_.get()) != 0;
}

UCKeyboardLayoutRef KeyboardConnection::currentLayout()
{
    handlePendingEvents();
    if (isLost())
        return nullptr;
    if (std::exchange(isKeymapOutdated_, false) && !readKeymap())
        isKeymapOutdated_ = true;
    if (!layout_) {
        const auto group = xkb_state_serialize_layout(state_.get(), XKB_STATE_LAYOUT_EFFECTIVE);
        layout_ = std::make_shared<KeyboardLayoutData>(keymap_, group);
    }
    return layout_;
}

void KeyboardConnection::handlePendingEvents()
{
    while (const auto event = fromServer(xcb_poll_for_event(connection_.get())))
        handle(event.get());
}

void KeyboardConnection::handle(const xcb_generic_event_t *event)
{
    if ((event->response_type & eventTypeMask) != firstEvent_)
        return;
    if (event->pad0 != XCB_XKB_STATE_NOTIFY) {
        // Switching between devices sends these in numbers, so the keymap is read once for all of them.
        isKeymapOutdated_ = true;
        return;
    }
    const auto *state = reinterpret_cast<const xcb_xkb_state_notify_event_t *>(event);
    xkb_state_update_mask(state_.get(), state->baseMods, state->latchedMods, state->lockedMods,
        xkb_layout_index_t(state->baseGroup), xkb_layout_index_t(state->latchedGroup), state->lockedGroup);
    layout_ = nullptr;
}

bool KeyboardConnection::readKeymap()
{
    const XkbKeymap keymap = ownedKeymap(
        xkb_x11_keymap_new_from_device(context_.get(), connection_.get(), keyboard_, XKB_KEYMAP_COMPILE_NO_FLAGS));
    const XkbState state =
        keymap ? ownedState(xkb_x11_state_new_from_device(keymap.get(), connection_.get(), keyboard_)) : nullptr;
    if (!state)
        return false;
    keymap_ = keymap;
    state_ = state;
    layout_ = nullptr;
    return true;
}
