#pragma once

#include "agent/actions/Preview.h"
#include "agent/actions/x11/RedirectedWindow.h"

#include <QElapsedTimer>
#include <QTimer>
#include <xcb/render.h>

/// The preview on an X server.
class PreviewWindow : public Preview
{
    Q_OBJECT

public:
    PreviewWindow(const WindowDescription &window, const Monitor &monitor);

    /// Whether there is one: the window was on screen, and the server can do that.
    bool isShown() const { return shown_ != XCB_WINDOW_NONE; }

private:
    bool findFormats();
    bool fit();
    void place(const QRect &rect);
    void make(const QRect &rect);
    void handleEvent(const xcb_generic_event_t &event);
    void handleSize(QSize size);
    void drawByNextFrame();
    void draw();

    ActionConnection connection_;
    RedirectedWindow source_;
    const Monitor monitor_;
    xcb_render_pictformat_t sourceFormat_ = 0, format_ = 0;
    xcb_window_t shown_ = XCB_WINDOW_NONE;
    xcb_render_picture_t picture_ = 0, from_ = 0;
    QSize size_, sourceSize_;
    QElapsedTimer sinceDrawn_;
    QTimer nextFrame_; ///< runs only from a change to the frame that shows it
};
