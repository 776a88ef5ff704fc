#include "ScreenPicture.h"

#include "Wait.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <optional>

namespace {

const xcb_screen_t *screenOf(const XConnection &connection)
{
    return xcb_setup_roots_iterator(xcb_get_setup(connection.get())).data;
}

bool isNear(QRgb one, QRgb other, int tolerance)
{
    return std::abs(qRed(one) - qRed(other)) <= tolerance && std::abs(qGreen(one) - qGreen(other)) <= tolerance
        && std::abs(qBlue(one) - qBlue(other)) <= tolerance;
}

QImage pictureOf(const std::function<QRgb(QPoint)> &colors, QSize size)
{
    QImage picture(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        auto *const line = reinterpret_cast<QRgb *>(picture.scanLine(y));
        for (int x = 0; x < size.width(); ++x)
            line[x] = colors({x, y});
    }
    return picture;
}

std::optional<QPoint> firstDifference(const QImage &expected, int tolerance, const QImage &picture)
{
    if (picture == expected)
        return std::nullopt;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (!isNear(picture.pixel(x, y), expected.pixel(x, y), tolerance))
                return QPoint(x, y);
        }
    }
    return std::nullopt;
}

} // namespace

QImage screenPicture()
{
    static const XConnection connection = connectToXServer();
    const xcb_window_t root = screenOf(connection)->root;
    const auto geometry =
        fromServer(xcb_get_geometry_reply(connection.get(), xcb_get_geometry(connection.get(), root), nullptr));
    const auto image = fromServer(xcb_get_image_reply(connection.get(),
        xcb_get_image(connection.get(), XCB_IMAGE_FORMAT_Z_PIXMAP, root, 0, 0, geometry->width, geometry->height, ~0u),
        nullptr));
    if (!image)
        return {};
    return QImage(xcb_get_image_data(image.get()), geometry->width, geometry->height, QImage::Format_RGB32).copy();
}

bool showsOnScreen(const std::function<QRgb(QPoint)> &expected, int tolerance)
{
    QImage picture = screenPicture();
    const QImage whole = pictureOf(expected, picture.size());
    std::optional<QPoint> difference;
    const bool isShown = waitUntil([&] {
        picture = screenPicture();
        difference = firstDifference(whole, tolerance, picture);
        return !difference;
    });
    if (!isShown)
        ADD_FAILURE() << "at " << difference->x() << ',' << difference->y() << " is " << std::hex
                      << picture.pixel(*difference) << " and not " << whole.pixel(*difference);
    return isShown;
}

ScreenGround::ScreenGround(QRgb color) : connection_(connectToXServer()), id_(xcb_generate_id(connection_.get()))
{
    const xcb_screen_t *screen = screenOf(connection_);
    const quint32 values[]{color & 0xffffff, true, XCB_EVENT_MASK_BUTTON_PRESS};
    xcb_create_window(connection_.get(), XCB_COPY_FROM_PARENT, id_, screen->root, 0, 0, screen->width_in_pixels,
        screen->height_in_pixels, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT,
        XCB_CW_BACK_PIXEL | XCB_CW_OVERRIDE_REDIRECT | XCB_CW_EVENT_MASK, values);
    xcb_map_window(connection_.get(), id_);
    fromServer(xcb_get_input_focus_reply(connection_.get(), xcb_get_input_focus(connection_.get()), nullptr));
}

int ScreenGround::clicks()
{
    while (const auto event = fromServer(xcb_poll_for_event(connection_.get())))
        clicks_ += (event->response_type & eventTypeMask) == XCB_BUTTON_PRESS ? 1 : 0;
    return clicks_;
}
