#include "agent/overlay/x11/MarkWindow.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>
#include <xcb/shape.h>

namespace {

constexpr char windowClass[] = "LumarooAgent\0LumarooAgent";

qint16 coordinate(int value)
{
    return qint16(std::clamp<int>(value, std::numeric_limits<qint16>::min(), std::numeric_limits<qint16>::max()));
}

quint16 length(int value)
{
    return quint16(std::clamp<int>(value, 1, std::numeric_limits<quint16>::max()));
}

} // namespace

void cutWindow(const MarkDisplay &display, xcb_window_t window, const QList<QRect> &region)
{
    std::vector<xcb_rectangle_t> rectangles;
    for (const QRect &rect : region)
        rectangles.push_back({coordinate(rect.x()), coordinate(rect.y()), length(rect.width()), length(rect.height())});
    xcb_shape_rectangles(display.server(), XCB_SHAPE_SO_SET, XCB_SHAPE_SK_BOUNDING, XCB_CLIP_ORDERING_UNSORTED, window,
        0, 0, quint32(rectangles.size()), rectangles.data());
}

QList<QRect> regionFrom(const QPoint &corner, const QList<QRect> &region)
{
    QList<QRect> moved;
    for (const QRect &rect : region)
        moved += rect.translated(-corner);
    return moved;
}

MarkWindow::MarkWindow(const MarkDisplay &display) : display_(display), id_(xcb_generate_id(display.server()))
{
    xcb_connection_t *const server = display.server();
    const quint32 values[]{0, 0, true, display.colormap()};
    xcb_create_window(server, display.depth(), id_, display.root(), 0, 0, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT,
        display.visual(), XCB_CW_BACK_PIXEL | XCB_CW_BORDER_PIXEL | XCB_CW_OVERRIDE_REDIRECT | XCB_CW_COLORMAP, values);
    xcb_shape_rectangles(
        server, XCB_SHAPE_SO_SET, XCB_SHAPE_SK_INPUT, XCB_CLIP_ORDERING_UNSORTED, id_, 0, 0, 0, nullptr);
    setProperty(display.atoms().windowType, XCB_ATOM_ATOM, display.atoms().notification);
    setProperty(display.atoms().shadow, XCB_ATOM_CARDINAL, 0);
    xcb_change_property(
        server, XCB_PROP_MODE_REPLACE, id_, XCB_ATOM_WM_CLASS, XCB_ATOM_STRING, 8, sizeof windowClass, windowClass);
}

MarkWindow::~MarkWindow()
{
    xcb_destroy_window(display_.server(), id_);
}

void MarkWindow::setProperty(xcb_atom_t name, xcb_atom_t type, quint32 value)
{
    xcb_change_property(display_.server(), XCB_PROP_MODE_REPLACE, id_, name, type, 32, 1, &value);
}

void MarkWindow::setBackground(xcb_cw_t kind, quint32 value)
{
    xcb_change_window_attributes(display_.server(), id_, kind, &value);
    // What is on screen is drawn anew.
    xcb_clear_area(display_.server(), false, id_, 0, 0, 0, 0);
}

void MarkWindow::setColor(quint32 color)
{
    setBackground(XCB_CW_BACK_PIXEL, display_.pixel(color));
}

void MarkWindow::setBackground(xcb_pixmap_t pixmap)
{
    setBackground(XCB_CW_BACK_PIXMAP, pixmap);
}

void MarkWindow::setOpacity(double opacity)
{
    constexpr double opaque = std::numeric_limits<quint32>::max();
    setProperty(display_.atoms().opacity, XCB_ATOM_CARDINAL, quint32(std::llround(opacity * opaque)));
}

void MarkWindow::show(const QRect &rect, const QList<QRect> &region, Resizing resizing)
{
    const QList<QRect> cut = regionFrom(rect.topLeft(), region);
    const bool isReshaped = rect.size() != rect_.size() || cut != region_;
    if (isReshaped && isShown_ && resizing == Resizing::OffScreen)
        hide();
    place(rect);
    if (isReshaped)
        cutWindow(display_, id_, cut);
    if (!isShown_)
        xcb_map_window(display_.server(), id_);
    rect_ = rect;
    region_ = cut;
    isShown_ = true;
}

void MarkWindow::place(const QRect &rect)
{
    const quint32 values[]{quint32(coordinate(rect.x())), quint32(coordinate(rect.y())), length(rect.width()),
        length(rect.height()), XCB_STACK_MODE_ABOVE};
    xcb_configure_window(display_.server(), id_,
        XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y | XCB_CONFIG_WINDOW_WIDTH | XCB_CONFIG_WINDOW_HEIGHT
            | XCB_CONFIG_WINDOW_STACK_MODE,
        values);
}

void MarkWindow::hide()
{
    if (isShown_)
        xcb_unmap_window(display_.server(), id_);
    isShown_ = false;
}
