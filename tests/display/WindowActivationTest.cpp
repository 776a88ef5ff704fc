#include "host/linux/WindowActivation.h"
#include "Wait.h"
#include "platform/appkit/linux/WindowManagerMessage.h"
#include "platform/foundation/system/X11.h"

#include <QScopeGuard>
#include <QWidget>
#include <cstdlib>
#include <gtest/gtest.h>
#include <memory>
#include <xcb/xcb.h>

namespace {

/// Hears the times in whose name the window manager is asked to make a window the active one.
class ActivationListener
{
public:
    explicit ActivationListener(quint32 window) : window_(window)
    {
        constexpr quint32 mask = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
        const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection_.get())).data->root;
        xcb_change_window_attributes(connection_.get(), root, XCB_CW_EVENT_MASK, &mask);
        request_ = displayAtom(connection_.get(), "_NET_ACTIVE_WINDOW");
    }

    bool hears(quint32 time)
    {
        while (const std::unique_ptr<xcb_generic_event_t, decltype(&std::free)> event{
            xcb_poll_for_event(connection_.get()), &std::free}) {
            const auto *message = reinterpret_cast<const xcb_client_message_event_t *>(event.get());
            const bool isMessage = (event->response_type & eventTypeMask) == XCB_CLIENT_MESSAGE;
            if (isMessage && message->window == window_ && message->type == request_)
                times_ += message->data.data32[1];
        }
        return times_.contains(time);
    }

private:
    std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> connection_{
        xcb_connect(nullptr, nullptr), &xcb_disconnect};
    quint32 window_;
    quint32 request_ = 0;
    QList<quint32> times_;
};

} // namespace

TEST(AStartFromTheDesktop, asksForTheFocusInTheNameOfTheClickThatCausedIt)
{
    const auto restore = qScopeGuard([] { qunsetenv("XDG_ACTIVATION_TOKEN"); });
    QWidget window;
    window.show();
    ActivationListener listener(quint32(window.winId()));
    activateWindowWithToken(&window, "panel/lumaroo/17-0-desk_TIME4711");
    EXPECT_TRUE(waitUntil([&] { return listener.hears(4711); }));
}
