#include "agent/keys/KeyboardWatch.h"

#include <utility>

KeyboardWatch::KeyboardWatch(Keyboard &keyboard) : keyboard_(keyboard)
{
    calm_.setSingleShot(true);
    calm_.setInterval(calmDelay);
    QObject::connect(&calm_, &QTimer::timeout, &calm_, [this] { tell(); });
}

void KeyboardWatch::setEvents(Keyboard::Events events)
{
    if (std::exchange(wanted_, events) == events)
        return;
    if (wanted_ & ~told_)
        tell();
    else if (wanted_ != told_)
        calm_.start();
    else
        calm_.stop();
}

void KeyboardWatch::forget()
{
    wanted_ = told_ = {};
    calm_.stop();
}

void KeyboardWatch::tell()
{
    calm_.stop();
    told_ = wanted_;
    keyboard_.watch(told_);
}
