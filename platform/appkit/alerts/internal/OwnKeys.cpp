#include "platform/appkit/alerts/internal/OwnKeys.h"

#include <QKeyEvent>

bool OwnKeys::eventFilter(QObject *, QEvent *event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
        return !isOwnPress(static_cast<const QKeyEvent &>(*event));
    case QEvent::KeyRelease:
        return !isOwnRelease(static_cast<const QKeyEvent &>(*event));
    default:
        return false;
    }
}

bool OwnKeys::isOwnPress(const QKeyEvent &press)
{
    if (down_.contains(press.nativeScanCode()))
        return true;
    const bool isRepeat = repeats_.isRepeat(press);
    repeats_.notePress(press);
    if (isRepeat)
        return false;
    down_.insert(press.nativeScanCode());
    return true;
}

bool OwnKeys::isOwnRelease(const QKeyEvent &release)
{
    if (!down_.contains(release.nativeScanCode())) {
        repeats_.noteRelease(release);
        return false;
    }
    if (!release.isAutoRepeat())
        down_.remove(release.nativeScanCode());
    return true;
}
