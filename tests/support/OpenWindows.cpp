#include "OpenWindows.h"

#include <QByteArray>
#include <QList>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <xcb/xcb.h>

namespace {

xcb_connection_t *connection()
{
    static const std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> display(
        xcb_connect(nullptr, nullptr), &xcb_disconnect);
    return display.get();
}

xcb_atom_t atom(const char *name)
{
    const auto cookie = xcb_intern_atom(connection(), 0, quint16(std::strlen(name)), name);
    const std::unique_ptr<xcb_intern_atom_reply_t, decltype(&std::free)> reply(
        xcb_intern_atom_reply(connection(), cookie, nullptr), &std::free);
    return reply->atom;
}

QByteArray property(xcb_window_t window, const char *name)
{
    const auto cookie = xcb_get_property(connection(), 0, window, atom(name), XCB_GET_PROPERTY_TYPE_ANY, 0, 4096);
    const std::unique_ptr<xcb_get_property_reply_t, decltype(&std::free)> reply(
        xcb_get_property_reply(connection(), cookie, nullptr), &std::free);
    if (!reply)
        return {};
    const auto *value = static_cast<const char *>(xcb_get_property_value(reply.get()));
    return QByteArray(value, xcb_get_property_value_length(reply.get()));
}

QList<xcb_window_t> windowsOf(const char *rootProperty)
{
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection())).data->root;
    const QByteArray value = property(root, rootProperty);
    QList<xcb_window_t> windows(value.size() / qsizetype(sizeof(xcb_window_t)));
    std::memcpy(windows.data(), value.constData(), size_t(windows.size()) * sizeof(xcb_window_t));
    return windows;
}

QString title(xcb_window_t window)
{
    return QString::fromUtf8(property(window, "_NET_WM_NAME"));
}

} // namespace

QStringList openWindowTitles()
{
    QStringList titles;
    for (const xcb_window_t window : windowsOf("_NET_CLIENT_LIST"))
        titles += title(window);
    return titles;
}

QString activeWindowTitle()
{
    const QList<xcb_window_t> active = windowsOf("_NET_ACTIVE_WINDOW");
    return active.isEmpty() || active.first() == XCB_NONE ? QString() : title(active.first());
}
