#include "agent/selection/Selection.h"
#include "agent/selection/internal/Steps.h"

namespace {

constexpr int edgesThatLookAlike = 32;

bool isCandidate(const WindowWorld &world, quint32 windowID)
{
    const WindowDescription *window = world.window(windowID);
    return window && window->isCandidate();
}

/// The topmost one; what is minimised or off the screen only where nothing else is. 0 for none.
quint32 topmostCandidate(const WindowWorld &world)
{
    const WindowDescription *topmost = nullptr;
    for (const WindowDescription &window : world.windows) {
        if (window.isCandidate() && (!topmost || (!topmost->covers() && window.covers())))
            topmost = &window;
    }
    return topmost ? topmost->windowID : 0;
}

bool lookAlike(const QRect &one, const QRect &other)
{
    const auto isNear = [](int edge, int otherEdge) { return std::abs(edge - otherEdge) <= edgesThatLookAlike; };
    return isNear(one.left(), other.left()) && isNear(one.top(), other.top()) && isNear(one.right(), other.right())
        && isNear(one.bottom(), other.bottom());
}

/// No direction leads anywhere to the eye: at most windows that lie on one another as one.
bool nothingElseShows(const WindowList &others, const QRect &selected)
{
    return std::all_of(others.begin(), others.end(),
        [&selected](const WindowDescription *window) { return lookAlike(window->windowRect, selected); });
}

WindowList visibleWithout(quint32 windowID, const WindowWorld &world)
{
    WindowList visible = visibleWindows(world);
    std::erase_if(visible, [windowID](const WindowDescription *window) { return window->windowID == windowID; });
    return visible;
}

QRect placeOf(quint32 windowID, const WindowWorld &world)
{
    return placeOf(*world.window(windowID), world);
}

} // namespace

bool Selection::begin(const WindowWorld &world)
{
    *this = Selection(rules_);
    selected_ = isCandidate(world, world.activeWindow) ? world.activeWindow : topmostCandidate(world);
    first_ = selected_;
    return selected_ != 0;
}

bool Selection::move(Movement movement, MovementKind kind, const WindowWorld &world)
{
    follow(world);
    if (selected_ == 0)
        return false;
    return movement == Movement::Under || staysOnRing_ ? moveRound(movement, world) : moveAlong(movement, kind, world);
}

void Selection::select(quint32 windowID)
{
    forgetTheWay();
    ring_.clear();
    selected_ = windowID;
}

void Selection::follow(const WindowWorld &world)
{
    dropFromTrail(world);
    if (!isCandidate(world, selected_))
        replaceSelected(world);
    if (!isCandidate(world, first_))
        first_ = selected_;
}

void Selection::forgetTheWay()
{
    trail_.clear();
    run_.reset();
}

/// Also what would lead from a window to itself once those between are gone.
void Selection::dropFromTrail(const WindowWorld &world)
{
    quint32 next = isCandidate(world, selected_) ? selected_ : 0;
    for (qsizetype i = trail_.size() - 1; i >= 0; --i) {
        const quint32 from = trail_.at(i).from;
        if (from == next || !isCandidate(world, from))
            trail_.removeAt(i);
        else
            next = from;
    }
}

void Selection::replaceSelected(const WindowWorld &world)
{
    if (!trail_.isEmpty()) {
        takeBack();
        return;
    }
    run_.reset();
    selected_ = isCandidate(world, first_) ? first_ : topmostCandidate(world);
}

bool Selection::moveAlong(Movement direction, MovementKind kind, const WindowWorld &world)
{
    const bool isPress = kind == MovementKind::Press;
    if (isPress && !trail_.isEmpty() && trail_.last().movement == oppositeOf(direction))
        return takeBack();
    const WindowList others = visibleWithout(selected_, world);
    staysOnRing_ = isPress && nothingElseShows(others, placeOf(selected_, world));
    if (staysOnRing_)
        return moveRound(direction, world);
    ring_.clear();
    return moveOn(direction, kind, others, world);
}

bool Selection::takeBack()
{
    const Move last = trail_.takeLast();
    selected_ = last.from;
    run_ = last.run;
    return true;
}

bool Selection::moveOn(Movement direction, MovementKind kind, const WindowList &others, const WindowWorld &world)
{
    const Axis axis = axisOf(direction);
    const bool isHorizontal = axis == Axis::Horizontal;
    const std::optional<Run> before = run_;
    const QRect place = placeOf(selected_, world);
    if (!run_ || run_->axis != axis)
        run_ = {axis, spanAcross(place, axis)};
    const SortOrder order = isHorizontal ? rules_.horizontalOrder : rules_.verticalOrder;
    const bool wraps = isHorizontal ? rules_.wrapsHorizontally : rules_.wrapsVertically;
    const Standpoint from{place, placeOf(first_, world), order, direction};
    const WindowDescription *next = windowByPress(others, {from, run_->band, kind, wraps}, *world.window(selected_));
    if (!next)
        return false;
    trail_.append({selected_, direction, before});
    selected_ = next->windowID;
    return true;
}

bool Selection::moveRound(Movement movement, const WindowWorld &world)
{
    forgetTheWay();
    updateRing(world);
    const bool goesBack = movement == Movement::Left || movement == Movement::Up;
    const qsizetype step = goesBack == rules_.cyclesAscending ? 1 : -1;
    const qsizetype next = (ring_.indexOf(selected_) + step + ring_.size()) % ring_.size();
    const bool moves = ring_.at(next) != selected_;
    selected_ = ring_.at(next);
    return moves;
}

/// Lays one from the selected window where none is; in one that is there, windows that are new come last.
void Selection::updateRing(const WindowWorld &world)
{
    ring_.removeIf([&world](quint32 windowID) { return !isCandidate(world, windowID); });
    for (const WindowDescription *window : windowsUnderneath(world, selected_)) {
        if (!ring_.contains(window->windowID))
            ring_.append(window->windowID);
    }
}
