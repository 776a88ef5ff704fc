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
    // The server repeats a key by a release and a press of one time; the toolkit does not always know that for a
    // repeat.
    const bool continues = press.nativeScanCode() == foreignScanCode_ && press.timestamp() == foreignReleaseTime_;
    if (press.isAutoRepeat() || continues)
        return false;
    down_.insert(press.nativeScanCode());
    return true;
}

bool OwnKeys::isOwnRelease(const QKeyEvent &release)
{
    if (!down_.contains(release.nativeScanCode())) {
        foreignScanCode_ = release.nativeScanCode();
        foreignReleaseTime_ = release.timestamp();
        return false;
    }
    if (!release.isAutoRepeat())
        down_.remove(release.nativeScanCode());
    return true;
}
