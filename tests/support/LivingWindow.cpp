#include "LivingWindow.h"

#include "DesktopWindows.h"
#include "Wait.h"
#include "platform/appkit/linux/WindowManagerMessage.h"

#include <utility>

namespace {

const xcb_screen_t *screenOf(const XConnection &connection)
{
    return xcb_setup_roots_iterator(xcb_get_setup(connection.get())).data;
}

xcb_visualid_t visualOfDepth(const XConnection &connection, quint8 depth)
{
    for (auto depths = xcb_screen_allowed_depths_iterator(screenOf(connection)); depths.rem > 0;
         xcb_depth_next(&depths)) {
        if (depths.data->depth == depth && depths.data->visuals_len > 0)
            return xcb_depth_visuals(depths.data)->visual_id;
    }
    qFatal("no visual of depth %d", depth);
}

} // namespace

LivingWindow::LivingWindow(const QString &title, const QRect &place, const LivingWindowKind &kind)
    : connection_(connectToXServer()), id_(xcb_generate_id(connection_.get())), kind_(kind), size_(place.size()),
      context_(xcb_generate_id(connection_.get())),
      input_(xcb_get_file_descriptor(connection_.get()), QSocketNotifier::Read)
{
    xcb_connection_t *const server = connection_.get();
    const xcb_visualid_t visual = visualOfDepth(connection_, kind.depth);
    const xcb_colormap_t colors = xcb_generate_id(server);
    xcb_create_colormap(server, XCB_COLORMAP_ALLOC_NONE, colors, screenOf(connection_)->root, visual);
    const quint32 values[]{0, XCB_EVENT_MASK_EXPOSURE | XCB_EVENT_MASK_STRUCTURE_NOTIFY, colors};
    xcb_create_window(server, kind.depth, id_, screenOf(connection_)->root, qint16(place.x()), qint16(place.y()),
        quint16(place.width()), quint16(place.height()), 0, XCB_WINDOW_CLASS_INPUT_OUTPUT, visual,
        XCB_CW_BORDER_PIXEL | XCB_CW_EVENT_MASK | XCB_CW_COLORMAP, values);
    xcb_create_gc(server, context_, id_, 0, nullptr);
    setProperties(title);
    QObject::connect(&input_, &QSocketNotifier::activated, &input_, [this] { handleEvents(); });
    whenAskedToClose_ = [this] { close(); };
}

LivingWindow::~LivingWindow()
{
    input_.setEnabled(false);
    close();
    waitUntil([this] { return !listedWindows().contains(id_); });
}

void LivingWindow::setNumbers(const char *property, const char *type, const QList<quint32> &values)
{
    xcb_connection_t *const server = connection_.get();
    xcb_change_property(server, XCB_PROP_MODE_REPLACE, id_, displayAtom(server, property), displayAtom(server, type),
        32, quint32(values.size()), values.constData());
}

void LivingWindow::setProperties(const QString &title)
{
    constexpr quint32 userChosePlaceAndSize = 3, decorationsAreTold = 2, takesInput = 1;
    QList<quint32> hints(18, 0);
    hints[0] = userChosePlaceAndSize;
    setNumbers("WM_NORMAL_HINTS", "WM_SIZE_HINTS", hints);
    QList<quint32> focusHints(9, 0);
    focusHints[0] = focusHints[1] = takesInput;
    setNumbers("WM_HINTS", "WM_HINTS", focusHints);
    if (!kind_.isDecorated)
        setNumbers("_MOTIF_WM_HINTS", "_MOTIF_WM_HINTS", {decorationsAreTold, 0, 0, 0, 0});
    if (kind_.shadow > 0)
        setNumbers("_GTK_FRAME_EXTENTS", "CARDINAL", QList<quint32>(4, quint32(kind_.shadow)));
    if (kind_.canBeAskedToClose)
        setNumbers("WM_PROTOCOLS", "ATOM", {displayAtom(connection_.get(), "WM_DELETE_WINDOW")});
    if (kind_.processID != 0)
        setNumbers("_NET_WM_PID", "CARDINAL", {kind_.processID});
    if (kind_.parent != 0)
        setNumbers("WM_TRANSIENT_FOR", "WINDOW", {kind_.parent});
    const QByteArray name = title.toUtf8(), both = name.toLower() + '\0' + name + '\0';
    xcb_connection_t *const server = connection_.get();
    xcb_change_property(server, XCB_PROP_MODE_REPLACE, id_, displayAtom(server, "_NET_WM_NAME"),
        displayAtom(server, "UTF8_STRING"), 8, quint32(name.size()), name.constData());
    xcb_change_property(server, XCB_PROP_MODE_REPLACE, id_, XCB_ATOM_WM_CLASS, XCB_ATOM_STRING, 8, quint32(both.size()),
        both.constData());
}

bool LivingWindow::show()
{
    xcb_map_window(connection_.get(), id_);
    xcb_flush(connection_.get());
    return waitUntil([this] { return hasDrawn_ && listedWindows().contains(id_); });
}

QRgb LivingWindow::colorAt(QPoint place, quint8 depth)
{
    const int alpha = depth == 32 ? 64 + place.y() % 192 : 255;
    const auto part = [alpha](int value) { return value % 256 * alpha / 255; };
    return qRgba(part(place.x()), part(place.y()), part(place.x() * 7 + place.y() * 3), alpha);
}

void LivingWindow::draw(std::optional<QRgb> plain)
{
    plain_ = plain;
    QImage picture(size_, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < size_.height(); ++y) {
        auto *const line = reinterpret_cast<QRgb *>(picture.scanLine(y));
        for (int x = 0; x < size_.width(); ++x)
            line[x] = plain.value_or(colorAt({x, y}, kind_.depth));
    }
    xcb_put_image(connection_.get(), XCB_IMAGE_FORMAT_Z_PIXMAP, id_, context_, quint16(size_.width()),
        quint16(size_.height()), 0, 0, 0, kind_.depth, quint32(picture.sizeInBytes()), picture.constBits());
    xcb_flush(connection_.get());
    hasDrawn_ = true;
}

void LivingWindow::resize(QSize size)
{
    const quint32 values[]{quint32(size.width()), quint32(size.height())};
    xcb_configure_window(connection_.get(), id_, XCB_CONFIG_WINDOW_WIDTH | XCB_CONFIG_WINDOW_HEIGHT, values);
    xcb_flush(connection_.get());
}

void LivingWindow::close()
{
    xcb_destroy_window(connection_.get(), id_);
    xcb_flush(connection_.get());
}

void LivingWindow::handleEvents()
{
    bool isToDraw = false, isToClose = false;
    while (const auto event = fromServer(xcb_poll_for_event(connection_.get()))) {
        const quint8 type = event->response_type & eventTypeMask;
        if (type == XCB_CONFIGURE_NOTIFY) {
            const auto *change = reinterpret_cast<const xcb_configure_notify_event_t *>(event.get());
            isToDraw |= std::exchange(size_, QSize(change->width, change->height)) != size_;
        }
        isToDraw |= type == XCB_EXPOSE;
        isToClose |= type == XCB_CLIENT_MESSAGE;
    }
    if (isToDraw)
        draw(plain_);
    if (isToClose)
        whenAskedToClose_();
}
