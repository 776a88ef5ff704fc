#include "platform/appkit/NSBeep.h"
#include "platform/foundation/system/X11.h"

#include <QApplication>
#include <QWidget>
#include <xcb/xcb.h>

namespace {

constexpr qint8 usualVolume = 0;

xcb_connection_t *display()
{
    const auto *x11 = qGuiApp ? qGuiApp->nativeInterface<QNativeInterface::QX11Application>() : nullptr;
    return x11 ? x11->connection() : nullptr;
}

bool hasKeyboardExtension(xcb_connection_t *display)
{
    const xcb_query_extension_reply_t *extension = xcb_get_extension_data(display, &xcb_xkb_id);
    return extension && extension->present;
}

/// A desktop that flashes instead of ringing wants to know which window to flash.
void ringForWindow(xcb_connection_t *display, xcb_window_t window)
{
    const auto isUsed = xcb_xkb_use_extension(display, XCB_XKB_MAJOR_VERSION, XCB_XKB_MINOR_VERSION);
    xcb_discard_reply(display, isUsed.sequence);
    xcb_xkb_bell(display, XCB_XKB_ID_USE_CORE_KBD, XCB_XKB_ID_DFLT_XI_CLASS, XCB_XKB_ID_DFLT_XI_ID, usualVolume, false,
        false, 0, 0, XCB_ATOM_NONE, window);
}

} // namespace

void NSBeep()
{
    xcb_connection_t *const connection = display();
    if (!connection) {
        QApplication::beep();
        return;
    }
    const QWidget *window = QApplication::activeWindow();
    if (hasKeyboardExtension(connection))
        ringForWindow(connection, window ? xcb_window_t(window->internalWinId()) : xcb_window_t(XCB_NONE));
    else
        xcb_bell(connection, usualVolume);
    xcb_flush(connection);
}
