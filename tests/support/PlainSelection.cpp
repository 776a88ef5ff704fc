#include "PlainSelection.h"

namespace {

bool isSideways(Movement movement)
{
    return movement == Movement::Left || movement == Movement::Right;
}

bool isForwards(Movement movement)
{
    return movement == Movement::Right || movement == Movement::Down;
}

bool areOpposite(Movement one, Movement other)
{
    return one != other && isSideways(one) == isSideways(other);
}

/// Counted on the grid that the edges of all windows make within this one.
qint64 visiblePixels(const WindowWorld &world, const WindowDescription &window)
{
    std::set<int> xs, ys;
    for (const WindowDescription &any : world.windows) {
        const QRect part = any.windowRect & window.windowRect;
        if (part.isEmpty())
            continue;
        xs.insert({part.x(), part.x() + part.width()});
        ys.insert({part.y(), part.y() + part.height()});
    }
    const auto topmostAt = [&world](QPoint pixel) {
        return std::find_if(world.windows.begin(), world.windows.end(),
            [pixel](const WindowDescription &any) { return any.covers() && any.windowRect.contains(pixel); });
    };
    qint64 pixels = 0;
    for (auto x = xs.begin(); std::next(x) != xs.end(); ++x) {
        for (auto y = ys.begin(); std::next(y) != ys.end(); ++y) {
            if (&*topmostAt({*x, *y}) == &window)
                pixels += qint64(*std::next(x) - *x) * (*std::next(y) - *y);
        }
    }
    return pixels;
}

template <typename Measure>
void keepLeast(std::vector<const WindowDescription *> &windows, Measure measure)
{
    if (windows.empty())
        return;
    auto least = measure(windows.front());
    for (const auto *window : windows)
        least = std::min(least, measure(window));
    std::erase_if(windows, [&](const auto *window) { return measure(window) != least; });
}

} // namespace

PlainSelection::PlainSelection(const SelectionRules &rules, const WindowWorld &world, quint32 first)
    : rules_(rules), world_(world), first_(first), now_{.selected = first}
{
    for (const Window &window : world_.windows) {
        const qint64 area = qint64(window.windowRect.width()) * window.windowRect.height();
        const qint64 shown = !window.isCandidate() || !window.covers() ? 0 : visiblePixels(world_, window);
        if (shown > 0 && (shown >= 4096 || shown * 4 >= area))
            visible_.insert(window.windowID);
    }
}

QRect PlainSelection::rectOf(quint32 windowID) const
{
    return world_.window(windowID)->windowRect;
}

std::pair<int, int> PlainSelection::key(const QRect &rect, Movement movement) const
{
    const bool sideways = isSideways(movement);
    const auto begin = [sideways](const QRect &any) { return sideways ? any.x() : any.y(); };
    const auto end = [&](const QRect &any) { return begin(any) + (sideways ? any.width() : any.height()); };
    const int a = begin(rect), b = end(rect);
    switch (sideways ? rules_.horizontalOrder : rules_.verticalOrder) {
    case SortOrder::NearEdge:
        return {0, a};
    case SortOrder::FarEdge:
        return {0, b};
    case SortOrder::Center:
        return {0, a + b};
    case SortOrder::LeadingEdge:
        return {0, isForwards(movement) ? b : a};
    case SortOrder::FirstSelected:
        break;
    }
    const int firstA = begin(rectOf(first_)), firstB = end(rectOf(first_));
    if (a == firstA && b == firstB)
        return {0, 0};
    if (a + b != firstA + firstB)
        return a + b > firstA + firstB ? std::pair(1, a) : std::pair(-1, b);
    return a > firstA ? std::pair(1, a) : std::pair(-1, b);
}

PlainSelection::Windows PlainSelection::others() const
{
    Windows found;
    for (const Window &window : world_.windows) {
        if (window.windowID != now_.selected && isVisible(window.windowID))
            found.push_back(&window);
    }
    return found;
}

PlainSelection::Windows PlainSelection::onSide(Movement movement, bool beyond) const
{
    const auto here = key(rectOf(now_.selected), movement);
    Windows found = others();
    std::erase_if(found, [&](const Window *window) {
        const auto there = key(window->windowRect, movement);
        return there == here || (there > here) != (isForwards(movement) == beyond);
    });
    return found;
}

PlainSelection::Span PlainSelection::bandFor(Movement movement) const
{
    const char axis = isSideways(movement) ? 'h' : 'v';
    const QRect own = rectOf(now_.selected);
    if (now_.axis == axis)
        return now_.band;
    return axis == 'h' ? Span{own.y(), own.y() + own.height()} : Span{own.x(), own.x() + own.width()};
}

std::vector<quint32> PlainSelection::beyondInRow(Movement movement) const
{
    const Span band = bandFor(movement);
    std::vector<quint32> found;
    for (const Window *window : onSide(movement, true)) {
        const QRect &rect = window->windowRect;
        const int begin = isSideways(movement) ? rect.y() : rect.x();
        const int end = begin + (isSideways(movement) ? rect.height() : rect.width());
        if (std::min(end, band.end) - std::max(begin, band.begin) >= 1)
            found.push_back(window->windowID);
    }
    return found;
}

/// The least gap across, then first by the key, then the ties.
quint32 PlainSelection::best(Windows windows, Movement movement, Span band) const
{
    const auto across = [movement](const Window *window) {
        const QRect &rect = window->windowRect;
        return isSideways(movement) ? Span{rect.y(), rect.y() + rect.height()}
                                    : Span{rect.x(), rect.x() + rect.width()};
    };
    keepLeast(windows, [&](const Window *window) {
        const Span span = across(window);
        return span.begin >= band.end ? span.begin - band.end : span.end <= band.begin ? band.begin - span.end : 0;
    });
    keepLeast(windows, [&](const Window *window) {
        const auto there = key(window->windowRect, movement);
        return isForwards(movement) ? there : std::pair(-there.first, -there.second);
    });
    keepLeast(windows, [&](const Window *window) {
        return std::abs(across(window).begin + across(window).end - band.begin - band.end);
    });
    keepLeast(windows, [](const Window *window) { return window->windowOrder; });
    keepLeast(windows, [](const Window *window) { return window->windowID; });
    return windows.empty() ? 0 : windows.front()->windowID;
}

quint32 PlainSelection::byTheSteps(Movement movement, MovementKind kind) const
{
    const bool sideways = isSideways(movement);
    const QRect own = rectOf(now_.selected);
    const Span row = bandFor(movement);
    const Span beside = sideways ? Span{own.y(), own.y() + own.height()} : Span{own.x(), own.x() + own.width()};
    const auto inBand = [&](bool beyond, Span band) {
        Windows found = onSide(movement, beyond);
        std::erase_if(found, [&](const Window *window) {
            const QRect &rect = window->windowRect;
            return sideways ? rect.y() >= band.end || rect.y() + rect.height() <= band.begin
                            : rect.x() >= band.end || rect.x() + rect.width() <= band.begin;
        });
        return best(found, movement, band);
    };
    Windows clear = onSide(movement, true);
    std::erase_if(clear, [&](const Window *window) {
        const QRect &rect = window->windowRect;
        const bool isClear = movement == Movement::Right ? rect.left() > own.right()
            : movement == Movement::Left                 ? rect.right() < own.left()
            : movement == Movement::Down                 ? rect.top() > own.bottom()
                                                         : rect.bottom() < own.top();
        return !isClear;
    });
    for (const quint32 found : {inBand(true, row), inBand(true, beside), best(clear, movement, row)}) {
        if (found)
            return found;
    }
    if (kind == MovementKind::Repeat)
        return 0;
    const bool wraps = sideways ? rules_.wrapsHorizontally : rules_.wrapsVertically;
    if (const quint32 found = wraps ? inBand(false, row) : 0)
        return found;
    if (const quint32 found = wraps ? inBand(false, beside) : 0)
        return found;
    if (const quint32 found = best(onSide(movement, true), movement, row))
        return found;
    if (const quint32 found = wraps ? best(onSide(movement, false), movement, row) : 0)
        return found;
    return wraps ? nextOfEqual(movement) : 0;
}

quint32 PlainSelection::nextOfEqual(Movement movement) const
{
    Windows round = others();
    round.push_back(world_.window(now_.selected));
    const auto place = [movement](const Window *window) {
        const QRect &rect = window->windowRect;
        const int middle = isSideways(movement) ? 2 * rect.y() + rect.height() : 2 * rect.x() + rect.width();
        return std::tuple(middle, window->windowOrder, window->windowID);
    };
    std::sort(round.begin(), round.end(), [&](auto *one, auto *other) { return place(one) < place(other); });
    const auto here = std::size_t(std::find(round.begin(), round.end(), world_.window(now_.selected)) - round.begin());
    const std::size_t step = isForwards(movement) ? 1 : round.size() - 1;
    return round[(here + step) % round.size()]->windowID;
}

bool PlainSelection::nothingElseShows() const
{
    const QRect own = rectOf(now_.selected);
    for (const Window *window : others()) {
        const QRect &rect = window->windowRect;
        for (const int apart : {rect.left() - own.left(), rect.right() - own.right(), rect.top() - own.top(),
                 rect.bottom() - own.bottom()}) {
            if (apart > 32 || apart < -32)
                return false;
        }
    }
    return true;
}

void PlainSelection::walkRing(bool back)
{
    before_.clear();
    now_.axis = 0;
    if (ring_.empty()) {
        // One stack from the selected window down, then from the top; then the overlapping ones of it come first.
        const Window *top = world_.window(now_.selected);
        std::vector<const Window *> stack;
        for (const Window &window : world_.windows) {
            if (window.isCandidate())
                stack.push_back(&window);
        }
        std::rotate(stack.begin(), std::find(stack.begin(), stack.end(), top), stack.end());
        const auto isOnScreen = [](const Window *window) { return window->covers(); };
        const auto overlaps = [top](const Window *window) { return window->windowRect.intersects(top->windowRect); };
        const auto rest = std::stable_partition(stack.begin() + 1, stack.end(), isOnScreen);
        std::stable_partition(stack.begin() + 1, rest, overlaps);
        for (const Window *window : stack)
            ring_.push_back(window->windowID);
    }
    const auto here = std::size_t(std::find(ring_.begin(), ring_.end(), now_.selected) - ring_.begin());
    const std::size_t step = back != rules_.cyclesAscending ? ring_.size() - 1 : 1;
    now_.selected = ring_[(here + step) % ring_.size()];
}

bool PlainSelection::wouldReturn(Movement movement) const
{
    return !onRing_ && movement != Movement::Under && !before_.empty() && areOpposite(before_.back().second, movement);
}

quint32 PlainSelection::press(Movement movement, MovementKind kind)
{
    const bool isPress = kind == MovementKind::Press;
    if (isPress && wouldReturn(movement)) {
        now_ = before_.back().first;
        before_.pop_back();
        return now_.selected;
    }
    onRing_ = onRing_ || (isPress && movement != Movement::Under && nothingElseShows());
    if (movement == Movement::Under || onRing_) {
        walkRing(movement == Movement::Left || movement == Movement::Up);
        return now_.selected;
    }
    ring_.clear();
    const State before = now_;
    now_.band = bandFor(movement);
    now_.axis = isSideways(movement) ? 'h' : 'v';
    if (const quint32 next = byTheSteps(movement, kind)) {
        now_.selected = next;
        before_.emplace_back(before, movement);
    }
    return now_.selected;
}
