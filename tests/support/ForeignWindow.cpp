#include "ForeignWindow.h"

#include "DesktopWindows.h"
#include "Wait.h"

#include <xcb/xcb.h>

namespace {

constexpr quint16 width = 300, height = 200;

} // namespace

ForeignWindow::ForeignWindow(const QString &title)
    : connection_(xcb_connect(nullptr, nullptr), &xcb_disconnect), id_(xcb_generate_id(connection_.get()))
{
    xcb_connection_t *const connection = connection_.get();
    const xcb_screen_t *screen = xcb_setup_roots_iterator(xcb_get_setup(connection)).data;
    xcb_create_window(connection, XCB_COPY_FROM_PARENT, id_, screen->root, 0, 0, width, height, 0,
        XCB_WINDOW_CLASS_INPUT_OUTPUT, screen->root_visual, XCB_CW_BACK_PIXEL, &screen->white_pixel);
    const QByteArray name = title.toUtf8();
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, id_, XCB_ATOM_WM_NAME, XCB_ATOM_STRING, 8,
        quint32(name.size()), name.constData());
    xcb_map_window(connection, id_);
    xcb_flush(connection);
}

bool ForeignWindow::takesFocus() const
{
    const auto isShown = [this] { return stackedWindows().contains(id_); };
    if (!waitUntil(isShown))
        return false;
    turnToWindow(id_);
    return waitUntil([this] { return activeWindow() == id_; });
}
