#pragma once

#include "agent/actions/Preview.h"
#include "agent/actions/x11/LivePicture.h"

/// The preview on an X server.
class PreviewWindow : public Preview
{
    Q_OBJECT

public:
    PreviewWindow(const WindowDescription &window, const Monitor &monitor);

    /// Whether there is one: the window was on screen, and the server can do that.
    bool isShown() const { return shown_ != XCB_WINDOW_NONE; }

private:
    bool fit();
    void place(const QRect &rect);
    void make(const QRect &rect);
    void draw();

    LivePicture source_;
    const Monitor monitor_;
    xcb_window_t shown_ = XCB_WINDOW_NONE;
    xcb_render_picture_t picture_ = 0;
    QSize size_;
};
