#pragma once

#include "platform/foundation/system/X11.h"

#include <cstring>
#include <vector>

/// Another program's window that is not on screen, and has whatever icon it is told to.
class WindowWithIcon
{
public:
    WindowWithIcon() : connection_(connectToXServer()), id_(xcb_generate_id(connection_.get()))
    {
        xcb_create_window(connection_.get(), XCB_COPY_FROM_PARENT, id_,
            xcb_setup_roots_iterator(xcb_get_setup(connection_.get())).data->root, 0, 0, 10, 10, 0,
            XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
        wait();
    }

    quint32 id() const { return id_; }
    /// Widths, heights and pixels, one after the other.
    void setIcon(const std::vector<quint32> &data)
    {
        xcb_change_property(connection_.get(), XCB_PROP_MODE_REPLACE, id_, property(), XCB_ATOM_CARDINAL, 32,
            quint32(data.size()), data.data());
        wait();
    }
    /// A text in its place.
    void setIconOfOtherKind()
    {
        constexpr char text[] = "\20\0\0\0\20\0\0\0 as long as one";
        xcb_change_property(
            connection_.get(), XCB_PROP_MODE_REPLACE, id_, property(), XCB_ATOM_STRING, 8, sizeof text, text);
        wait();
    }

private:
    xcb_atom_t property() const
    {
        constexpr char name[] = "_NET_WM_ICON";
        const auto reply = fromServer(xcb_intern_atom_reply(
            connection_.get(), xcb_intern_atom(connection_.get(), false, quint16(std::strlen(name)), name), nullptr));
        return reply ? reply->atom : xcb_atom_t(XCB_ATOM_NONE);
    }
    void wait() const
    {
        fromServer(xcb_get_input_focus_reply(connection_.get(), xcb_get_input_focus(connection_.get()), nullptr));
    }

    const XConnection connection_;
    const xcb_window_t id_;
};
