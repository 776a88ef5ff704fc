#include "agent/actions/x11/PixelCopy.h"

#include "platform/foundation/system/NSLog.h"

#include <chrono>
#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>
#include <xcb/shm.h>

using namespace std::chrono_literals;

namespace {

// A program that draws has paused for so long, or has had its time.
constexpr auto quietTime = 50ms, longestTime = 300ms;
// The first that takes memory of ours.
constexpr std::pair<quint16, quint16> shmVersion(1, 2);
// Copied in one go where memory is not shared: short enough to be noticed nowhere.
constexpr int mostBytesAtOnce = 512 * 1024;

const xcb_visualtype_t *visualOf(const xcb_screen_t *screen, xcb_visualid_t id, quint8 *depth)
{
    for (auto depths = xcb_screen_allowed_depths_iterator(screen); depths.rem > 0; xcb_depth_next(&depths)) {
        for (auto visuals = xcb_depth_visuals_iterator(depths.data); visuals.rem > 0; xcb_visualtype_next(&visuals)) {
            *depth = depths.data->depth;
            if (visuals.data->visual_id == id)
                return visuals.data;
        }
    }
    return nullptr;
}

const xcb_format_t *formatOf(const xcb_setup_t *setup, quint8 depth)
{
    for (auto formats = xcb_setup_pixmap_formats_iterator(setup); formats.rem > 0; xcb_format_next(&formats)) {
        if (formats.data->depth == depth)
            return formats.data;
    }
    return nullptr;
}

quint32 rowBytesOf(int width, const xcb_format_t &format)
{
    const quint32 pad = format.scanline_pad;
    return (quint32(width) * format.bits_per_pixel + pad - 1) / pad * pad / 8;
}

} // namespace

PixelCopy::PixelCopy(const WindowDescription &window) : window_(connection_, window)
{
    xcb_prefetch_extension_data(connection_.server(), &xcb_shm_id);
    for (QTimer *timer : {&quiet_, &limit_}) {
        timer->setSingleShot(true);
        timer->setTimerType(Qt::PreciseTimer);
        connect(timer, &QTimer::timeout, this, &PixelCopy::copy);
    }
    QMetaObject::invokeMethod(this, &PixelCopy::begin, Qt::QueuedConnection);
}

void PixelCopy::begin()
{
    if (!window_.isPossible())
        return fail(PictureFailure::NotPossible);
    if (!window_.isThere())
        return fail(PictureFailure::Gone);
    connect(&connection_, &ActionConnection::wasLost, this, [this] { fail(PictureFailure::Gone); });
    connection_.listen([this](const xcb_generic_event_t &event) { handleEvent(event); });
    quiet_.start(quietTime);
    limit_.start(longestTime);
}

void PixelCopy::handleEvent(const xcb_generic_event_t &event)
{
    if (!window_.isDamage(event) || !quiet_.isActive())
        return;
    window_.repair();
    quiet_.start(quietTime);
}

void PixelCopy::copy()
{
    quiet_.stop();
    limit_.stop();
    Q_EMIT drawn();
    const auto pixmap = window_.pixmap();
    connection_.lookSoon();
    if (!pixmap)
        return fail(PictureFailure::Gone);
    pixmap_ = *pixmap;
    if (!describePixels(*pixmap) || !makeMemory())
        return fail(PictureFailure::NotPossible);
    if (shareMemory())
        copyAtOnce();
    else
        copyNextRows();
}

/// False where colours are numbers in a table, as nobody has them any more.
bool PixelCopy::describePixels(const WindowPixmap &pixmap)
{
    quint8 depth = 0;
    const xcb_visualtype_t *visual = visualOf(connection_.screen(), window_.visual(), &depth);
    const xcb_setup_t *setup = xcb_get_setup(connection_.server());
    const xcb_format_t *format = formatOf(setup, depth);
    if (!visual || !format || format->bits_per_pixel < 8
        || (visual->_class != XCB_VISUAL_CLASS_TRUE_COLOR && visual->_class != XCB_VISUAL_CLASS_DIRECT_COLOR))
        return false;
    pixels_.size = pixmap.frame.size();
    pixels_.rowBytes = rowBytesOf(pixels_.size.width(), *format);
    pixels_.pixelBits = format->bits_per_pixel;
    pixels_.red = visual->red_mask;
    pixels_.green = visual->green_mask;
    pixels_.blue = visual->blue_mask;
    const quint32 colors = pixels_.red | pixels_.green | pixels_.blue;
    pixels_.alpha = depth == 32 ? ~colors : 0;
    pixels_.isLittleEndian = setup->image_byte_order == XCB_IMAGE_ORDER_LSB_FIRST;
    return true;
}

bool PixelCopy::makeMemory()
{
    pixels_.memory = FileDescriptor(::memfd_create("window", MFD_CLOEXEC));
    const auto length = off_t(pixels_.rowBytes) * pixels_.size.height();
    if (pixels_.memory && ::ftruncate(pixels_.memory.get(), length) == 0)
        return true;
    NSLog(QStringLiteral("lumaroo: agent: no memory for the picture of a window: %1").arg(qt_error_string()));
    return false;
}

/// False for a server on another machine, or one without the extension.
bool PixelCopy::shareMemory()
{
    xcb_connection_t *const server = connection_.server();
    if (!connection_.extension(&xcb_shm_id))
        return false;
    const auto version = fromServer(xcb_shm_query_version_reply(server, xcb_shm_query_version(server), nullptr));
    // The library closes what it sends.
    const int sent = ::fcntl(pixels_.memory.get(), F_DUPFD_CLOEXEC, 0);
    if (!version || std::pair(version->major_version, version->minor_version) < shmVersion || sent < 0)
        return false;
    segment_ = xcb_generate_id(server);
    xcb_shm_attach_fd(server, segment_, sent, false);
    return true;
}

void PixelCopy::copyAtOnce()
{
    const QRect &frame = pixmap_.frame;
    const auto asked = xcb_shm_get_image(connection_.server(), pixmap_.id, qint16(frame.x()), qint16(frame.y()),
        quint16(frame.width()), quint16(frame.height()), ~0u, XCB_IMAGE_FORMAT_Z_PIXMAP, segment_, 0);
    connection_.expect(asked.sequence, [this](void *answer) {
        const auto reply = fromServer(static_cast<xcb_shm_get_image_reply_t *>(answer));
        if (reply)
            Q_EMIT copied();
        else
            copyNextRows(); // as where the server is on another machine, which looks like this one
    });
}

void PixelCopy::copyNextRows()
{
    const QRect &frame = pixmap_.frame;
    const int rows = std::clamp(mostBytesAtOnce / int(pixels_.rowBytes), 1, frame.height() - nextRow_);
    const auto asked = xcb_get_image(connection_.server(), XCB_IMAGE_FORMAT_Z_PIXMAP, pixmap_.id, qint16(frame.x()),
        qint16(frame.y() + nextRow_), quint16(frame.width()), quint16(rows), ~0u);
    connection_.expect(asked.sequence, [this](void *answer) { takeRows(answer); });
}

void PixelCopy::takeRows(void *answer)
{
    const auto reply = fromServer(static_cast<xcb_get_image_reply_t *>(answer));
    const auto length = reply ? size_t(xcb_get_image_data_length(reply.get())) : 0;
    const auto place = off_t(nextRow_) * pixels_.rowBytes;
    nextRow_ += int(length / pixels_.rowBytes);
    if (length < pixels_.rowBytes
        || ::pwrite(pixels_.memory.get(), xcb_get_image_data(reply.get()), length, place) != ssize_t(length))
        return fail(PictureFailure::NotPossible);
    if (nextRow_ < pixels_.size.height())
        copyNextRows();
    else
        Q_EMIT copied();
}
