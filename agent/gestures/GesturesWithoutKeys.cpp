// What begins, changes and ends a selection without a key.

#include "agent/gestures/Gestures.h"

void Gestures::cancel()
{
    interrupt(0);
    takeMarkAway();
}

void Gestures::command(GestureEvent event)
{
    event.time = windows_.time();
    take(event);
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
