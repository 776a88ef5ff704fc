#pragma once

#include <QtGlobal>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <xcb/xcb.h>

// "Drawn" is what the X server holds, not what the program says: the window is listed by the window manager, and the
// pixel near its lower left corner, which is flushed last, has the ground colour that the dark scheme gives it. Nothing
// else on the screen has that colour.

namespace firstwindow {

inline constexpr quint32 ground = 0x232528;
inline constexpr int cornerDistance = 6;

template <typename T>
using Reply = std::unique_ptr<T, decltype(&std::free)>;

class Screen
{
public:
    Screen()
        : connection_(xcb_connect(nullptr, nullptr), &xcb_disconnect),
          root_(xcb_setup_roots_iterator(xcb_get_setup(connection_.get())).data->root)
    {
        const auto cookie = xcb_intern_atom(connection_.get(), 0, std::strlen(listName), listName);
        clientList_ =
            Reply<xcb_intern_atom_reply_t>(xcb_intern_atom_reply(connection_.get(), cookie, nullptr), &std::free)->atom;
    }

    /// The only window that the window manager lists, or none.
    xcb_window_t window() const
    {
        const auto cookie = xcb_get_property(connection_.get(), 0, root_, clientList_, XCB_ATOM_WINDOW, 0, 1);
        const Reply<xcb_get_property_reply_t> reply(
            xcb_get_property_reply(connection_.get(), cookie, nullptr), &std::free);
        if (!reply || xcb_get_property_value_length(reply.get()) == 0)
            return XCB_NONE;
        return *static_cast<xcb_window_t *>(xcb_get_property_value(reply.get()));
    }

    bool isDrawn(xcb_window_t window) const
    {
        const Reply<xcb_get_geometry_reply_t> geometry(
            xcb_get_geometry_reply(connection_.get(), xcb_get_geometry(connection_.get(), window), nullptr),
            &std::free);
        if (!geometry)
            return false;
        const auto cookie = xcb_get_image(connection_.get(), XCB_IMAGE_FORMAT_Z_PIXMAP, window, cornerDistance,
            qint16(geometry->height - cornerDistance), 1, 1, ~0U);
        const Reply<xcb_get_image_reply_t> image(xcb_get_image_reply(connection_.get(), cookie, nullptr), &std::free);
        quint32 pixel = 0;
        if (image && xcb_get_image_data_length(image.get()) >= 4)
            std::memcpy(&pixel, xcb_get_image_data(image.get()), 4);
        return (pixel & 0xffffff) == ground;
    }

private:
    static constexpr char listName[] = "_NET_CLIENT_LIST";
    std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> connection_;
    xcb_window_t root_;
    xcb_atom_t clientList_ = XCB_ATOM_NONE;
};

} // namespace firstwindow
