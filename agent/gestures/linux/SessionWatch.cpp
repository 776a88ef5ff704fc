#include "agent/gestures/SessionWatch.h"

#include "agent/gestures/x11/ScreenSaverWatch.h"

#include <QDBusConnection>
#include <chrono>

using namespace std::chrono_literals;

namespace {

/// Who only taps a key and lets go has been there and gone by then.
constexpr auto moment = 50ms;

} // namespace

SessionWatch::SessionWatch()
{
    soon_.setSingleShot(true);
    connect(&soon_, &QTimer::timeout, this, &SessionWatch::begin);
}

SessionWatch::~SessionWatch()
{
    end();
}

void SessionWatch::begin()
{
    if (screenSaver_)
        return;
    screenSaver_ = std::make_unique<ScreenSaverWatch>();
    connect(screenSaver_.get(), &ScreenSaverWatch::cameUp, this, &SessionWatch::userIsLeaving, Qt::QueuedConnection);
    followLogind(true);
}

void SessionWatch::beginSoon()
{
    soon_.start(moment);
}

void SessionWatch::end()
{
    soon_.stop();
    if (!screenSaver_)
        return;
    screenSaver_.reset();
    followLogind(false);
}

/// The connection stays; what it is to be told of does not.
void SessionWatch::followLogind(bool follow)
{
    QDBusConnection bus = QDBusConnection::systemBus();
    const QString service = QStringLiteral("org.freedesktop.login1");
    const auto set = [&](const char *path, const char *interface, const char *signal, const char *slot) {
        const auto text = [](const char *latin1) { return QString::fromLatin1(latin1); };
        if (follow)
            bus.connect(service, text(path), text(interface), text(signal), this, slot);
        else
            bus.disconnect(service, text(path), text(interface), text(signal), this, slot);
    };
    // Any session's: which one is ours is a question more, and a gesture that ends early is no loss.
    set("", "org.freedesktop.login1.Session", "Lock", SLOT(handleLock()));
    set("/org/freedesktop/login1", "org.freedesktop.login1.Manager", "PrepareForSleep", SLOT(handleSleep(bool)));
}

void SessionWatch::handleLock()
{
    Q_EMIT userIsLeaving();
}

void SessionWatch::handleSleep(bool begins)
{
    if (begins)
        Q_EMIT userIsLeaving();
}
