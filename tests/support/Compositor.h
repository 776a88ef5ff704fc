#pragma once

#include "Wait.h"
#include "platform/foundation/system/X11.h"

#include <QProcess>
#include <cstring>

/// A compositor on the session's display, without effects of its own.
class Compositor
{
public:
    Compositor()
    {
        process_.setStandardErrorFile(QProcess::nullDevice());
        process_.start(QStringLiteral("picom"), {"--config", "/dev/null", "--backend", "xrender"});
    }
    ~Compositor() { end(); }
    Compositor(const Compositor &) = delete;
    Compositor &operator=(const Compositor &) = delete;

    /// Waits for it; false when it does not come.
    bool isThere() const
    {
        return waitUntil([this] { return hasOwner(); });
    }
    /// Returns when it has gone.
    void end()
    {
        process_.terminate();
        process_.waitForFinished();
        waitUntil([this] { return !hasOwner(); });
    }

private:
    bool hasOwner() const
    {
        constexpr char selection[] = "_NET_WM_CM_S0";
        const auto atom = fromServer(xcb_intern_atom_reply(connection_.get(),
            xcb_intern_atom(connection_.get(), false, quint16(std::strlen(selection)), selection), nullptr));
        const auto reply = fromServer(xcb_get_selection_owner_reply(
            connection_.get(), xcb_get_selection_owner(connection_.get(), atom->atom), nullptr));
        return reply && reply->owner != XCB_WINDOW_NONE;
    }

    const XConnection connection_ = connectToXServer();
    QProcess process_;
};
