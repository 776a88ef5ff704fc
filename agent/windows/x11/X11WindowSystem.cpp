#include "agent/windows/x11/X11WindowSystem.h"

#include "agent/windows/x11/MonitorReading.h"
#include "agent/windows/x11/ServerTime.h"
#include "agent/windows/x11/WindowReading.h"

X11WindowSystem::X11WindowSystem()
{
    if (!open())
        connection_ = nullptr;
}

bool X11WindowSystem::open()
{
    if (!qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")) {
        failure_ = QStringLiteral("a Wayland session does not let programs see other programs' windows");
        return false;
    }
    int preferredScreen = 0;
    connection_ = connectToXServer(&preferredScreen);
    failure_ = QStringLiteral("there is no X server");
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

std::optional<WindowWorld> X11WindowSystem::read(const WindowChoice &choice, QString *failure)
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
            this, [this, windowID] { Q_EMIT notActivated(windowID); }, Qt::QueuedConnection);
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
