#pragma once

#include "agent/windows/WindowWorld.h"

#include <QObject>
#include <QStringList>
#include <memory>
#include <optional>

/// Which windows can be selected.
struct WindowChoice
{
    bool showsHidden = false; ///< minimised ones too
    QStringList excludedApplications; ///< classes of programs whose windows are left out

    bool operator==(const WindowChoice &) const = default;
};

/// The door to the desktop's windows. What is behind it is decided by windowSystem() alone; nothing is watched between
/// two calls.
class WindowSystem : public QObject
{
    Q_OBJECT

public:
    /// All windows as they are now; no value where the desktop does not tell them, which `failure` says.
    virtual std::optional<WindowWorld> read(const WindowChoice &choice, QString *failure) = 0;

    /// Turns to a window: its desktop, and it in front with the focus, also where it is minimised. `time` is that of
    /// the key or button that decided, in the display's own clock. Returns at once; activated() or notActivated()
    /// follows within 500 ms, unless activate() is called again before.
    virtual void activate(quint32 windowID, quint32 time) = 0;

Q_SIGNALS:
    /// It has the focus, or a modal window of its own has.
    void activated(quint32 windowID);
    void notActivated(quint32 windowID);
};

/// The door that is open in this session; never null. Without a display its reading fails.
std::unique_ptr<WindowSystem> windowSystem();
