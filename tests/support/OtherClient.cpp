#include "OtherClient.h"

#include "KeyPress.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <xcb/res.h>

namespace {

constexpr int modifierCount = 8;

} // namespace

OtherClient::OtherClient() : connection_(connectToXServer()) { }

xcb_window_t OtherClient::rootOf(int screen) const
{
    auto screens = xcb_setup_roots_iterator(xcb_get_setup(connection_.get()));
    for (int place = 0; place < screen; ++place)
        xcb_screen_next(&screens);
    return screens.data->root;
}

bool OtherClient::grabKey(int evdevCode, quint16 modifiers, int screen)
{
    const auto grab = xcb_grab_key_checked(connection_.get(), false, rootOf(screen), modifiers,
        quint8(evdevCode + evdevToX11), XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
    return !fromServer(xcb_request_check(connection_.get(), grab));
}

void OtherClient::ungrabKey(int evdevCode, quint16 modifiers, int screen)
{
    const auto ungrab =
        xcb_ungrab_key_checked(connection_.get(), quint8(evdevCode + evdevToX11), rootOf(screen), modifiers);
    EXPECT_FALSE(fromServer(xcb_request_check(connection_.get(), ungrab)));
}

bool OtherClient::isHeldElsewhere(int evdevCode, quint16 modifiers, int screen)
{
    const bool isFree = grabKey(evdevCode, modifiers, screen);
    if (isFree)
        ungrabKey(evdevCode, modifiers, screen);
    return !isFree;
}

bool OtherClient::grabKeyboard()
{
    return grabKeyboard(XCB_GRAB_MODE_ASYNC);
}

bool OtherClient::grabKeyboardHoldingUpKeys()
{
    return grabKeyboard(XCB_GRAB_MODE_SYNC);
}

bool OtherClient::grabKeyboard(xcb_grab_mode_t keys)
{
    const auto grab =
        xcb_grab_keyboard(connection_.get(), false, rootOf(0), XCB_CURRENT_TIME, XCB_GRAB_MODE_ASYNC, quint8(keys));
    const auto reply = fromServer(xcb_grab_keyboard_reply(connection_.get(), grab, nullptr));
    return reply && reply->status == XCB_GRAB_STATUS_SUCCESS;
}

void OtherClient::ungrabKeyboard()
{
    const auto ungrab = xcb_ungrab_keyboard_checked(connection_.get(), XCB_CURRENT_TIME);
    EXPECT_FALSE(fromServer(xcb_request_check(connection_.get(), ungrab)));
}

void OtherClient::takeFocus(int screen)
{
    xcb_connection_t *const server = connection_.get();
    window_ = xcb_generate_id(server);
    // Without a window manager's help.
    const quint32 values[]{
        true, XCB_EVENT_MASK_KEY_PRESS | XCB_EVENT_MASK_BUTTON_PRESS | XCB_EVENT_MASK_PROPERTY_CHANGE};
    xcb_create_window(server, XCB_COPY_FROM_PARENT, window_, rootOf(screen), 0, 0, 100, 100, 0,
        XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, XCB_CW_OVERRIDE_REDIRECT | XCB_CW_EVENT_MASK, values);
    xcb_map_window(server, window_);
    const auto focus = xcb_set_input_focus_checked(server, XCB_INPUT_FOCUS_PARENT, window_, XCB_CURRENT_TIME);
    EXPECT_FALSE(fromServer(xcb_request_check(server, focus)));
}

QList<int> OtherClient::pressedKeys()
{
    takeEvents();
    return pressedKeys_;
}

int OtherClient::clicks()
{
    takeEvents();
    return clicks_;
}

void OtherClient::takeEvents()
{
    fromServer(xcb_get_input_focus_reply(connection_.get(), xcb_get_input_focus(connection_.get()), nullptr));
    while (const auto event = fromServer(xcb_poll_for_queued_event(connection_.get()))) {
        const quint8 type = event->response_type & eventTypeMask;
        if (type == XCB_KEY_PRESS)
            pressedKeys_.append(reinterpret_cast<const xcb_key_press_event_t *>(event.get())->detail - evdevToX11);
        else if (type == XCB_BUTTON_PRESS)
            ++clicks_;
        else if (type == XCB_PROPERTY_NOTIFY)
            lastTime_ = reinterpret_cast<const xcb_property_notify_event_t *>(event.get())->time;
    }
}

void OtherClient::useKeyboardExtension()
{
    const auto use = xcb_xkb_use_extension(connection_.get(), XCB_XKB_MAJOR_VERSION, XCB_XKB_MINOR_VERSION);
    fromServer(xcb_xkb_use_extension_reply(connection_.get(), use, nullptr));
}

void OtherClient::setStickyKeys(bool areOn)
{
    useKeyboardExtension();
    constexpr quint32 sticky = XCB_XKB_BOOL_CTRL_STICKY_KEYS;
    constexpr quint8 perKeyRepeat[32]{};
    const auto set = xcb_xkb_set_controls_checked(connection_.get(), XCB_XKB_ID_USE_CORE_KBD, 0, 0, 0, 0, 0, 0, 0, 0, 0,
        0, 0, sticky, areOn ? sticky : 0, XCB_XKB_CONTROL_CONTROLS_ENABLED, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0,
        perKeyRepeat);
    EXPECT_FALSE(fromServer(xcb_request_check(connection_.get(), set)));
}

void OtherClient::setKeyRepeat(quint16 delay, quint16 interval)
{
    xcb_connection_t *const server = connection_.get();
    useKeyboardExtension();
    constexpr quint8 perKeyRepeat[32]{};
    const auto set = xcb_xkb_set_controls_checked(server, XCB_XKB_ID_USE_CORE_KBD, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0,
        0, XCB_XKB_BOOL_CTRL_REPEAT_KEYS, delay, interval, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, perKeyRepeat);
    EXPECT_FALSE(fromServer(xcb_request_check(server, set)));
}

quint32 OtherClient::serverTime()
{
    // What has not changed tells the time all the same.
    xcb_change_property(
        connection_.get(), XCB_PROP_MODE_APPEND, window_, XCB_ATOM_WM_NAME, XCB_ATOM_STRING, 8, 0, nullptr);
    takeEvents();
    return lastTime_;
}

QList<QList<int>> OtherClient::modifierKeys()
{
    const auto reply = fromServer(
        xcb_get_modifier_mapping_reply(connection_.get(), xcb_get_modifier_mapping(connection_.get()), nullptr));
    const xcb_keycode_t *codes = xcb_get_modifier_mapping_keycodes(reply.get());
    QList<QList<int>> keys(modifierCount);
    for (int place = 0; place < modifierCount * reply->keycodes_per_modifier; ++place) {
        if (codes[place] != 0)
            keys[place / reply->keycodes_per_modifier].append(codes[place]);
    }
    return keys;
}

void OtherClient::setModifierKeys(const QList<QList<int>> &keys)
{
    qsizetype most = 0;
    for (const QList<int> &modifier : keys)
        most = std::max(most, modifier.size());
    QByteArray codes(modifierCount * most, 0);
    for (qsizetype modifier = 0; modifier < keys.size(); ++modifier) {
        for (qsizetype place = 0; place < keys[modifier].size(); ++place)
            codes[modifier * most + place] = char(keys[modifier][place]);
    }
    const auto set = xcb_set_modifier_mapping(
        connection_.get(), quint8(most), reinterpret_cast<const xcb_keycode_t *>(codes.constData()));
    const auto reply = fromServer(xcb_set_modifier_mapping_reply(connection_.get(), set, nullptr));
    EXPECT_TRUE(reply && reply->status == XCB_MAPPING_STATUS_SUCCESS);
}

QList<quint32> OtherClient::clientsOf(qint64 process)
{
    xcb_connection_t *const server = connection_.get();
    fromServer(xcb_res_query_version_reply(server, xcb_res_query_version(server, 1, 2), nullptr));
    const xcb_res_client_id_spec_t everybody{0, XCB_RES_CLIENT_ID_MASK_LOCAL_CLIENT_PID};
    const auto reply =
        fromServer(xcb_res_query_client_ids_reply(server, xcb_res_query_client_ids(server, 1, &everybody), nullptr));
    QList<quint32> clients;
    for (auto id = xcb_res_query_client_ids_ids_iterator(reply.get()); id.rem > 0; xcb_res_client_id_value_next(&id)) {
        if (*xcb_res_client_id_value_value(id.data) == quint32(process))
            clients += id.data->spec.client;
    }
    return clients;
}

quint64 OtherClient::resourcesOf(qint64 process)
{
    quint64 count = 0;
    for (const quint32 client : clientsOf(process)) {
        const auto resources = fromServer(xcb_res_query_client_resources_reply(
            connection_.get(), xcb_res_query_client_resources(connection_.get(), client), nullptr));
        for (auto type = xcb_res_query_client_resources_types_iterator(resources.get()); type.rem > 0;
             xcb_res_type_next(&type))
            count += type.data->count;
    }
    return count;
}

quint64 OtherClient::pictureBytesOf(qint64 process)
{
    quint64 bytes = 0;
    for (const quint32 client : clientsOf(process)) {
        const auto reply = fromServer(xcb_res_query_client_pixmap_bytes_reply(
            connection_.get(), xcb_res_query_client_pixmap_bytes(connection_.get(), client), nullptr));
        bytes += reply ? quint64(reply->bytes_overflow) << 32 | reply->bytes : 0;
    }
    return bytes;
}
