// How a gesture ends: the window that is turned to, and what is told where that does not come.

#include "agent/gestures/Gestures.h"

#include <chrono>

using namespace std::chrono_literals;

namespace {

/// Windows that take longer come to the front without their mark.
constexpr auto longestFarewell = 50ms;

} // namespace

void Gestures::accept(quint32 time)
{
    const quint32 selected = run_->selection.selected();
    if (closing_.contains(selected)) {
        Q_EMIT cancelled();
        return;
    }
    before_ = {run_->origin, title(run_->origin)};
    turnedTo_ = {selected, title(selected)};
    windows_.activate(selected, time);
    farewell_.start(longestFarewell);
    Q_EMIT accepted(title(selected));
}

void Gestures::goBack(quint32 time)
{
    if (before_.windowID == 0)
        return;
    turnedTo_ = before_;
    windows_.activate(before_.windowID, time);
}

/// Nothing of a gesture stays behind.
void Gestures::finish()
{
    labels_.stop();
    limit_.stop();
    // The display takes a while to draw what was below it, and the window would have to wait for that.
    if (!farewell_.isActive())
        overlay_.hideOverlay();
    windows_.expectActivation(false);
    keys_.end();
    session_.end();
    if (!run_)
        return;
    run_.reset();
    Q_EMIT over();
}

/// Of the gesture before.
void Gestures::takeMarkAway()
{
    if (!farewell_.isActive())
        return;
    farewell_.stop();
    overlay_.hideOverlay();
}

void Gestures::tellOfWindow(quint32 windowID, bool hasClosed)
{
    using RefusalKind = GestureRefusal::Kind;
    takeMarkAway();
    const QString title = windowID == turnedTo_.windowID ? turnedTo_.title : QString();
    Q_EMIT refused({hasClosed ? RefusalKind::Closed : RefusalKind::NotActivated, title});
}
