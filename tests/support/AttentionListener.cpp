#include "AttentionListener.h"

#include "platform/appkit/linux/WindowManagerMessage.h"
#include "platform/foundation/system/X11.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <xcb/xcb.h>

namespace {

constexpr char stateName[] = "_NET_WM_STATE";
constexpr char attentionName[] = "_NET_WM_STATE_DEMANDS_ATTENTION";
constexpr quint32 addState = 1;

template <typename Reply>
using Owned = std::unique_ptr<Reply, decltype(&std::free)>;

} // namespace

AttentionListener::AttentionListener(quint32 window)
    : connection_(xcb_connect(nullptr, nullptr), &xcb_disconnect), window_(window)
{
    // Requests to the window manager are events sent to the root window.
    constexpr quint32 mask = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_STRUCTURE_NOTIFY;
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection_.get())).data->root;
    const auto request = xcb_change_window_attributes_checked(connection_.get(), root, XCB_CW_EVENT_MASK, &mask);
    const Owned<xcb_generic_error_t> error(xcb_request_check(connection_.get(), request), &std::free);
    EXPECT_FALSE(error);
}

bool AttentionListener::hasBeenAskedFor() const
{
    xcb_connection_t *const connection = connection_.get();
    const xcb_atom_t state = displayAtom(connection, stateName);
    const xcb_atom_t attention = displayAtom(connection, attentionName);
    while (const Owned<xcb_generic_event_t> event{xcb_poll_for_event(connection), &std::free}) {
        if ((event->response_type & eventTypeMask) != XCB_CLIENT_MESSAGE)
            continue;
        const auto *message = reinterpret_cast<const xcb_client_message_event_t *>(event.get());
        const quint32 *data = message->data.data32;
        hasBeenAskedFor_ = hasBeenAskedFor_
            || (message->window == window_ && message->type == state && data[0] == addState
                && (data[1] == attention || data[2] == attention));
    }
    return hasBeenAskedFor_;
}
