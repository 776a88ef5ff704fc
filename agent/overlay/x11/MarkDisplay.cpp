#include "agent/overlay/x11/MarkDisplay.h"

#include <array>
#include <bit>
#include <vector>
#include <xcb/shape.h>
#include <xcb/xfixes.h>

namespace {

constexpr quint8 wantedDepth = 24;
// The first that has a region for input.
constexpr std::pair<quint16, quint16> shapeVersion(1, 1);
// The first that is enough for the owners of selections.
constexpr quint32 fixesMajor = 1, fixesMinor = 0;

/// The number in DISPLAY behind the point.
int screenOfDisplay()
{
    char *host = nullptr;
    int display = 0, screen = 0;
    if (xcb_parse_display(nullptr, &host, &display, &screen) != 0)
        std::free(host);
    return screen;
}

/// A byte as a channel's bits in a pixel.
quint32 channel(quint32 byte, quint32 mask)
{
    const int width = std::popcount(mask);
    return width == 0 ? 0 : ((byte * ((1u << width) - 1) + 127) / 255) << std::countr_zero(mask);
}

} // namespace

std::unique_ptr<MarkDisplay> MarkDisplay::open(QString *failure)
{
    std::unique_ptr<MarkDisplay> display(new MarkDisplay(connectToXServer()));
    if (display->isLost())
        return nullptr;
    if (display->start())
        return display;
    if (!display->isLost())
        *failure = QStringLiteral("the X server lacks true colours or version 1.1 of the shape extension");
    return nullptr;
}

bool MarkDisplay::start()
{
    xcb_prefetch_extension_data(server(), &xcb_shape_id);
    xcb_prefetch_extension_data(server(), &xcb_xfixes_id);
    findScreen();
    if (!findVisual() || !findFormat())
        return false;
    internAtoms();
    if (!letsClicksThrough())
        return false;
    followCompositor();
    return !isLost();
}

void MarkDisplay::findScreen()
{
    screenNumber_ = screenOfDisplay();
    auto screens = xcb_setup_roots_iterator(xcb_get_setup(server()));
    for (int place = 0; place < screenNumber_ && screens.rem > 1; ++place)
        xcb_screen_next(&screens);
    screen_ = screens.data;
}

bool MarkDisplay::findVisual()
{
    if (!takeVisual(wantedDepth) && !takeVisual(screen_->root_depth))
        return false;
    if (visual_ == screen_->root_visual) {
        colormap_ = screen_->default_colormap;
        return true;
    }
    colormap_ = xcb_generate_id(server());
    xcb_create_colormap(server(), XCB_COLORMAP_ALLOC_NONE, colormap_, screen_->root, visual_);
    return true;
}

/// The root's own, if it is of that depth, since nothing has to be converted then.
bool MarkDisplay::takeVisual(quint8 depth)
{
    for (auto depths = xcb_screen_allowed_depths_iterator(screen_); depths.rem > 0; xcb_depth_next(&depths)) {
        if (depths.data->depth != depth)
            continue;
        for (auto visuals = xcb_depth_visuals_iterator(depths.data); visuals.rem > 0; xcb_visualtype_next(&visuals)) {
            const xcb_visualtype_t &visual = *visuals.data;
            if (visual._class != XCB_VISUAL_CLASS_TRUE_COLOR
                || (visual_ != 0 && visual.visual_id != screen_->root_visual))
                continue;
            visual_ = visual.visual_id;
            depth_ = depth;
            masks_[0] = visual.red_mask;
            masks_[1] = visual.green_mask;
            masks_[2] = visual.blue_mask;
        }
    }
    return visual_ != 0;
}

/// Of whole bytes, as they are with true colours.
bool MarkDisplay::findFormat()
{
    for (auto formats = xcb_setup_pixmap_formats_iterator(xcb_get_setup(server())); formats.rem > 0;
         xcb_format_next(&formats)) {
        if (formats.data->depth != depth_)
            continue;
        pixelBytes_ = formats.data->bits_per_pixel / 8;
        rowMultiple_ = formats.data->scanline_pad / 8;
    }
    return pixelBytes_ > 0 && rowMultiple_ > 0;
}

void MarkDisplay::internAtoms()
{
    const QByteArray compositor = "_NET_WM_CM_S" + QByteArray::number(screenNumber_);
    const std::array<std::pair<QByteArray, xcb_atom_t *>, 6> names{{{"_NET_WM_WINDOW_TYPE", &atoms_.windowType},
        {"_NET_WM_WINDOW_TYPE_NOTIFICATION", &atoms_.notification}, {"_NET_WM_WINDOW_OPACITY", &atoms_.opacity},
        {"_COMPTON_SHADOW", &atoms_.shadow}, {"_NET_WM_ICON", &atoms_.icon}, {compositor, &atoms_.compositor}}};
    std::vector<xcb_intern_atom_cookie_t> questions;
    for (const auto &[name, atom] : names)
        questions.push_back(xcb_intern_atom(server(), false, quint16(name.size()), name.constData()));
    for (size_t place = 0; place < names.size(); ++place) {
        if (const auto reply = fromServer(xcb_intern_atom_reply(server(), questions[place], nullptr)))
            *names[place].second = reply->atom;
    }
}

/// Without the extension a mark would be a block that takes every click.
bool MarkDisplay::letsClicksThrough()
{
    const xcb_query_extension_reply_t *extension = xcb_get_extension_data(server(), &xcb_shape_id);
    if (!extension || !extension->present)
        return false;
    const auto version =
        fromServer(xcb_shape_query_version_reply(server(), xcb_shape_query_version(server()), nullptr));
    return version && std::pair(version->major_version, version->minor_version) >= shapeVersion;
}

/// A compositor owns a selection. Without the extension there is none.
void MarkDisplay::followCompositor()
{
    const xcb_query_extension_reply_t *extension = xcb_get_extension_data(server(), &xcb_xfixes_id);
    if (!extension || !extension->present)
        return;
    compositorEvent_ = extension->first_event + XCB_XFIXES_SELECTION_NOTIFY;
    const auto version = xcb_xfixes_query_version(server(), fixesMajor, fixesMinor);
    xcb_xfixes_select_selection_input(server(), root(), atoms_.compositor,
        XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER | XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_WINDOW_DESTROY
            | XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_CLIENT_CLOSE);
    const auto owner = xcb_get_selection_owner(server(), atoms_.compositor);
    fromServer(xcb_xfixes_query_version_reply(server(), version, nullptr));
    const auto reply = fromServer(xcb_get_selection_owner_reply(server(), owner, nullptr));
    isComposited_ = reply && reply->owner != XCB_WINDOW_NONE;
}

bool MarkDisplay::isComposited()
{
    while (const auto event = fromServer(xcb_poll_for_event(server()))) {
        if (compositorEvent_ != 0 && (event->response_type & eventTypeMask) == compositorEvent_)
            isComposited_ =
                reinterpret_cast<const xcb_xfixes_selection_notify_event_t *>(event.get())->owner != XCB_WINDOW_NONE;
    }
    return isComposited_;
}

bool MarkDisplay::hasGone()
{
    isComposited(); // reads what has come in, and so its end
    return isLost();
}

quint32 MarkDisplay::pixel(quint32 color) const
{
    return channel(color >> 16 & 0xff, masks_[0]) | channel(color >> 8 & 0xff, masks_[1])
        | channel(color & 0xff, masks_[2]);
}

QByteArray MarkDisplay::imageRow(const quint32 *colors, int count) const
{
    const int length = (count * pixelBytes_ + rowMultiple_ - 1) / rowMultiple_ * rowMultiple_;
    QByteArray row(length, 0);
    const bool isLittleEndian = xcb_get_setup(server())->image_byte_order == XCB_IMAGE_ORDER_LSB_FIRST;
    for (int place = 0; colors && place < count; ++place) {
        const quint32 value = pixel(colors[place]);
        for (int byte = 0; byte < pixelBytes_; ++byte)
            row[place * pixelBytes_ + byte] = char(value >> 8 * (isLittleEndian ? byte : pixelBytes_ - 1 - byte));
    }
    return row;
}
