#pragma once

#include "agent/keys/Keyboard.h"

#include <QTimer>
#include <chrono>

/// What the keyboard is to tell. More is asked for at once, less only after a while: with many windows the display
/// takes long for either, and what is told besides is told to nobody.
class KeyboardWatch
{
public:
    /// By then a window that was turned to is there.
    static constexpr std::chrono::milliseconds calmDelay{150};

    explicit KeyboardWatch(Keyboard &keyboard);

    void setEvents(Keyboard::Events events);
    /// The display has gone: nothing is told any more.
    void forget();

private:
    void tell();

    Keyboard &keyboard_;
    Keyboard::Events wanted_;
    Keyboard::Events told_;
    QTimer calm_; ///< runs while more is told than is wanted
};
