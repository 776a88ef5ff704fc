#include "agent/actions/x11/ActionConnection.h"

#include <utility>
#include <xcb/xcbext.h>

namespace {

// Windows within windows; a window manager adds two or three.
constexpr int mostAncestors = 16;

} // namespace

ActionConnection::ActionConnection()
{
    int preferredScreen = 0;
    connection_ = connectToXServer(&preferredScreen);
    if (isLost())
        return;
    auto screens = xcb_setup_roots_iterator(xcb_get_setup(server()));
    while (preferredScreen-- > 0 && screens.rem > 1)
        xcb_screen_next(&screens);
    screen_ = screens.data;
}

xcb_atom_t ActionConnection::atom(const QByteArray &name) const
{
    const auto asked = xcb_intern_atom(server(), false, quint16(name.size()), name.constData());
    const auto reply = fromServer(xcb_intern_atom_reply(server(), asked, nullptr));
    return reply ? reply->atom : xcb_atom_t(XCB_ATOM_NONE);
}

const xcb_query_extension_reply_t *ActionConnection::extension(xcb_extension_t *which) const
{
    const xcb_query_extension_reply_t *data = xcb_get_extension_data(server(), which);
    return data && data->present ? data : nullptr;
}

/// It comes with events only, such as that of a property that changes.
xcb_timestamp_t ActionConnection::time() const
{
    if (isLost())
        return XCB_CURRENT_TIME;
    const xcb_window_t window = xcb_generate_id(server());
    const quint32 events = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_create_window(server(), 0, window, root(), 0, 0, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT,
        XCB_CW_EVENT_MASK, &events);
    xcb_change_property(server(), XCB_PROP_MODE_APPEND, window, XCB_ATOM_WM_NAME, XCB_ATOM_STRING, 8, 0, nullptr);
    xcb_destroy_window(server(), window);
    flush();
    while (const auto event = fromServer(xcb_wait_for_event(server()))) {
        const auto *change = reinterpret_cast<const xcb_property_notify_event_t *>(event.get());
        if ((event->response_type & eventTypeMask) == XCB_PROPERTY_NOTIFY && change->window == window)
            return change->time;
    }
    return XCB_CURRENT_TIME;
}

xcb_window_t ActionConnection::holderOf(xcb_window_t window) const
{
    for (int step = 0; step < mostAncestors; ++step) {
        const auto reply = fromServer(xcb_query_tree_reply(server(), xcb_query_tree(server(), window), nullptr));
        if (!reply)
            break;
        if (reply->parent == root())
            return window;
        window = reply->parent;
    }
    return XCB_WINDOW_NONE;
}

void ActionConnection::listen(std::function<void(const xcb_generic_event_t &)> handler)
{
    handler_ = std::move(handler);
    input_ = std::make_unique<QSocketNotifier>(xcb_get_file_descriptor(server()), QSocketNotifier::Read);
    connect(input_.get(), &QSocketNotifier::activated, this, &ActionConnection::look);
    flush();
    lookSoon();
}

void ActionConnection::expect(unsigned request, std::function<void(void *)> handler)
{
    request_ = request;
    answerHandler_ = std::move(handler);
    flush();
    lookSoon();
}

/// One that has been read along with the events.
bool ActionConnection::takeAnswer()
{
    void *answer = nullptr;
    xcb_generic_error_t *error = nullptr;
    if (request_ == 0 || xcb_poll_for_reply(server(), request_, &answer, &error) == 0)
        return false;
    std::free(error);
    request_ = 0;
    std::exchange(answerHandler_, nullptr)(answer);
    return true;
}

void ActionConnection::lookSoon()
{
    QMetaObject::invokeMethod(this, &ActionConnection::look, Qt::QueuedConnection);
}

void ActionConnection::look()
{
    do {
        while (const auto event = fromServer(xcb_poll_for_event(server())))
            handler_(*event);
    } while (takeAnswer());
    flush();
    if (!isLost() || !input_->isEnabled())
        return;
    input_->setEnabled(false);
    Q_EMIT wasLost();
}
