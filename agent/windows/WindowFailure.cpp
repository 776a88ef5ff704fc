#include "agent/windows/WindowFailure.h"

QString clause(WindowFailure failure)
{
    switch (failure) {
    case WindowFailure::NoServer:
        return QStringLiteral("there is no X server");
    case WindowFailure::ServerHasGone:
        return QStringLiteral("the X server has gone");
    case WindowFailure::WaylandSession:
        return QStringLiteral("a Wayland session does not let programs see other programs' windows");
    case WindowFailure::NoManager:
        return QStringLiteral("no window manager runs that tells which windows there are");
    case WindowFailure::SilentManager:
        return QStringLiteral("the window manager does not tell which windows there are");
    }
    return {};
}
