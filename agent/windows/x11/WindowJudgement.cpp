#include "agent/windows/x11/WindowJudgement.h"

#include <iterator>

namespace {

constexpr quint32 onAllDesktops = 0xffffffff;

enum class Kind : quint8 {
    Normal, ///< left out where it asks task bars to
    Dialog, ///< may ask task bars to leave it out, and yet is one to turn to
    Apart ///< no window to turn to
};

const struct
{
    xcb_atom_t WindowAtoms::*type;
    Kind kind;
} kinds[]{
    {&WindowAtoms::typeNormal, Kind::Normal},
    {&WindowAtoms::typeUtility, Kind::Normal},
    {&WindowAtoms::typeDialog, Kind::Dialog},
    {&WindowAtoms::typeDesktop, Kind::Apart},
    {&WindowAtoms::typeDock, Kind::Apart},
    {&WindowAtoms::typeToolbar, Kind::Apart},
    {&WindowAtoms::typeMenu, Kind::Apart},
    {&WindowAtoms::typeDropdownMenu, Kind::Apart},
    {&WindowAtoms::typePopupMenu, Kind::Apart},
    {&WindowAtoms::typeSplash, Kind::Apart},
    {&WindowAtoms::typeTooltip, Kind::Apart},
    {&WindowAtoms::typeNotification, Kind::Apart},
    {&WindowAtoms::typeCombo, Kind::Apart},
    {&WindowAtoms::typeDragged, Kind::Apart},
};

/// By the first type that is known.
Kind kindOf(const WindowFacts &facts, const WindowAtoms &atoms)
{
    for (const quint32 type : facts.types) {
        const auto known =
            std::find_if(std::begin(kinds), std::end(kinds), [&](const auto &row) { return atoms.*row.type == type; });
        if (known != std::end(kinds))
            return known->kind;
    }
    return facts.isTransient ? Kind::Dialog : Kind::Normal;
}

bool isElsewhere(const WindowFacts &facts, const WindowSurroundings &surroundings)
{
    return facts.desktop && surroundings.currentDesktop && *facts.desktop != onAllDesktops
        && *facts.desktop != *surroundings.currentDesktop;
}

bool isShaded(const WindowFacts &facts, const WindowAtoms &atoms)
{
    return facts.states.contains(atoms.stateShaded);
}

/// A shaded window's content is hidden too, and some managers say so, but its title bar is there to turn to.
bool isMinimised(const WindowFacts &facts, const WindowAtoms &atoms)
{
    return facts.states.contains(atoms.stateHidden) && !isShaded(facts, atoms);
}

bool isExcluded(const ProgramClass &program, const QStringList &excluded)
{
    return excluded.contains(program.name, Qt::CaseInsensitive)
        || excluded.contains(program.instance, Qt::CaseInsensitive);
}

WindowIgnored ignoredBecause(const WindowFacts &facts, const WindowSurroundings &surroundings)
{
    const Kind kind = kindOf(facts, surroundings.atoms);
    if (isElsewhere(facts, surroundings))
        return WindowIgnored::OtherDesktop;
    if (kind == Kind::Apart)
        return WindowIgnored::Type;
    if (kind == Kind::Normal && facts.states.contains(surroundings.atoms.stateNotInTaskbar))
        return WindowIgnored::NotInTaskbar;
    if (isMinimised(facts, surroundings.atoms) && !surroundings.choice.showsHidden)
        return WindowIgnored::Minimised;
    if (isExcluded(facts.program, surroundings.choice.excludedApplications))
        return WindowIgnored::Program;
    return WindowIgnored::No;
}

/// Managers give a program that draws its own frame margins of nothing, so only real ones come before the shadow's.
QRect frameOf(const WindowFacts &facts)
{
    if (facts.holder)
        return *facts.holder;
    if (facts.frame && !facts.frame->isNull())
        return facts.content.marginsAdded(*facts.frame);
    const QRect inside = facts.shadow ? facts.content.marginsRemoved(*facts.shadow) : facts.content;
    return inside.isEmpty() ? facts.content : inside;
}

QRect withinMonitors(const QRect &rect, const QList<Monitor> &monitors)
{
    QRect seen;
    for (const Monitor &monitor : monitors)
        seen |= rect & monitor.rect;
    return seen;
}

} // namespace

bool needsHolder(const WindowFacts &facts, const WindowAtoms &atoms)
{
    return isShaded(facts, atoms) || (!facts.frame && !facts.shadow);
}

WindowDescription describe(const WindowFacts &facts, const WindowSurroundings &surroundings)
{
    WindowDescription window;
    window.windowID = facts.windowID;
    window.windowPID = facts.processID;
    window.windowName = facts.title;
    window.appName = facts.program.name.isEmpty() ? facts.program.instance : facts.program.name;
    window.frameRect = frameOf(facts);
    window.windowRect = withinMonitors(window.frameRect, surroundings.monitors);
    window.windowIsIgnored = ignoredBecause(facts, surroundings);
    window.isMinimised = isMinimised(facts, surroundings.atoms);
    return window;
}
