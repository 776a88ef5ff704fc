#pragma once

#include <QObject>
#include <QTimer>
#include <memory>

class ScreenSaverWatch;

/// Tells that the session's user is leaving: the session is being locked, the machine goes to sleep, or the screen
/// saver comes up. Who holds the keyboard then has to let it go, or a locker could not take it.
class SessionWatch : public QObject
{
    Q_OBJECT

public:
    SessionWatch();
    ~SessionWatch() override;

    /// Listens from now on. What is not there, the system bus or the server's screen saver, tells nothing.
    void begin();
    /// Listens in a moment: what is connected to for that would hold up the next key.
    void beginSoon();
    /// Harmless when it does not listen.
    void end();

Q_SIGNALS:
    void userIsLeaving();

private Q_SLOTS:
    void handleLock();
    void handleSleep(bool begins);

private:
    void followLogind(bool follow);

    QTimer soon_;
    std::unique_ptr<ScreenSaverWatch> screenSaver_; ///< while it listens
};
