#include "agent/windows/x11/X11WindowSystem.h"

#include "agent/windows/x11/MonitorReading.h"
#include "agent/windows/x11/ServerTime.h"
#include "agent/windows/x11/WindowReading.h"

void X11WindowSystem::open()
{
    // Reads what has come in, and so the server's end.
    if (activation_)
        activation_->lookAtWhatCameMeanwhile();
    if (connection_ && !xcb_connection_has_error(connection_.get()))
        return;
    activation_.reset();
    if (!connectToServer())
        connection_ = nullptr;
}

bool X11WindowSystem::connectToServer()
{
    if (!qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")) {
        failure_ = WindowFailure::WaylandSession;
        return false;
    }
    int preferredScreen = 0;
    connection_ = connectToXServer(&preferredScreen);
    failure_ = WindowFailure::NoServer;
    if (xcb_connection_has_error(connection_.get()))
        return false;
    auto screen = xcb_setup_roots_iterator(xcb_get_setup(connection_.get()));
    while (preferredScreen-- > 0 && screen.rem > 1)
        xcb_screen_next(&screen);
    xcb_prefetch_extension_data(connection_.get(), &xcb_randr_id);
    const auto atoms = windowAtoms(connection_.get());
    if (!atoms)
        return false;
    server_ = {connection_.get(), screen.data, *atoms, serverTellsMonitors(connection_.get())};
    activation_ = std::make_unique<WindowActivation>(server_);
    connect(activation_.get(), &WindowActivation::activated, this, &WindowSystem::activated);
    connect(activation_.get(), &WindowActivation::notActivated, this, &WindowSystem::notActivated);
    return true;
}

std::optional<WindowWorld> X11WindowSystem::read(const WindowChoice &choice, WindowFailure *failure)
{
    if (!connection_) {
        *failure = failure_;
        return std::nullopt;
    }
    auto world = readWindows(server_, choice, failure);
    activation_->lookAtWhatCameMeanwhile();
    return world;
}

void X11WindowSystem::activate(quint32 windowID, quint32 time)
{
    if (connection_)
        activation_->begin(windowID, time);
    else
        QMetaObject::invokeMethod(
            this, [this, windowID] { Q_EMIT notActivated(windowID, false); }, Qt::QueuedConnection);
}

void X11WindowSystem::expectActivation(bool isExpected)
{
    if (connection_)
        activation_->expect(isExpected);
}

quint32 X11WindowSystem::time()
{
    return connection_ ? currentServerTime() : 0;
}
