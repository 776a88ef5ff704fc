#include "DisplayRoot.h"

#include "platform/appkit/linux/WindowManagerMessage.h"
#include "platform/foundation/system/X11.h"

#include <QGuiApplication>
#include <QPixmap>
#include <QScreen>
#include <xcb/randr.h>
#include <xcb/xcbext.h>

namespace {

const xcb_screen_t *screenOf(const XConnection &connection)
{
    return xcb_setup_roots_iterator(xcb_get_setup(connection.get())).data;
}

void waitForServer(const XConnection &connection)
{
    fromServer(xcb_get_input_focus_reply(connection.get(), xcb_get_input_focus(connection.get()), nullptr));
}

/// A shadow leaves less of red and blue, and none of green.
bool isGround(QRgb pixel)
{
    constexpr int darkest = 40;
    return qGreen(pixel) == 0 && qRed(pixel) > darkest && qBlue(pixel) > darkest;
}

QList<xcb_atom_t> monitorNames(const XConnection &connection)
{
    const auto reply = fromServer(xcb_randr_get_monitors_reply(
        connection.get(), xcb_randr_get_monitors(connection.get(), screenOf(connection)->root, false), nullptr));
    QList<xcb_atom_t> names;
    for (auto one = xcb_randr_get_monitors_monitors_iterator(reply.get()); one.rem > 0;
         xcb_randr_monitor_info_next(&one))
        names += one.data->name;
    return names;
}

struct MonitorRequest
{
    xcb_randr_set_monitor_request_t head;
    xcb_randr_monitor_info_t info;
    xcb_randr_output_t output;
};

/// The library's own call miscounts the request's bytes.
void send(const XConnection &connection, MonitorRequest &request)
{
    const xcb_protocol_request_t kind{2, &xcb_randr_id, XCB_RANDR_SET_MONITOR, 1};
    const size_t output = request.info.nOutput == 0 ? sizeof(request.output) : 0;
    iovec parts[4]{{}, {}, {&request, sizeof(request) - output}, {}};
    xcb_send_request(connection.get(), 0, parts + 2, &kind);
}

/// The first one has the server's only output, which else were a monitor of its own.
void setMonitor(const XConnection &connection, int number, const QRect &place, int dotsPerInch)
{
    const auto resources = fromServer(xcb_randr_get_screen_resources_current_reply(connection.get(),
        xcb_randr_get_screen_resources_current(connection.get(), screenOf(connection)->root), nullptr));
    const auto millimetres = [dotsPerInch](int pixels) { return quint32(pixels * 254 / (10 * dotsPerInch)); };
    MonitorRequest request{};
    request.head.window = screenOf(connection)->root;
    request.info.name = displayAtom(connection.get(), ("test" + QByteArray::number(number)).constData());
    request.info.nOutput = number == 0 ? 1 : 0;
    request.info.x = qint16(place.x());
    request.info.y = qint16(place.y());
    request.info.width = quint16(place.width());
    request.info.height = quint16(place.height());
    request.info.width_in_millimeters = millimetres(place.width());
    request.info.height_in_millimeters = millimetres(place.height());
    request.output = xcb_randr_get_screen_resources_current_outputs(resources.get())[0];
    send(connection, request);
}

} // namespace

quint32 serverTime()
{
    const XConnection connection = connectToXServer();
    constexpr quint32 changes = XCB_EVENT_MASK_PROPERTY_CHANGE;
    const quint32 window = xcb_generate_id(connection.get());
    xcb_create_window(connection.get(), XCB_COPY_FROM_PARENT, window, screenOf(connection)->root, 0, 0, 1, 1, 0,
        XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK, &changes);
    xcb_change_property(
        connection.get(), XCB_PROP_MODE_APPEND, window, XCB_ATOM_WM_NAME, XCB_ATOM_STRING, 8, 0, nullptr);
    xcb_flush(connection.get());
    const auto event = fromServer(xcb_wait_for_event(connection.get()));
    return event ? reinterpret_cast<const xcb_property_notify_event_t *>(event.get())->time : 0;
}

void setOnRoot(const char *property, const char *type, const QList<quint32> &values)
{
    const XConnection connection = connectToXServer();
    xcb_change_property(connection.get(), XCB_PROP_MODE_REPLACE, screenOf(connection)->root,
        displayAtom(connection.get(), property), displayAtom(connection.get(), type), 32, quint32(values.size()),
        values.constData());
    waitForServer(connection);
}

void removeFromRoot(const char *property)
{
    const XConnection connection = connectToXServer();
    xcb_delete_property(connection.get(), screenOf(connection)->root, displayAtom(connection.get(), property));
    waitForServer(connection);
}

QList<quint32> valuesOnRoot(const char *property)
{
    const XConnection connection = connectToXServer();
    const auto asked = xcb_get_property(connection.get(), 0, screenOf(connection)->root,
        displayAtom(connection.get(), property), XCB_GET_PROPERTY_TYPE_ANY, 0, 1024);
    const auto reply = fromServer(xcb_get_property_reply(connection.get(), asked, nullptr));
    const auto *const values = static_cast<const quint32 *>(xcb_get_property_value(reply.get()));
    return {values, values + xcb_get_property_value_length(reply.get()) / int(sizeof(quint32))};
}

void setMonitors(const QList<QRect> &monitors, int dotsPerInch)
{
    const XConnection connection = connectToXServer();
    for (const xcb_atom_t name : monitorNames(connection))
        xcb_randr_delete_monitor(connection.get(), screenOf(connection)->root, name);
    for (int number = 0; number < monitors.size(); ++number)
        setMonitor(connection, number, monitors.at(number), dotsPerInch);
    waitForServer(connection);
}

QRect seenOnGround()
{
    const QImage screen =
        QGuiApplication::primaryScreen()->grabWindow(0).toImage().convertToFormat(QImage::Format_RGB32);
    QRect seen;
    for (int y = 0; y < screen.height(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(screen.constScanLine(y));
        for (int x = 0; x < screen.width(); ++x) {
            if (!isGround(line[x]))
                seen |= QRect(x, y, 1, 1);
        }
    }
    return seen;
}
