#include "agent/actions/x11/WindowForShow.h"

#include <xcb/shape.h>

namespace {

constexpr char windowClass[] = "LumarooAgent\0LumarooAgent";

} // namespace

bool canLetClicksThrough(const ActionConnection &connection)
{
    return connection.extension(&xcb_shape_id) != nullptr;
}

xcb_window_t makeWindowForShow(const ActionConnection &connection, const QRect &rect, quint16 borderWidth)
{
    xcb_connection_t *const server = connection.server();
    const xcb_window_t window = xcb_generate_id(server);
    const quint32 isNobodysToManage = true, noShadow = 0;
    xcb_create_window(server, XCB_COPY_FROM_PARENT, window, connection.root(), qint16(rect.x()), qint16(rect.y()),
        quint16(rect.width()), quint16(rect.height()), borderWidth, XCB_WINDOW_CLASS_INPUT_OUTPUT,
        connection.screen()->root_visual, XCB_CW_OVERRIDE_REDIRECT, &isNobodysToManage);
    xcb_shape_rectangles(
        server, XCB_SHAPE_SO_SET, XCB_SHAPE_SK_INPUT, XCB_CLIP_ORDERING_UNSORTED, window, 0, 0, 0, nullptr);
    const xcb_atom_t type = connection.atom("_NET_WM_WINDOW_TYPE_NOTIFICATION");
    xcb_change_property(
        server, XCB_PROP_MODE_REPLACE, window, connection.atom("_NET_WM_WINDOW_TYPE"), XCB_ATOM_ATOM, 32, 1, &type);
    xcb_change_property(
        server, XCB_PROP_MODE_REPLACE, window, connection.atom("_COMPTON_SHADOW"), XCB_ATOM_CARDINAL, 32, 1, &noShadow);
    xcb_change_property(
        server, XCB_PROP_MODE_REPLACE, window, XCB_ATOM_WM_CLASS, XCB_ATOM_STRING, 8, sizeof windowClass, windowClass);
    return window;
}
