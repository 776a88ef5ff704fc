#include "agent/notices/WindowFailureText.h"

#include "agent/notices/NoticeTexts.h"

QString windowFailureText(WindowFailure failure)
{
    switch (failure) {
    case WindowFailure::NoServer:
        return noticeText("There is no X server.");
    case WindowFailure::ServerHasGone:
        return noticeText("The X server has gone.");
    case WindowFailure::WaylandSession:
        return noticeText(
            "A Wayland session does not let programs see other programs' windows. Lumaroo works in an X11 session.");
    case WindowFailure::NoManager:
        return noticeText("No window manager runs that tells which windows there are.");
    case WindowFailure::SilentManager:
        return noticeText("The window manager does not tell which windows there are.");
    }
    return {};
}
