#pragma once

#include "agent/overlay/x11/MarkDisplay.h"

#include <QList>
#include <QRect>

/// How a window that is on screen gets another size.
enum class Resizing : quint8 {
    OffScreen, ///< so that nothing of it is ever seen where it should not be
    OnScreen ///< for a compositor, which shows what has come about by its next frame
};

/// A window that lies above all others, takes no focus and lets every click through. Gone with the object.
class MarkWindow
{
public:
    /// Made with no region, and not shown.
    explicit MarkWindow(const MarkDisplay &display);
    ~MarkWindow();
    MarkWindow(const MarkWindow &) = delete;
    MarkWindow &operator=(const MarkWindow &) = delete;

    xcb_window_t id() const { return id_; }
    bool isShown() const { return isShown_; }
    /// Where it stands, or stood last.
    const QRect &rect() const { return rect_; }

    /// 0xRRGGBB.
    void setColor(quint32 color);
    /// Of the display's depth; the server keeps it.
    void setBackground(xcb_pixmap_t pixmap);
    /// Counts with a compositor.
    void setOpacity(double opacity);
    /// Shows it above all others, cut to a region within its rectangle. Where only its place differs, it is moved.
    void show(const QRect &rect, const QList<QRect> &region, Resizing resizing = Resizing::OffScreen);
    void hide();

private:
    void setBackground(xcb_cw_t kind, quint32 value);
    void setProperty(xcb_atom_t name, xcb_atom_t type, quint32 value);
    void place(const QRect &rect);

    const MarkDisplay &display_;
    const xcb_window_t id_;
    QRect rect_;
    QList<QRect> region_; ///< from the window's corner
    bool isShown_ = false;
};

/// Cuts a window to a region that is counted from its corner.
void cutWindow(const MarkDisplay &display, xcb_window_t window, const QList<QRect> &region);
/// A region as it is counted from a corner.
QList<QRect> regionFrom(const QPoint &corner, const QList<QRect> &region);
