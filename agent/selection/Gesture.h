#pragma once

#include "agent/selection/Selection.h"

#include <QList>
#include <QtGlobal>

/// How a persistent selection is begun and ended.
struct GestureRules
{
    bool onlyByDoublePress = false; ///< no combination is taken from other programs; then every gesture is persistent
    bool persistentByDoublePress = true; ///< else by pressing the activation modifiers once
    bool toggles = false; ///< the way in is the way out

    bool operator==(const GestureRules &) const = default;
};

/// What happens to a gesture. Times are the display's, in milliseconds.
struct GestureEvent
{
    enum class Kind : quint8 {
        Movement, ///< a movement key, with what it leads to
        Repeat, ///< the same key held
        Command, ///< a movement that no key asks for
        Cancel,
        Snap,
        Digit, ///< a label's
        ModifiersReleased, ///< at least one of them
        ModifiersPressedOnce, ///< all of them and nothing else
        ModifiersPressedTwice,
        KeyboardRefused, ///< another program keeps it
        Interrupted, ///< another key, a click, a locked session, the agent's end, or nothing for too long
    };

    Kind kind = Kind::Interrupted;
    quint32 time = 0;
    Movement movement = Movement::Under;
    int digit = 0;
};

/// What is to be done about it.
enum class GestureStep : quint8 {
    Begin, ///< read the windows and select where the user is
    Move, ///< as the event says
    Choose, ///< the event's digit
    Show, ///< without having moved
    WatchModifiers, ///< until one of them is released
    WatchSession, ///< until its user leaves
    TakeKeyboard, ///< and watch the session; nothing begins where the screen is locked
    TellOfKeyboard, ///< that only the combinations work
    Accept, ///< turn to what is selected
    Drop, ///< end as if nothing had been
    GoBack ///< to the window before the last one that was accepted
};

/// The states of a gesture: from the first key to the window that the user turns to. Knows no window and no display.
class Gesture
{
public:
    enum class State : quint8 { Idle, Held, Persistent };

    explicit Gesture(const GestureRules &rules = {}) : rules_(rules) { }

    /// From the next gesture on.
    void setRules(const GestureRules &rules);
    /// Takes an event and tells what is to be done, in this order. A step that fails ends the rest; tell by end().
    QList<GestureStep> take(const GestureEvent &event);
    /// There is nothing to select, or it has gone.
    void end() { enter(State::Idle); }

    State state() const { return state_; }

private:
    QList<GestureStep> takeInIdle(const GestureEvent &event);
    QList<GestureStep> takeInGesture(const GestureEvent &event);
    QList<GestureStep> takeRefusal();
    bool isWayIn(const GestureEvent &event) const;
    void enter(State state);

    GestureRules rules_;
    GestureRules nextRules_ = rules_;
    State state_ = State::Idle;
    bool toldOfKeyboard_ = false;
};
