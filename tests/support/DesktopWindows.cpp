#include "DesktopWindows.h"

#include "Wait.h"
#include "platform/appkit/linux/WindowManagerMessage.h"

#include <QGuiApplication>
#include <QPixmap>
#include <QScreen>
#include <QtEndian>
#include <cstdlib>
#include <gtest/gtest.h>
#include <memory>
#include <xcb/xcb.h>

namespace {

template <typename Reply>
using Owned = std::unique_ptr<Reply, decltype(&std::free)>;

xcb_connection_t *connection()
{
    static const std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> display(
        xcb_connect(nullptr, nullptr), &xcb_disconnect);
    return display.get();
}

xcb_window_t rootWindow()
{
    return xcb_setup_roots_iterator(xcb_get_setup(connection())).data->root;
}

QByteArray property(xcb_window_t window, const char *name)
{
    const auto cookie =
        xcb_get_property(connection(), 0, window, displayAtom(connection(), name), XCB_GET_PROPERTY_TYPE_ANY, 0, 65536);
    const Owned<xcb_get_property_reply_t> reply(xcb_get_property_reply(connection(), cookie, nullptr), &std::free);
    if (!reply)
        return {};
    return {static_cast<const char *>(xcb_get_property_value(reply.get())), xcb_get_property_value_length(reply.get())};
}

QList<quint32> numbers(const QByteArray &bytes)
{
    QList<quint32> values;
    for (qsizetype at = 0; at + qsizetype(sizeof(quint32)) <= bytes.size(); at += qsizetype(sizeof(quint32)))
        values += qFromUnaligned<quint32>(bytes.constData() + at);
    return values;
}

QString title(xcb_window_t window)
{
    return QString::fromUtf8(property(window, "_NET_WM_NAME"));
}

QPoint position(xcb_window_t window)
{
    const Owned<xcb_translate_coordinates_reply_t> reply(
        xcb_translate_coordinates_reply(
            connection(), xcb_translate_coordinates(connection(), window, rootWindow(), 0, 0), nullptr),
        &std::free);
    return reply ? QPoint(reply->dst_x, reply->dst_y) : QPoint();
}

QString atomName(xcb_atom_t atom)
{
    const Owned<xcb_get_atom_name_reply_t> reply(
        xcb_get_atom_name_reply(connection(), xcb_get_atom_name(connection(), atom), nullptr), &std::free);
    return reply ? QString::fromLatin1(xcb_get_atom_name_name(reply.get()), xcb_get_atom_name_name_length(reply.get()))
                 : QString();
}

void tellWindowManager(xcb_window_t window, const char *request, quint32 value = 0)
{
    sendToWindowManager(connection(), window, request, {value});
}

} // namespace

QList<DesktopWindow> desktopWindows()
{
    QList<DesktopWindow> windows;
    for (const quint32 id : numbers(property(rootWindow(), "_NET_CLIENT_LIST")))
        windows.append({id, numbers(property(id, "_NET_WM_PID")).value(0), title(id), position(id)});
    return windows;
}

QList<DesktopWindow> desktopWindowsOfProcess(qint64 processID)
{
    QList<DesktopWindow> windows = desktopWindows();
    windows.removeIf([processID](const DesktopWindow &window) { return window.processID != processID; });
    return windows;
}

quint32 activeWindow()
{
    return numbers(property(rootWindow(), "_NET_ACTIVE_WINDOW")).value(0);
}

QStringList openWindowTitles()
{
    QStringList titles;
    for (const DesktopWindow &window : desktopWindows())
        titles += window.title;
    return titles;
}

QString activeWindowTitle()
{
    const quint32 window = activeWindow();
    return window == XCB_NONE ? QString() : title(window);
}

void askToClose(quint32 window)
{
    tellWindowManager(window, "_NET_CLOSE_WINDOW");
}

void turnToWindow(quint32 window)
{
    constexpr quint32 fromUser = 2;
    tellWindowManager(window, "_NET_ACTIVE_WINDOW", fromUser);
}

void minimise(quint32 window)
{
    constexpr quint32 iconicState = 3;
    tellWindowManager(window, "WM_CHANGE_STATE", iconicState);
}

void maximise(quint32 window)
{
    constexpr quint32 add = 1;
    sendToWindowManager(connection(), window, "_NET_WM_STATE",
        {add, displayAtom(connection(), "_NET_WM_STATE_MAXIMIZED_HORZ"),
            displayAtom(connection(), "_NET_WM_STATE_MAXIMIZED_VERT")});
}

QStringList windowStates(quint32 window)
{
    QStringList names;
    for (const quint32 state : numbers(property(window, "_NET_WM_STATE")))
        names += atomName(state);
    return names;
}

QList<quint32> listedWindows()
{
    return numbers(property(rootWindow(), "_NET_CLIENT_LIST"));
}

QList<quint32> stackedWindows()
{
    return numbers(property(rootWindow(), "_NET_CLIENT_LIST_STACKING"));
}

quint32 desktops()
{
    return numbers(property(rootWindow(), "_NET_NUMBER_OF_DESKTOPS")).value(0);
}

void setDesktops(quint32 count)
{
    tellWindowManager(rootWindow(), "_NET_NUMBER_OF_DESKTOPS", count);
}

void waitForWindowManager()
{
    const quint32 before = desktops();
    for (const quint32 count : {before + 1, before}) {
        setDesktops(count);
        EXPECT_TRUE(waitUntil([count] { return desktops() == count; }));
    }
}

quint32 desktopOfWindow(quint32 window)
{
    return numbers(property(window, "_NET_WM_DESKTOP")).value(0);
}

quint32 currentDesktop()
{
    return numbers(property(rootWindow(), "_NET_CURRENT_DESKTOP")).value(0);
}

void goToDesktop(quint32 desktop)
{
    tellWindowManager(rootWindow(), "_NET_CURRENT_DESKTOP", desktop);
}

QImage pictureOfWindow(quint32 window)
{
    return QGuiApplication::primaryScreen()->grabWindow(window).toImage();
}
