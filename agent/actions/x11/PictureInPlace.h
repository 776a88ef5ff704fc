#pragma once

#include "agent/actions/x11/LivePicture.h"

/// A window that shows what another one does, at that one's place. It is not put on screen here. Gone with the object.
class PictureInPlace : public QObject
{
    Q_OBJECT

public:
    /// drawn() follows where that is possible.
    PictureInPlace(const WindowDescription &window, double refreshRate);

    quint32 windowID() const { return shown_; }

Q_SIGNALS:
    /// The server has the window and its first picture.
    void drawn();
    /// The window has gone from the screen, or the display has.
    void ended();

private:
    bool fit();
    void make();
    void draw();
    void tellOnceDrawn();

    LivePicture source_;
    const QRect rect_;
    const QPoint corner_; ///< of that in the window's frame
    xcb_window_t shown_ = XCB_WINDOW_NONE;
    xcb_render_picture_t picture_ = 0;
    QPoint from_;
};
