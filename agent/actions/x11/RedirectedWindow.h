#pragma once

#include "agent/actions/x11/ActionConnection.h"
#include "agent/windows/WindowDescription.h"

#include <QMargins>
#include <QSize>
#include <optional>

/// The pixels that a window has at one moment; they stay as they are when the window gets another size or goes.
struct WindowPixmap
{
    xcb_pixmap_t id = XCB_PIXMAP_NONE;
    QSize size;
    QRect frame; ///< what of it is the window as it is seen, without shadows and margins for the mouse
};

/// A window that the server keeps whole for us, also where it is covered or off screen. What had not been kept before
/// is drawn anew by its program, which takes a moment. As long as its connection at most.
class RedirectedWindow
{
public:
    /// The connection outlives it.
    RedirectedWindow(ActionConnection &connection, const WindowDescription &window);

    /// Whether the server can do that.
    bool isPossible() const { return damageEvent_ != 0; }
    /// Whether the window was on screen.
    bool isThere() const { return holder_ != XCB_WINDOW_NONE; }
    /// What the window lies in, and whose events are told: of its size, and of its going.
    xcb_window_t holder() const { return holder_; }
    xcb_visualid_t visual() const { return visual_; }

    /// Something of it was drawn anew; told once until repair().
    bool isDamage(const xcb_generic_event_t &event) const;
    void repair();
    /// As it is now; no value where it is not on screen any more. To be freed.
    std::optional<WindowPixmap> pixmap() const;

private:
    bool findExtensions();
    void redirect(const WindowDescription &window);

    ActionConnection &connection_;
    xcb_window_t holder_ = XCB_WINDOW_NONE;
    xcb_visualid_t visual_ = 0;
    quint32 damage_ = 0;
    quint8 damageEvent_ = 0;
    QMargins margins_; ///< around the frame
};
