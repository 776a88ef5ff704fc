#include "agent/gestures/x11/ScreenSaverWatch.h"

#include <xcb/screensaver.h>

ScreenSaverWatch::ScreenSaverWatch()
{
    xcb_connection_t *const connection = connection_.get();
    if (xcb_connection_has_error(connection))
        return;
    const xcb_query_extension_reply_t *extension = xcb_get_extension_data(connection, &xcb_screensaver_id);
    if (!extension || !extension->present)
        return;
    firstEvent_ = extension->first_event;
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
    xcb_screensaver_select_input(connection, root, XCB_SCREENSAVER_EVENT_NOTIFY_MASK);
    xcb_flush(connection);
    notifier_ = std::make_unique<QSocketNotifier>(xcb_get_file_descriptor(connection), QSocketNotifier::Read);
    connect(notifier_.get(), &QSocketNotifier::activated, this, &ScreenSaverWatch::handleEvents);
}

void ScreenSaverWatch::handleEvents()
{
    bool isUp = false;
    while (const auto event = fromServer(xcb_poll_for_event(connection_.get()))) {
        if ((event->response_type & eventTypeMask) != firstEvent_ + XCB_SCREENSAVER_NOTIFY)
            continue;
        const auto *notify = reinterpret_cast<const xcb_screensaver_notify_event_t *>(event.get());
        isUp |= notify->state == XCB_SCREENSAVER_STATE_ON;
    }
    if (xcb_connection_has_error(connection_.get()))
        notifier_->setEnabled(false);
    if (isUp)
        Q_EMIT cameUp();
}
