#include "WindowOfAnotherProgram.h"

#include "DesktopWindows.h"
#include "Wait.h"
#include "platform/appkit/linux/WindowManagerMessage.h"
#include "platform/foundation/system/X11.h"

#include <utility>

namespace {

void waitForServer(xcb_connection_t *connection)
{
    fromServer(xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr));
}

void setProperty(xcb_connection_t *connection, quint32 window, const char *property, const char *type, int format,
    const QByteArray &bytes)
{
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window, displayAtom(connection, property),
        displayAtom(connection, type), quint8(format), quint32(bytes.size() / (format / 8)), bytes.constData());
    waitForServer(connection);
}

QByteArray bytesOf(const QList<quint32> &values)
{
    return {reinterpret_cast<const char *>(values.constData()), values.size() * qsizetype(sizeof(quint32))};
}

bool isOnDesktop(quint32 window, quint32 desktop)
{
    constexpr quint32 onAll = 0xffffffff;
    const quint32 own = desktopOfWindow(window);
    return own == desktop || own == onAll;
}

} // namespace

WindowOfAnotherProgram::WindowOfAnotherProgram(const QString &title, const QRect &place)
    : WindowOfAnotherProgram(connectToXServer(), title, place)
{
}

WindowOfAnotherProgram::WindowOfAnotherProgram(
    const WindowOfAnotherProgram &sibling, const QString &title, const QRect &place)
    : WindowOfAnotherProgram(sibling.connection_, title, place)
{
}

WindowOfAnotherProgram::WindowOfAnotherProgram(
    std::shared_ptr<xcb_connection_t> connection, const QString &title, const QRect &place)
    : connection_(std::move(connection)), id_(xcb_generate_id(connection_.get()))
{
    const xcb_screen_t *screen = xcb_setup_roots_iterator(xcb_get_setup(connection_.get())).data;
    xcb_create_window(connection_.get(), XCB_COPY_FROM_PARENT, id_, screen->root, qint16(place.x()), qint16(place.y()),
        quint16(place.width()), quint16(place.height()), 0, XCB_WINDOW_CLASS_INPUT_OUTPUT, screen->root_visual,
        XCB_CW_BACK_PIXEL, &screen->white_pixel);
    constexpr quint32 userChosePlaceAndSize = 3;
    QList<quint32> hints(18, 0);
    hints[0] = userChosePlaceAndSize;
    set("WM_NORMAL_HINTS", "WM_SIZE_HINTS", hints);
    constexpr quint32 takesInput = 1;
    QList<quint32> focusHints(9, 0);
    focusHints[0] = focusHints[1] = takesInput;
    set("WM_HINTS", "WM_HINTS", focusHints);
    if (!title.isNull())
        setText("_NET_WM_NAME", "UTF8_STRING", title.toUtf8());
}

WindowOfAnotherProgram::~WindowOfAnotherProgram()
{
    destroy();
    waitUntil([this] { return !listedWindows().contains(id_); });
}

WindowOfAnotherProgram &WindowOfAnotherProgram::set(
    const char *property, const char *type, const QList<quint32> &values)
{
    return setBytes(property, type, 32, bytesOf(values));
}

WindowOfAnotherProgram &WindowOfAnotherProgram::setText(const char *property, const char *type, const QByteArray &text)
{
    return setBytes(property, type, 8, text);
}

WindowOfAnotherProgram &WindowOfAnotherProgram::setNames(const char *property, const QList<const char *> &names)
{
    QList<quint32> atoms;
    for (const char *name : names)
        atoms += displayAtom(connection_.get(), name);
    return set(property, "ATOM", atoms);
}

WindowOfAnotherProgram &WindowOfAnotherProgram::setBytes(
    const char *property, const char *type, int format, const QByteArray &bytes)
{
    setProperty(connection_.get(), id_, property, type, format, bytes);
    return *this;
}

WindowOfAnotherProgram &WindowOfAnotherProgram::removeProperty(const char *property)
{
    xcb_delete_property(connection_.get(), id_, displayAtom(connection_.get(), property));
    waitForServer(connection_.get());
    return *this;
}

WindowOfAnotherProgram &WindowOfAnotherProgram::setType(const QByteArray &type)
{
    return setNames("_NET_WM_WINDOW_TYPE", {("_NET_WM_WINDOW_TYPE_" + type).constData()});
}

WindowOfAnotherProgram &WindowOfAnotherProgram::setClass(const QByteArray &instance, const QByteArray &name)
{
    return setText("WM_CLASS", "STRING", instance + '\0' + name + '\0');
}

WindowOfAnotherProgram &WindowOfAnotherProgram::setUndecorated()
{
    constexpr quint32 decorationsAreTold = 2;
    return set("_MOTIF_WM_HINTS", "_MOTIF_WM_HINTS", {decorationsAreTold, 0, 0, 0, 0});
}

WindowOfAnotherProgram &WindowOfAnotherProgram::setColor(quint32 color)
{
    xcb_change_window_attributes(connection_.get(), id_, XCB_CW_BACK_PIXEL, &color);
    xcb_clear_area(connection_.get(), false, id_, 0, 0, 0, 0);
    waitForServer(connection_.get());
    return *this;
}

void WindowOfAnotherProgram::map()
{
    xcb_map_window(connection_.get(), id_);
    waitForServer(connection_.get());
}

bool WindowOfAnotherProgram::show()
{
    map();
    // Some managers list it a while before they put it on screen and give it the focus.
    return waitUntil(
        [this] { return listedWindows().contains(id_) && (isOnScreen() || !isOnDesktop(id_, currentDesktop())); });
}

bool WindowOfAnotherProgram::takesFocus() const
{
    turnToWindow(id_);
    waitForWindowManager();
    return waitUntil([this] { return activeWindow() == id_; });
}

bool WindowOfAnotherProgram::isOnScreen() const
{
    const auto state = fromServer(
        xcb_get_window_attributes_reply(connection_.get(), xcb_get_window_attributes(connection_.get(), id_), nullptr));
    return state && state->map_state == XCB_MAP_STATE_VIEWABLE;
}

bool WindowOfAnotherProgram::takesState(const QByteArray &state, const QByteArray &other)
{
    const QByteArray prefix = "_NET_WM_STATE_";
    const auto atom = [&](const QByteArray &name) {
        return name.isEmpty() ? 0 : displayAtom(connection_.get(), (prefix + name).constData());
    };
    constexpr quint32 add = 1, fromProgram = 1;
    sendToWindowManager(connection_.get(), id_, "_NET_WM_STATE", {add, atom(state), atom(other), fromProgram});
    return waitUntil([&] {
        const QStringList states = windowStates(id_);
        return states.contains(QString::fromLatin1(prefix + state))
            && (other.isEmpty() || states.contains(QString::fromLatin1(prefix + other)));
    });
}

bool WindowOfAnotherProgram::takesDesktop(quint32 desktop)
{
    constexpr quint32 fromPager = 2;
    sendToWindowManager(connection_.get(), id_, "_NET_WM_DESKTOP", {desktop, fromPager});
    return waitUntil([&] { return desktopOfWindow(id_) == desktop; });
}

void WindowOfAnotherProgram::destroy()
{
    xcb_destroy_window(connection_.get(), id_);
    waitForServer(connection_.get());
}
