#pragma once

#include "RepeatTiming.h"

#include <QObject>
#include <QTimer>

/// The beat at which a key that is held repeats. No timer runs but for such a key.
class KeyRepeat : public QObject
{
    Q_OBJECT

public:
    KeyRepeat();

    void setTiming(const RepeatTiming &timing) { timing_ = timing; }
    /// From a press on, in place of what repeated before.
    void start();
    void stop() { timer_.stop(); }
    bool isOn() const { return timer_.isActive(); }

Q_SIGNALS:
    void due();

private:
    RepeatTiming timing_;
    QTimer timer_;
};
