#pragma once

#include "agent/selection/Order.h"
#include "agent/selection/SelectionRules.h"
#include "agent/selection/VisibleWindows.h"
#include "agent/windows/WindowWorld.h"

#include <optional>

/// Whether a movement comes from a press, or from a key that is held.
enum class MovementKind : quint8 { Press, Repeat };

/// Which window is selected during one gesture, and the rule by which movement keys change that.
class Selection
{
public:
    explicit Selection(const SelectionRules &rules) : rules_(rules) { }

    /// Selects the active window, or the topmost one that can be selected; false where none can.
    bool begin(const WindowWorld &world);
    /// Moves in the world as it is now, in which windows may have come and gone; false where nothing is to move to.
    /// The selected window may be another one even then: see follow().
    bool move(Movement movement, MovementKind kind, const WindowWorld &world);
    /// Goes to a window by its label.
    void select(quint32 windowID);
    /// Lets go of windows that are gone. For the selected one steps in the window it was reached from, else the one
    /// selected first, else the topmost. Called where no movement follows, as after the selected one was closed.
    void follow(const WindowWorld &world);

    /// 0 before it began, and when no window is left.
    quint32 selected() const { return selected_; }

private:
    /// Presses in a row on one axis; the band is what the window where they began takes up across it.
    struct Run
    {
        Axis axis = Axis::Horizontal;
        Span band;
    };
    /// A move that its opposite takes back.
    struct Move
    {
        quint32 from = 0;
        Movement movement = Movement::Right;
        std::optional<Run> run; ///< what went on before
    };

    void forgetTheWay();
    void dropFromTrail(const WindowWorld &world);
    void replaceSelected(const WindowWorld &world);
    bool moveAlong(Movement direction, MovementKind kind, const WindowWorld &world);
    bool takeBack();
    bool moveOn(Movement direction, MovementKind kind, const WindowList &others, const WindowWorld &world);
    bool moveRound(Movement movement, const WindowWorld &world);
    void updateRing(const WindowWorld &world);

    SelectionRules rules_;
    quint32 selected_ = 0;
    quint32 first_ = 0; ///< the window selected first
    std::optional<Run> run_;
    QList<Move> trail_;
    QList<quint32> ring_; ///< in the order of Under; empty unless its presses go on
    bool staysOnRing_ = false; ///< the directions walk the ring too
};
