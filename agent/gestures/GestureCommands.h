#pragma once

#include "agent/gestures/Gestures.h"

/// What scripts do with windows. Each returns nothing when it is done, else why not: a clause without its full stop.
class GestureCommands
{
public:
    /// It outlives this.
    explicit GestureCommands(Gestures &gestures) : gestures_(gestures) { }

    /// One of movementNames(): begins a selection that stays, or goes on with the one that is on.
    QString move(const QString &name);
    /// Turns to what is selected.
    QString accept();
    /// Ends the selection as if nothing had been.
    QString cancel();

private:
    QString end(GestureEvent::Kind kind);

    Gestures &gestures_;
};

/// What movements are called on the command line.
const QStringList &movementNames();
