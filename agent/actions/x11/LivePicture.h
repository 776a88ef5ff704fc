#pragma once

#include "agent/actions/x11/RedirectedWindow.h"

#include <QElapsedTimer>
#include <QTimer>
#include <xcb/render.h>

/// The pixels of a window that is on screen, for whoever draws them elsewhere, and when they are to be drawn anew. The
/// server draws; while the window draws nothing, nobody is woken.
class LivePicture : public QObject
{
    Q_OBJECT

public:
    /// Drawn anew at most that often in a second.
    LivePicture(const WindowDescription &window, double refreshRate);

    /// Whether there is one: the window was on screen, and the server can do that. Nothing else works where not.
    bool isThere() const { return format_ != 0; }
    ActionConnection &connection() { return connection_; }
    /// Of the screen's own pixels.
    xcb_render_pictformat_t screenFormat() const { return format_; }

    /// Takes the pixels in the size that they have now. Returns what of them is the window as it is seen; no value
    /// where it is not on screen any more.
    std::optional<QRect> take();
    /// Has a part of what was taken drawn in another size.
    void scale(const QRect &part, QSize size);
    /// To be flushed. What the window draws from here on is told again.
    void draw(xcb_render_picture_t target, QPoint from, QSize size);
    /// Tells from now on.
    void begin();

Q_SIGNALS:
    /// To be drawn now.
    void changed();
    /// To be taken anew.
    void resized();
    /// The window has gone from the screen, or the display has.
    void ended();

private:
    xcb_render_pictformat_t findFormats();
    void handleEvent(const xcb_generic_event_t &event);
    void handleSize(QSize size);
    void tellByNextFrame();

    ActionConnection connection_;
    RedirectedWindow source_;
    const double refreshRate_;
    xcb_render_pictformat_t sourceFormat_ = 0, format_ = 0;
    xcb_render_picture_t from_ = 0;
    QSize sourceSize_;
    QElapsedTimer sinceDrawn_;
    QTimer nextFrame_; ///< runs only from a change to the frame that shows it
};
