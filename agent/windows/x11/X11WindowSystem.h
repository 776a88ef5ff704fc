#pragma once

#include "agent/windows/WindowSystem.h"
#include "agent/windows/x11/WindowActivation.h"

/// The windows of an X server, as its window manager tells them (EWMH).
class X11WindowSystem final : public WindowSystem
{
    Q_OBJECT

public:
    X11WindowSystem() { open(); }

    void open() override;
    std::optional<WindowWorld> read(const WindowChoice &choice, WindowFailure *failure) override;
    void activate(quint32 windowID, quint32 time) override;
    void expectActivation(bool isExpected) override;
    quint32 time() override;

private:
    bool connectToServer();

    XConnection connection_; ///< null without a server
    WindowFailure failure_ = WindowFailure::NoServer; ///< why there is none
    WindowServer server_{};
    std::unique_ptr<WindowActivation> activation_;
};
