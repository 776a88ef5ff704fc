#pragma once

#include "agent/selection/Selection.h"

#include <set>
#include <vector>

/// The rule of movement once more, told step by step and without any thought of speed, in a world that stays as it is.
class PlainSelection
{
public:
    PlainSelection(const SelectionRules &rules, const WindowWorld &world, quint32 first);

    /// The window that is selected then.
    quint32 press(Movement movement, MovementKind kind);

    quint32 selected() const { return now_.selected; }
    bool isVisible(quint32 windowID) const { return visible_.contains(windowID); }
    /// Whether a press now would take back the one before.
    bool wouldReturn(Movement movement) const;
    /// Whether the presses walk the ring for good.
    bool isOnRing() const { return onRing_; }
    /// The visible windows in the row that lie beyond.
    std::vector<quint32> beyondInRow(Movement movement) const;

private:
    using Window = WindowDescription;
    using Windows = std::vector<const Window *>;
    struct Span
    {
        int begin, end;
    };
    struct State
    {
        quint32 selected = 0;
        char axis = 0; ///< 'h' or 'v' while a row goes on
        Span band{0, 0};
    };

    QRect rectOf(quint32 windowID) const;
    std::pair<int, int> key(const QRect &rect, Movement movement) const;
    Windows others() const;
    Windows onSide(Movement movement, bool beyond) const;
    Span bandFor(Movement movement) const;
    quint32 byTheSteps(Movement movement, MovementKind kind) const;
    quint32 nextOfEqual(Movement movement) const;
    quint32 best(Windows windows, Movement movement, Span band) const;
    bool nothingElseShows() const;
    void walkRing(bool back);

    SelectionRules rules_;
    WindowWorld world_;
    quint32 first_ = 0;
    std::set<quint32> visible_;
    State now_;
    std::vector<std::pair<State, Movement>> before_; ///< with the movement that led on from there
    std::vector<quint32> ring_;
    bool onRing_ = false;
};
