#pragma once

#include "agent/selection/SelectionRules.h"
#include "agent/windows/WindowWorld.h"

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
    bool move(Movement movement, MovementKind kind, const WindowWorld &world);
    /// Goes to a window by its label.
    void select(quint32 windowID);

    /// 0 before it began, and when no window is left.
    quint32 selected() const { return selected_; }

private:
    SelectionRules rules_;
    quint32 selected_ = 0;
};
