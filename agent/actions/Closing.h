#pragma once

#include "agent/windows/WindowSystem.h"

#include <QTimer>

class WindowCloser;

/// One window that is to close, until it is known how its program took that.
class Closing : public QObject
{
    Q_OBJECT

public:
    enum class Outcome : quint8 {
        Closed,
        Asks, ///< its program has opened another window instead
        StaysOpen, ///< for 2 s now
        Unknown, ///< nobody has told windows for 2 s
        CannotBeAsked ///< its program does not take part in closing; nothing has been done
    };

    /// A window of this reading. The door outlives it.
    Closing(WindowSystem &windows, const WindowWorld &world, quint32 windowID);
    ~Closing() override;

    const WindowDescription &window() const { return window_; }
    /// ended() follows, never within this call. A time of 0 is now.
    void begin(quint32 time);

Q_SIGNALS:
    /// Once. `dialog` is the window that its program has opened instead.
    void ended(Outcome outcome, quint32 dialog);

private:
    void tellThatItCannotBeAsked();
    bool look();
    void giveUp();
    quint32 dialogIn(const WindowWorld &world) const;
    void end(Outcome outcome, quint32 dialog = 0);

    WindowSystem &windows_;
    const WindowDescription window_;
    QList<quint32> before_; ///< windows that have not been opened since
    const std::unique_ptr<WindowCloser> closer_;
    QTimer limit_;
    bool hasEnded_ = false;
};
