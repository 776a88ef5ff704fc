// What begins, changes and ends a selection without a key.

#include "agent/gestures/Gestures.h"

void Gestures::cancel()
{
    interrupt(0);
    takeMarkAway();
}

void Gestures::command(GestureEvent event)
{
    // The screen may have been locked since it began.
    if (isOn() && !run_->takesKeys && event.kind != GestureEvent::Kind::Cancel && isScreenTaken()) {
        cancel();
        Q_EMIT refused({GestureRefusal::Kind::ScreenTaken});
        return;
    }
    event.time = windows_.time();
    take(event);
}

/// A key comes from nobody while the screen is locked; a command does.
bool Gestures::mayBegin()
{
    if (run_->takesKeys || !isScreenTaken())
        return true;
    Q_EMIT refused({GestureRefusal::Kind::ScreenTaken});
    return false;
}

/// No key waits for a command.
void Gestures::watchSession(const GestureEvent &event)
{
    if (event.kind == GestureEvent::Kind::Command)
        session_.begin();
    else
        session_.beginSoon();
}

void Gestures::stay()
{
    if (isOn())
        limit_.start();
}

void Gestures::select(quint32 windowID)
{
    if (!isOn())
        return;
    const quint32 before = selected();
    run_->selection.select(windowID);
    endUnless(read() && showSelected(before));
}

void Gestures::followWindows()
{
    if (!isOn())
        return;
    const quint32 before = selected();
    const bool isRead = read();
    if (isRead)
        run_->selection.follow(run_->world);
    endUnless(isRead && showSelected(before));
}

void Gestures::endUnless(bool goesOn)
{
    if (goesOn) {
        run_->isCurrent = false;
        return;
    }
    gesture_.end();
    finish();
}
