#include "platform/foundation/keyboard/KeyboardEvents.h"

#include <utility>
#include <xcb/xinput.h>

namespace {

constexpr quint16 keyboardEvents =
    XCB_XKB_EVENT_TYPE_NEW_KEYBOARD_NOTIFY | XCB_XKB_EVENT_TYPE_MAP_NOTIFY | XCB_XKB_EVENT_TYPE_STATE_NOTIFY;
constexpr quint16 mapParts = XCB_XKB_MAP_PART_KEY_SYMS | XCB_XKB_MAP_PART_MODIFIER_MAP;
// The first in which a grab does not hide raw events.
constexpr quint16 inputMajor = 2, inputMinor = 1;

bool selectKeyboardEvents(xcb_connection_t *server, quint16 stateParts)
{
    const auto use = fromServer(xcb_xkb_use_extension_reply(
        server, xcb_xkb_use_extension(server, XCB_XKB_MAJOR_VERSION, XCB_XKB_MINOR_VERSION), nullptr));
    if (!use || !use->supported)
        return false;
    constexpr quint32 detectableRepeat = XCB_XKB_PER_CLIENT_FLAG_DETECTABLE_AUTO_REPEAT;
    const auto flags =
        xcb_xkb_per_client_flags(server, XCB_XKB_ID_USE_CORE_KBD, detectableRepeat, detectableRepeat, 0, 0, 0);
    xcb_xkb_select_events_details_t details{};
    details.affectNewKeyboard = details.newKeyboardDetails = XCB_XKB_NKN_DETAIL_KEYCODES | XCB_XKB_NKN_DETAIL_DEVICE_ID;
    details.affectState = details.stateDetails = stateParts;
    const auto select = xcb_xkb_select_events_aux_checked(
        server, XCB_XKB_ID_USE_CORE_KBD, keyboardEvents, 0, 0, mapParts, mapParts, &details);
    return fromServer(xcb_xkb_per_client_flags_reply(server, flags, nullptr))
        && !fromServer(xcb_request_check(server, select));
}

bool hasRawEvents(xcb_connection_t *server)
{
    const xcb_query_extension_reply_t *extension = xcb_get_extension_data(server, &xcb_input_id);
    if (!extension || !extension->present)
        return false;
    const auto version = fromServer(
        xcb_input_xi_query_version_reply(server, xcb_input_xi_query_version(server, inputMajor, inputMinor), nullptr));
    return version && std::pair(version->major_version, version->minor_version) >= std::pair(inputMajor, inputMinor);
}

} // namespace

std::optional<KeyboardEventCodes> startKeyboardEvents(xcb_connection_t *connection, quint16 stateParts)
{
    if (!selectKeyboardEvents(connection, stateParts) || !hasRawEvents(connection))
        return {};
    return KeyboardEventCodes{xcb_get_extension_data(connection, &xcb_xkb_id)->first_event,
        xcb_get_extension_data(connection, &xcb_input_id)->major_opcode};
}
