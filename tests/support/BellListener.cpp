#include "BellListener.h"

#include "platform/foundation/system/X11.h"

#include <QGuiApplication>
#include <cstdlib>
#include <gtest/gtest.h>

namespace {

template <typename Reply>
using Owned = std::unique_ptr<Reply, decltype(&std::free)>;

/// Waits until the server has handled what was sent to it.
void wait(xcb_connection_t *connection)
{
    std::free(xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr));
}

} // namespace

BellListener::BellListener() : connection_(xcb_connect(nullptr, nullptr), &xcb_disconnect)
{
    xcb_connection_t *const connection = connection_.get();
    const Owned<xcb_xkb_use_extension_reply_t> use(
        xcb_xkb_use_extension_reply(
            connection, xcb_xkb_use_extension(connection, XCB_XKB_MAJOR_VERSION, XCB_XKB_MINOR_VERSION), nullptr),
        &std::free);
    EXPECT_TRUE(use && use->supported);
    const auto request = xcb_xkb_select_events_aux_checked(connection, XCB_XKB_ID_USE_CORE_KBD,
        XCB_XKB_EVENT_TYPE_BELL_NOTIFY, 0, XCB_XKB_EVENT_TYPE_BELL_NOTIFY, 0, 0, nullptr);
    const Owned<xcb_generic_error_t> error(xcb_request_check(connection, request), &std::free);
    EXPECT_FALSE(error);
}

int BellListener::rings()
{
    if (const auto *application = qGuiApp->nativeInterface<QNativeInterface::QX11Application>())
        wait(application->connection());
    wait(connection_.get());
    const quint8 firstEvent = xcb_get_extension_data(connection_.get(), &xcb_xkb_id)->first_event;
    while (const Owned<xcb_generic_event_t> event{xcb_poll_for_queued_event(connection_.get()), &std::free}) {
        if ((event->response_type & eventTypeMask) != firstEvent || event->pad0 != XCB_XKB_BELL_NOTIFY)
            continue;
        ++rings_;
        lastWindow_ = reinterpret_cast<const xcb_xkb_bell_notify_event_t *>(event.get())->window;
    }
    return rings_;
}
