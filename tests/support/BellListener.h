#pragma once

#include <memory>
#include <xcb/xcb.h>

/// Hears each ring of the X server's bell since it was made, as a desktop does that makes a sound of it.
class BellListener
{
public:
    BellListener();

    /// How often it has rung, everything counted that this process asked for before this call.
    int rings();
    /// The window for which it rang last.
    xcb_window_t lastWindow() const { return lastWindow_; }

private:
    using Connection = std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)>;

    Connection connection_;
    int rings_ = 0;
    xcb_window_t lastWindow_ = 0;
};
