#include "agent/keys/KeyRepeat.h"

KeyRepeat::KeyRepeat()
{
    timer_.setTimerType(Qt::PreciseTimer);
    connect(&timer_, &QTimer::timeout, this, [this] {
        timer_.start(timing_.interval);
        Q_EMIT due();
    });
}

void KeyRepeat::start()
{
    if (timing_.repeats)
        timer_.start(timing_.delay);
    else
        stop();
}
