#include "agent/actions/x11/LivePicture.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

constexpr char filter[] = "good";
constexpr quint32 renderMajor = 0, renderMinor = 10;

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

LivePicture::LivePicture(const WindowDescription &window, double refreshRate)
    : source_(connection_, window), refreshRate_(refreshRate)
{
    nextFrame_.setSingleShot(true);
    nextFrame_.setTimerType(Qt::PreciseTimer);
    connect(&nextFrame_, &QTimer::timeout, this, &LivePicture::changed);
    connect(&connection_, &ActionConnection::wasLost, this, &LivePicture::ended);
    if (source_.isPossible() && source_.isThere())
        format_ = findFormats();
}

/// Returns the screen's; 0 where one of the two is missing.
xcb_render_pictformat_t LivePicture::findFormats()
{
    xcb_connection_t *const server = connection_.server();
    if (!connection_.extension(&xcb_render_id))
        return 0;
    const auto askedVersion = xcb_render_query_version(server, renderMajor, renderMinor);
    const auto askedFormats = xcb_render_query_pict_formats(server);
    const auto version = fromServer(xcb_render_query_version_reply(server, askedVersion, nullptr));
    const auto formats = fromServer(xcb_render_query_pict_formats_reply(server, askedFormats, nullptr));
    if (!version || !formats)
        return 0;
    sourceFormat_ = formatOf(formats.get(), source_.visual());
    return sourceFormat_ == 0 ? 0 : formatOf(formats.get(), connection_.screen()->root_visual);
}

std::optional<QRect> LivePicture::take()
{
    xcb_connection_t *const server = connection_.server();
    const auto pixmap = source_.pixmap();
    if (!pixmap)
        return std::nullopt;
    if (from_ != 0)
        xcb_render_free_picture(server, from_);
    from_ = xcb_generate_id(server);
    const quint32 repeatsEdges = XCB_RENDER_REPEAT_PAD;
    xcb_render_create_picture(server, from_, pixmap->id, sourceFormat_, XCB_RENDER_CP_REPEAT, &repeatsEdges);
    xcb_free_pixmap(server, pixmap->id);
    return pixmap->frame;
}

void LivePicture::scale(const QRect &part, QSize size)
{
    const double across = double(part.width()) / size.width();
    const double down = double(part.height()) / size.height();
    const xcb_render_transform_t transform{fixedNumber(across), 0, fixedNumber(part.x()), 0, fixedNumber(down),
        fixedNumber(part.y()), 0, 0, fixedNumber(1)};
    xcb_render_set_picture_transform(connection_.server(), from_, transform);
    xcb_render_set_picture_filter(connection_.server(), from_, sizeof filter - 1, filter, 0, nullptr);
}

void LivePicture::draw(xcb_render_picture_t target, QPoint from, QSize size)
{
    source_.repair();
    xcb_render_composite(connection_.server(), XCB_RENDER_PICT_OP_SRC, from_, XCB_RENDER_PICTURE_NONE, target,
        qint16(from.x()), qint16(from.y()), 0, 0, 0, 0, quint16(size.width()), quint16(size.height()));
    sinceDrawn_.start();
}

void LivePicture::begin()
{
    connection_.listen([this](const xcb_generic_event_t &event) { handleEvent(event); });
}

void LivePicture::handleEvent(const xcb_generic_event_t &event)
{
    const quint8 type = event.response_type & eventTypeMask;
    const auto &change = reinterpret_cast<const xcb_configure_notify_event_t &>(event);
    if (source_.isDamage(event) || type == XCB_EXPOSE)
        tellByNextFrame();
    else if (type == XCB_CONFIGURE_NOTIFY && change.window == source_.holder())
        handleSize({change.width, change.height});
    else if (type == XCB_UNMAP_NOTIFY || type == XCB_DESTROY_NOTIFY)
        Q_EMIT ended();
}

/// Only where it is another one: a window that moves keeps its pixels.
void LivePicture::handleSize(QSize size)
{
    if (std::exchange(sourceSize_, size) == size)
        return;
    Q_EMIT resized();
    connection_.lookSoon();
}

void LivePicture::tellByNextFrame()
{
    if (nextFrame_.isActive())
        return;
    const auto frame = qint64(std::ceil(1000 / std::max(1.0, refreshRate_)));
    const qint64 rest = frame - sinceDrawn_.elapsed();
    if (rest > 0)
        nextFrame_.start(int(rest));
    else
        Q_EMIT changed();
}
