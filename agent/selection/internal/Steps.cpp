#include "agent/selection/internal/Steps.h"

#include <array>
#include <iterator>
#include <tuple>

namespace {

enum class Side : quint8 { Beyond, Behind };
enum class Reach : quint8 {
    Row, ///< in the row's band
    OwnRow, ///< beside the selected window itself
    Clear, ///< wherever it does not reach back over the selected window
    Anywhere
};
enum class When : quint8 { Always, NotHeld, Wrapping };

struct Step
{
    Side side;
    Reach reach;
    When when;
};

/// The first that finds a window decides.
constexpr std::array<Step, 7> steps{{
    {Side::Beyond, Reach::Row, When::Always},
    {Side::Beyond, Reach::OwnRow, When::Always},
    {Side::Beyond, Reach::Clear, When::Always},
    {Side::Behind, Reach::Row, When::Wrapping},
    {Side::Behind, Reach::OwnRow, When::Wrapping},
    {Side::Beyond, Reach::Anywhere, When::NotHeld},
    {Side::Behind, Reach::Anywhere, When::Wrapping},
}};

struct Sides
{
    WindowList beyond;
    WindowList behind;
};

Sides sidesOf(const WindowList &others, const Standpoint &from)
{
    switch (from.movement) {
    case Movement::Left:
        return {windowsToLeft(others, from), windowsToRight(others, from)};
    case Movement::Right:
        return {windowsToRight(others, from), windowsToLeft(others, from)};
    case Movement::Up:
        return {windowsAbove(others, from), windowsBelow(others, from)};
    case Movement::Down:
        return {windowsBelow(others, from), windowsAbove(others, from)};
    case Movement::Under:
        break;
    }
    return {};
}

bool applies(const Step &step, const DirectionPress &press)
{
    switch (step.when) {
    case When::Always:
        return true;
    case When::NotHeld:
        return press.kind == MovementKind::Press;
    case When::Wrapping:
        return press.kind == MovementKind::Press && press.wraps;
    }
    return false;
}

bool isClear(const Span &window, const Span &selected, Movement movement)
{
    return isForward(movement) ? window.begin >= selected.end : window.end <= selected.begin;
}

bool isInReach(const WindowDescription &window, Reach reach, const Span &band, const Standpoint &from)
{
    const Axis axis = axisOf(from.movement);
    switch (reach) {
    case Reach::Row:
    case Reach::OwnRow:
        return spanAcross(window.windowRect, axis).overlaps(band);
    case Reach::Clear:
        return isClear(spanAlong(window.windowRect, axis), spanAlong(from.selected, axis), from.movement);
    case Reach::Anywhere:
        return true;
    }
    return false;
}

/// The least of a side is next beyond, or the furthest behind.
auto rankOf(const WindowDescription &window, const Span &band, const Standpoint &from)
{
    const Axis axis = axisOf(from.movement);
    const Span across = spanAcross(window.windowRect, axis);
    const OrderKey key = orderKey(window.windowRect, axis, from);
    return std::tuple(across.gapTo(band), isForward(from.movement) ? key : key.reversed(),
        std::abs(across.doubledCenter() - band.doubledCenter()), window.windowOrder, window.windowID);
}

const WindowDescription *windowByStep(const Step &step, const Sides &sides, const DirectionPress &press)
{
    const Standpoint &from = press.from;
    const Span band = step.reach == Reach::OwnRow ? spanAcross(from.selected, axisOf(from.movement)) : press.band;
    const WindowDescription *best = nullptr;
    for (const WindowDescription *window : step.side == Side::Beyond ? sides.beyond : sides.behind) {
        if (isInReach(*window, step.reach, band, from)
            && (!best || rankOf(*window, band, from) < rankOf(*best, band, from)))
            best = window;
    }
    return best;
}

/// Where all have an equal place on the axis, the key still leads from one to the next: by their places across it.
const WindowDescription *nextOfEqualPlace(
    const WindowList &others, const DirectionPress &press, const WindowDescription &selected)
{
    const Axis axis = axisOf(press.from.movement);
    const auto place = [axis](const WindowDescription &window, const QRect &rect) {
        return std::tuple(spanAcross(rect, axis).doubledCenter(), window.windowOrder, window.windowID);
    };
    const auto isSooner = [&place](const WindowDescription *one, const WindowDescription *other) {
        return place(*one, one->windowRect) < place(*other, other->windowRect);
    };
    WindowList round = others;
    std::sort(round.begin(), round.end(), isSooner);
    const auto next = std::find_if(round.begin(), round.end(), [&](const WindowDescription *window) {
        return place(*window, window->windowRect) > place(selected, press.from.selected);
    });
    if (isForward(press.from.movement))
        return next == round.end() ? round.front() : *next;
    return next == round.begin() ? round.back() : *std::prev(next);
}

} // namespace

const WindowDescription *windowByPress(
    const WindowList &others, const DirectionPress &press, const WindowDescription &selected)
{
    const Sides sides = sidesOf(others, press.from);
    for (const Step &step : steps) {
        const WindowDescription *window = applies(step, press) ? windowByStep(step, sides, press) : nullptr;
        if (window)
            return window;
    }
    const bool allAreEqual = !others.empty() && sides.beyond.empty() && sides.behind.empty();
    const bool goesRound = press.wraps && press.kind == MovementKind::Press;
    return allAreEqual && goesRound ? nextOfEqualPlace(others, press, selected) : nullptr;
}
