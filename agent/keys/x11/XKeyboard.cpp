#include "agent/keys/x11/XKeyboard.h"

#include "platform/foundation/hotkeys/HotKeys.h"
#include "platform/foundation/keyboard/KeyboardEvents.h"

#include <algorithm>
#include <xcb/xinput.h>

namespace {

constexpr int modifierCount = 8;
constexpr quint16 buttons = XCB_BUTTON_MASK_1 | XCB_BUTTON_MASK_2 | XCB_BUTTON_MASK_3;

} // namespace

bool XKeyboard::open()
{
    if (connection_)
        return true;
    // There it shows what goes to programs of the X server alone.
    if (!qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY"))
        return false;
    connection_ = connectToXServer();
    if (xcb_connection_has_error(connection_.get()) || !start()) {
        connection_ = nullptr;
        return false;
    }
    notifier_ = std::make_unique<QSocketNotifier>(xcb_get_file_descriptor(connection_.get()), QSocketNotifier::Read);
    connect(notifier_.get(), &QSocketNotifier::activated, this, [this] { handleEvents(); });
    handleLater();
    return true;
}

bool XKeyboard::start()
{
    root_ = xcb_setup_roots_iterator(xcb_get_setup(connection_.get())).data->root;
    // What is latched or locked is not held.
    const auto codes = startKeyboardEvents(connection_.get(), XCB_XKB_STATE_PART_MODIFIER_BASE);
    if (!codes || !readMapping())
        return false;
    firstKeyboardEvent_ = codes->firstKeyboardEvent;
    inputExtension_ = codes->inputExtension;
    watch({});
    return true;
}

void XKeyboard::watch(Events events)
{
    if (!connection_)
        return;
    // Of every device, since a program that holds up all keys holds up those of the keyboard that unites them.
    struct
    {
        xcb_input_event_mask_t head;
        quint32 mask;
    } selection{{XCB_INPUT_DEVICE_ALL, 1}, XCB_INPUT_XI_EVENT_MASK_HIERARCHY};
    if (events & KeyPresses)
        selection.mask |= XCB_INPUT_XI_EVENT_MASK_RAW_KEY_PRESS;
    if (events & KeyReleases)
        selection.mask |= XCB_INPUT_XI_EVENT_MASK_RAW_KEY_RELEASE;
    if (events & Buttons)
        selection.mask |= XCB_INPUT_XI_EVENT_MASK_RAW_BUTTON_PRESS;
    xcb_input_xi_select_events(connection_.get(), root_, 1, &selection.head);
    xcb_flush(connection_.get());
}

void XKeyboard::readMappingIfDue()
{
    if (isMappingDue_)
        readMapping();
}

bool XKeyboard::readMapping()
{
    xcb_connection_t *const server = connection_.get();
    const auto question = xcb_get_modifier_mapping(server);
    const auto mapping = readKeyboardMapping(server);
    const auto modifiers = fromServer(xcb_get_modifier_mapping_reply(server, question, nullptr));
    if (!mapping || !modifiers)
        return false;
    mapping_ = *mapping;
    modifiersOfKeys_ = {};
    const xcb_keycode_t *keycodes = xcb_get_modifier_mapping_keycodes(modifiers.get());
    for (int place = 0; place < modifierCount * modifiers->keycodes_per_modifier; ++place)
        modifiersOfKeys_[keycodes[place]] |= quint16(1 << place / modifiers->keycodes_per_modifier);
    // A modifier has places for more keys than it has.
    modifiersOfKeys_[0] = 0;
    isMappingDue_ = false;
    return true;
}

void XKeyboard::readDevicesIfDue()
{
    if (!devices_.empty())
        return;
    const auto question = xcb_input_xi_query_device(connection_.get(), XCB_INPUT_DEVICE_ALL);
    const auto answer = fromServer(xcb_input_xi_query_device_reply(connection_.get(), question, nullptr));
    if (!answer)
        return;
    auto device = xcb_input_xi_query_device_infos_iterator(answer.get());
    for (; device.rem > 0; xcb_input_xi_device_info_next(&device)) {
        const quint16 type = device.data->type;
        // Some mice have keys.
        if (type == XCB_INPUT_DEVICE_TYPE_SLAVE_KEYBOARD || type == XCB_INPUT_DEVICE_TYPE_SLAVE_POINTER)
            devices_.push_back(device.data->deviceid);
    }
}

quint32 XKeyboard::asModifiers(quint16 serverModifiers) const
{
    const std::pair<quint32, quint16> bits[]{{shiftKey, XCB_MOD_MASK_SHIFT}, {controlKey, XCB_MOD_MASK_CONTROL},
        {optionKey, mapping_.option}, {cmdKey, mapping_.command}};
    quint32 modifiers = 0;
    for (const auto &[modifier, bit] : bits) {
        if (serverModifiers & bit)
            modifiers |= modifier;
    }
    return modifiers;
}

/// By the keyboard that unites the devices, and by those themselves: they know of a release that another program holds
/// up.
quint16 XKeyboard::heldServerModifiers()
{
    xcb_connection_t *const server = connection_.get();
    const auto ofKeyboard = xcb_xkb_get_state(server, XCB_XKB_ID_USE_CORE_KBD);
    std::vector<xcb_xkb_get_state_cookie_t> ofDevices;
    for (const quint16 device : devices_)
        ofDevices.push_back(xcb_xkb_get_state(server, device));
    const auto state = fromServer(xcb_xkb_get_state_reply(server, ofKeyboard, nullptr));
    quint16 onDevices = 0;
    bool isTold = false;
    for (const xcb_xkb_get_state_cookie_t question : ofDevices) {
        // None comes from a device without keys.
        if (const auto ofDevice = fromServer(xcb_xkb_get_state_reply(server, question, nullptr))) {
            isTold = true;
            onDevices |= ofDevice->baseMods;
        }
    }
    const quint16 held = state ? state->baseMods : 0;
    return isTold ? held & onDevices : held;
}

quint32 XKeyboard::heldModifiers()
{
    if (!connection_)
        return 0;
    readMappingIfDue();
    readDevicesIfDue();
    const quint16 held = heldServerModifiers();
    handleLater();
    return asModifiers(held);
}

XKeyboard::HeldKeys XKeyboard::heldKeys(xcb_query_keymap_cookie_t question)
{
    const auto answer = fromServer(xcb_query_keymap_reply(connection_.get(), question, nullptr));
    HeldKeys held;
    for (size_t keycode = 0; answer && keycode < held.size(); ++keycode)
        held[keycode] = answer->keys[keycode / 8] & (1 << (keycode % 8));
    handleLater();
    return held;
}

bool XKeyboard::isHeld(VirtualKeyCode keyCode)
{
    if (!connection_)
        return false;
    readMappingIfDue();
    const HeldKeys held = heldKeys(xcb_query_keymap(connection_.get()));
    const QList<PhysicalKey> keys = physicalKeysOf(keyCode);
    return std::any_of(keys.cbegin(), keys.cend(), [&](const PhysicalKey &key) {
        const auto keycode = mapping_.keys.keycodeOf(key);
        return keycode && held.test(*keycode);
    });
}

bool XKeyboard::isAnythingHeldBut(quint32 modifiers)
{
    if (!connection_)
        return false;
    readMappingIfDue();
    const auto ofPointer = xcb_query_pointer(connection_.get(), root_);
    const HeldKeys held = heldKeys(xcb_query_keymap(connection_.get()));
    const auto pointer = fromServer(xcb_query_pointer_reply(connection_.get(), ofPointer, nullptr));
    if (pointer && pointer->mask & buttons)
        return true;
    for (size_t keycode = 0; keycode < held.size(); ++keycode) {
        if (held.test(keycode) && !(asModifiers(modifiersOfKeys_[keycode]) & modifiers))
            return true;
    }
    return false;
}

bool XKeyboard::grab()
{
    if (!connection_)
        return false;
    const auto question =
        xcb_grab_keyboard(connection_.get(), false, root_, XCB_CURRENT_TIME, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
    const auto keys = xcb_query_keymap(connection_.get());
    const auto answer = fromServer(xcb_grab_keyboard_reply(connection_.get(), question, nullptr));
    isGrabbed_ = answer && answer->status == XCB_GRAB_STATUS_SUCCESS;
    // What is down by then is not pressed.
    down_ = heldKeys(keys);
    return isGrabbed_;
}

bool XKeyboard::isScreenTaken()
{
    if (!connection_)
        return false;
    xcb_connection_t *const server = connection_.get();
    // Who is not on screen is granted nothing, but told first that another one has it.
    const xcb_window_t unseen = xcb_generate_id(server);
    xcb_create_window(
        server, 0, unseen, root_, 0, 0, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
    const auto keys =
        xcb_grab_keyboard(server, false, unseen, XCB_CURRENT_TIME, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
    const auto mouse = xcb_grab_pointer(server, false, unseen, 0, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC,
        XCB_WINDOW_NONE, XCB_CURSOR_NONE, XCB_CURRENT_TIME);
    xcb_destroy_window(server, unseen);
    const auto ofKeys = fromServer(xcb_grab_keyboard_reply(server, keys, nullptr));
    const auto ofMouse = fromServer(xcb_grab_pointer_reply(server, mouse, nullptr));
    handleLater();
    return ofKeys && ofKeys->status == XCB_GRAB_STATUS_ALREADY_GRABBED && ofMouse
        && ofMouse->status == XCB_GRAB_STATUS_ALREADY_GRABBED;
}

void XKeyboard::letGo()
{
    if (!std::exchange(isGrabbed_, false) || !connection_)
        return;
    xcb_ungrab_keyboard(connection_.get(), XCB_CURRENT_TIME);
    xcb_flush(connection_.get());
}

void XKeyboard::ring()
{
    if (!connection_)
        return;
    xcb_bell(connection_.get(), 0);
    xcb_flush(connection_.get());
}

std::unique_ptr<Keyboard> keyboard()
{
    return std::make_unique<XKeyboard>();
}
