#include "agent/actions/x11/PreviewWindow.h"

#include "agent/actions/PreviewLayout.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <xcb/shape.h>

namespace {

constexpr char windowClass[] = "LumarooAgent\0LumarooAgent";
constexpr char filter[] = "good";
constexpr quint32 renderMajor = 0, renderMinor = 10;
constexpr quint32 lineColor = 0x808080;
constexpr quint16 lineWidth = 2;

xcb_render_fixed_t fixedNumber(double number)
{
    return xcb_render_fixed_t(std::lround(number * 65536));
}

/// Those of all screens in turn.
xcb_render_pictformat_t formatOf(const xcb_render_query_pict_formats_reply_t *formats, xcb_visualid_t visual)
{
    for (auto screens = xcb_render_query_pict_formats_screens_iterator(formats); screens.rem > 0;
         xcb_render_pictscreen_next(&screens)) {
        for (auto depths = xcb_render_pictscreen_depths_iterator(screens.data); depths.rem > 0;
             xcb_render_pictdepth_next(&depths)) {
            for (auto visuals = xcb_render_pictdepth_visuals_iterator(depths.data); visuals.rem > 0;
                 xcb_render_pictvisual_next(&visuals)) {
                if (visuals.data->visual == visual)
                    return visuals.data->format;
            }
        }
    }
    return 0;
}

} // namespace

PreviewWindow::PreviewWindow(const WindowDescription &window, const Monitor &monitor)
    : source_(connection_, window), monitor_(monitor)
{
    nextFrame_.setSingleShot(true);
    nextFrame_.setTimerType(Qt::PreciseTimer);
    connect(&nextFrame_, &QTimer::timeout, this, &PreviewWindow::draw);
    if (!source_.isPossible() || !source_.isThere() || !findFormats())
        return;
    shown_ = xcb_generate_id(connection_.server());
    if (!fit()) {
        shown_ = XCB_WINDOW_NONE;
        return;
    }
    connect(&connection_, &ActionConnection::wasLost, this, &PreviewWindow::ended);
    connection_.listen([this](const xcb_generic_event_t &event) { handleEvent(event); });
}

bool PreviewWindow::findFormats()
{
    xcb_connection_t *const server = connection_.server();
    if (!connection_.extension(&xcb_render_id) || !connection_.extension(&xcb_shape_id))
        return false;
    const auto askedVersion = xcb_render_query_version(server, renderMajor, renderMinor);
    const auto askedFormats = xcb_render_query_pict_formats(server);
    const auto version = fromServer(xcb_render_query_version_reply(server, askedVersion, nullptr));
    const auto formats = fromServer(xcb_render_query_pict_formats_reply(server, askedFormats, nullptr));
    if (!version || !formats)
        return false;
    sourceFormat_ = formatOf(formats.get(), source_.visual());
    format_ = formatOf(formats.get(), connection_.screen()->root_visual);
    return sourceFormat_ != 0 && format_ != 0;
}

/// Takes the window's pixels in the size that they have now; false where it is not on screen any more.
bool PreviewWindow::fit()
{
    xcb_connection_t *const server = connection_.server();
    const auto pixmap = source_.pixmap();
    if (!pixmap)
        return false;
    if (from_ != 0)
        xcb_render_free_picture(server, from_);
    from_ = xcb_generate_id(server);
    const quint32 repeatsEdges = XCB_RENDER_REPEAT_PAD;
    xcb_render_create_picture(server, from_, pixmap->id, sourceFormat_, XCB_RENDER_CP_REPEAT, &repeatsEdges);
    xcb_free_pixmap(server, pixmap->id);
    const QRect rect = previewRect(pixmap->frame.size(), monitor_.rect);
    const double across = double(pixmap->frame.width()) / rect.width();
    const double down = double(pixmap->frame.height()) / rect.height();
    const xcb_render_transform_t transform{fixedNumber(across), 0, fixedNumber(pixmap->frame.x()), 0, fixedNumber(down),
        fixedNumber(pixmap->frame.y()), 0, 0, fixedNumber(1)};
    xcb_render_set_picture_transform(server, from_, transform);
    xcb_render_set_picture_filter(server, from_, sizeof filter - 1, filter, 0, nullptr);
    place(rect);
    draw();
    return true;
}

/// In one go with its first picture.
void PreviewWindow::place(const QRect &rect)
{
    const quint32 values[]{quint32(rect.x() - lineWidth), quint32(rect.y() - lineWidth), quint32(rect.width()),
        quint32(rect.height()), XCB_STACK_MODE_ABOVE};
    if (picture_ == 0)
        make(rect);
    xcb_configure_window(connection_.server(), shown_,
        XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y | XCB_CONFIG_WINDOW_WIDTH | XCB_CONFIG_WINDOW_HEIGHT
            | XCB_CONFIG_WINDOW_STACK_MODE,
        values);
    xcb_map_window(connection_.server(), shown_);
    size_ = rect.size();
}

void PreviewWindow::make(const QRect &rect)
{
    xcb_connection_t *const server = connection_.server();
    const quint32 values[]{lineColor, true, XCB_EVENT_MASK_EXPOSURE};
    xcb_create_window(server, XCB_COPY_FROM_PARENT, shown_, connection_.root(), 0, 0, quint16(rect.width()),
        quint16(rect.height()), lineWidth, XCB_WINDOW_CLASS_INPUT_OUTPUT, connection_.screen()->root_visual,
        XCB_CW_BORDER_PIXEL | XCB_CW_OVERRIDE_REDIRECT | XCB_CW_EVENT_MASK, values);
    xcb_shape_rectangles(
        server, XCB_SHAPE_SO_SET, XCB_SHAPE_SK_INPUT, XCB_CLIP_ORDERING_UNSORTED, shown_, 0, 0, 0, nullptr);
    const xcb_atom_t type = connection_.atom("_NET_WM_WINDOW_TYPE_NOTIFICATION");
    xcb_change_property(
        server, XCB_PROP_MODE_REPLACE, shown_, connection_.atom("_NET_WM_WINDOW_TYPE"), XCB_ATOM_ATOM, 32, 1, &type);
    xcb_change_property(
        server, XCB_PROP_MODE_REPLACE, shown_, XCB_ATOM_WM_CLASS, XCB_ATOM_STRING, 8, sizeof windowClass, windowClass);
    picture_ = xcb_generate_id(server);
    xcb_render_create_picture(server, picture_, shown_, format_, 0, nullptr);
}

void PreviewWindow::handleEvent(const xcb_generic_event_t &event)
{
    const quint8 type = event.response_type & eventTypeMask;
    const auto &change = reinterpret_cast<const xcb_configure_notify_event_t &>(event);
    if (source_.isDamage(event) || type == XCB_EXPOSE)
        drawByNextFrame();
    else if (type == XCB_CONFIGURE_NOTIFY && change.window == source_.holder())
        handleSize({change.width, change.height});
    else if (type == XCB_UNMAP_NOTIFY || type == XCB_DESTROY_NOTIFY)
        Q_EMIT ended();
}

/// Only where it is another one: a window that moves keeps its pixels.
void PreviewWindow::handleSize(QSize size)
{
    if (std::exchange(sourceSize_, size) == size)
        return;
    if (!fit())
        Q_EMIT ended();
    connection_.lookSoon();
}

void PreviewWindow::drawByNextFrame()
{
    if (nextFrame_.isActive())
        return;
    const auto frame = qint64(std::ceil(1000 / std::max(1.0, monitor_.refreshRate)));
    const qint64 rest = frame - sinceDrawn_.elapsed();
    if (rest > 0)
        nextFrame_.start(int(rest));
    else
        draw();
}

/// What the window draws from here on is told again.
void PreviewWindow::draw()
{
    source_.repair();
    xcb_render_composite(connection_.server(), XCB_RENDER_PICT_OP_SRC, from_, XCB_RENDER_PICTURE_NONE, picture_, 0, 0,
        0, 0, 0, 0, quint16(size_.width()), quint16(size_.height()));
    connection_.flush();
    sinceDrawn_.start();
}
