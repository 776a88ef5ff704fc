#include "agent/selection/Gesture.h"

#include <utility>

using Kind = GestureEvent::Kind;
using enum GestureStep;

void Gesture::setRules(const GestureRules &rules)
{
    nextRules_ = rules;
    if (state_ == State::Idle)
        rules_ = rules;
}

QList<GestureStep> Gesture::take(const GestureEvent &event)
{
    return state_ == State::Idle ? takeInIdle(event) : takeInGesture(event);
}

QList<GestureStep> Gesture::takeInIdle(const GestureEvent &event)
{
    if (event.kind == Kind::Snap)
        return {GoBack};
    if (event.kind == Kind::Command) {
        enter(State::Persistent);
        return {Begin, Move, WatchSession};
    }
    if (event.kind == Kind::Movement && !rules_.onlyByDoublePress) {
        enter(State::Held);
        return {Begin, Move, WatchModifiers, WatchSession};
    }
    if (!isWayIn(event))
        return {};
    enter(State::Persistent);
    return {Begin, TakeKeyboard, Show};
}

QList<GestureStep> Gesture::takeInGesture(const GestureEvent &event)
{
    const auto endWith = [this](QList<GestureStep> steps) {
        enter(State::Idle);
        return steps;
    };
    switch (event.kind) {
    case Kind::Movement:
    case Kind::Repeat:
    case Kind::Command:
        return {Move};
    case Kind::Digit:
        return endWith({Choose, Accept});
    case Kind::Snap:
        return endWith({Accept});
    case Kind::Cancel:
    case Kind::Interrupted:
        return endWith({Drop});
    case Kind::ModifiersReleased:
        return state_ == State::Held ? endWith({Accept}) : QList<GestureStep>();
    case Kind::ModifiersPressedOnce:
    case Kind::ModifiersPressedTwice:
        return rules_.toggles && isWayIn(event) ? endWith({Accept}) : QList<GestureStep>();
    case Kind::KeyboardRefused:
        return takeRefusal();
    }
    return {};
}

/// Without the keyboard the combinations go on working, where there are any.
QList<GestureStep> Gesture::takeRefusal()
{
    if (rules_.onlyByDoublePress) {
        enter(State::Idle);
        return {Drop};
    }
    return std::exchange(toldOfKeyboard_, true) ? QList<GestureStep>() : QList<GestureStep>{TellOfKeyboard};
}

bool Gesture::isWayIn(const GestureEvent &event) const
{
    const bool isByDoublePress = rules_.persistentByDoublePress || rules_.onlyByDoublePress;
    return event.kind == (isByDoublePress ? Kind::ModifiersPressedTwice : Kind::ModifiersPressedOnce);
}

void Gesture::enter(State state)
{
    state_ = state;
    if (state == State::Idle)
        rules_ = nextRules_;
}
