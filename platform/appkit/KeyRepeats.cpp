#include "platform/appkit/KeyRepeats.h"

#include <QKeyEvent>

namespace {

/// No key repeats this soon after it went down (in ms): desktops let their users choose 100 and more.
constexpr quint64 shortestRepeatDelay = 50;

} // namespace

bool KeyRepeats::isRepeat(const QKeyEvent &press) const
{
    const bool isSinceLastPress = press.nativeScanCode() == lastPress_.scanCode;
    if (isSinceLastPress && press.timestamp() - lastPress_.time < shortestRepeatDelay)
        return false;
    const bool continues =
        lastRelease_ && press.nativeScanCode() == lastRelease_->scanCode && press.timestamp() == lastRelease_->time;
    return press.isAutoRepeat() || continues;
}

void KeyRepeats::notePress(const QKeyEvent &press)
{
    if (!isRepeat(press))
        lastPress_ = {press.nativeScanCode(), press.timestamp()};
    lastRelease_.reset();
}

void KeyRepeats::noteRelease(const QKeyEvent &release)
{
    lastRelease_ = KeyMove{release.nativeScanCode(), release.timestamp()};
}
