#pragma once

#include "agent/windows/WindowChoice.h"
#include "agent/windows/WindowFailure.h"
#include "agent/windows/WindowWorld.h"

#include <QObject>
#include <memory>
#include <optional>

/// The door to the desktop's windows. What is behind it is decided by windowSystem() alone; nothing is watched between
/// two calls.
class WindowSystem : public QObject
{
    Q_OBJECT

public:
    /// Connects to the display where it is not connected, as once it has come back. Called when the keys are taken
    /// anew.
    virtual void open() = 0;

    /// All windows as they are now; no value where the desktop does not tell them: `failure` then says why. Waits for
    /// the display. Once the display has gone, no reading works before it is opened again.
    virtual std::optional<WindowWorld> read(const WindowChoice &choice, WindowFailure *failure) = 0;

    /// Turns to a window: its desktop, and it in front with the focus, also where it is minimised. `time` is that of
    /// the key or button that decided, in the display's own clock, and never 0. Returns at once; activated() or
    /// notActivated() follows later, within 500 ms, unless activate() is called again before.
    virtual void activate(quint32 windowID, quint32 time) = 0;

    /// From now on activate() is likely, or no longer. What it needs is then at hand: with many windows the display
    /// takes a while to get it ready. Nothing is watched otherwise.
    virtual void expectActivation(bool isExpected) = 0;

    /// The time of something that no key or button decided: now, in the display's own clock. 0 without a display. Waits
    /// for the display.
    virtual quint32 time() = 0;

Q_SIGNALS:
    /// It has the focus, or a modal window of its own or of its group has.
    void activated(quint32 windowID);
    /// It does not have it; `hasClosed` where that is because there is no such window any more.
    void notActivated(quint32 windowID, bool hasClosed);
};

/// The door of this session, opened; never null. Without a display its reading fails.
std::unique_ptr<WindowSystem> windowSystem();
