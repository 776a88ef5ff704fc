#include "agent/windows/x11/WindowAtoms.h"

#include <cstring>
#include <iterator>
#include <vector>

namespace {

const struct
{
    xcb_atom_t WindowAtoms::*atom;
    const char *name;
} names[]{
    {&WindowAtoms::utf8Text, "UTF8_STRING"},
    {&WindowAtoms::compoundText, "COMPOUND_TEXT"},
    {&WindowAtoms::supported, "_NET_SUPPORTED"},
    {&WindowAtoms::supportingManager, "_NET_SUPPORTING_WM_CHECK"},
    {&WindowAtoms::clientList, "_NET_CLIENT_LIST"},
    {&WindowAtoms::clientsByStack, "_NET_CLIENT_LIST_STACKING"},
    {&WindowAtoms::activeWindow, "_NET_ACTIVE_WINDOW"},
    {&WindowAtoms::currentDesktop, "_NET_CURRENT_DESKTOP"},
    {&WindowAtoms::windowType, "_NET_WM_WINDOW_TYPE"},
    {&WindowAtoms::windowState, "_NET_WM_STATE"},
    {&WindowAtoms::windowDesktop, "_NET_WM_DESKTOP"},
    {&WindowAtoms::windowPID, "_NET_WM_PID"},
    {&WindowAtoms::windowName, "_NET_WM_NAME"},
    {&WindowAtoms::frameExtents, "_NET_FRAME_EXTENTS"},
    {&WindowAtoms::shadowExtents, "_GTK_FRAME_EXTENTS"},
    {&WindowAtoms::stateHidden, "_NET_WM_STATE_HIDDEN"},
    {&WindowAtoms::stateShaded, "_NET_WM_STATE_SHADED"},
    {&WindowAtoms::stateModal, "_NET_WM_STATE_MODAL"},
    {&WindowAtoms::stateNotInTaskbar, "_NET_WM_STATE_SKIP_TASKBAR"},
    {&WindowAtoms::typeNormal, "_NET_WM_WINDOW_TYPE_NORMAL"},
    {&WindowAtoms::typeDialog, "_NET_WM_WINDOW_TYPE_DIALOG"},
    {&WindowAtoms::typeUtility, "_NET_WM_WINDOW_TYPE_UTILITY"},
    {&WindowAtoms::typeDesktop, "_NET_WM_WINDOW_TYPE_DESKTOP"},
    {&WindowAtoms::typeDock, "_NET_WM_WINDOW_TYPE_DOCK"},
    {&WindowAtoms::typeToolbar, "_NET_WM_WINDOW_TYPE_TOOLBAR"},
    {&WindowAtoms::typeMenu, "_NET_WM_WINDOW_TYPE_MENU"},
    {&WindowAtoms::typeDropdownMenu, "_NET_WM_WINDOW_TYPE_DROPDOWN_MENU"},
    {&WindowAtoms::typePopupMenu, "_NET_WM_WINDOW_TYPE_POPUP_MENU"},
    {&WindowAtoms::typeSplash, "_NET_WM_WINDOW_TYPE_SPLASH"},
    {&WindowAtoms::typeTooltip, "_NET_WM_WINDOW_TYPE_TOOLTIP"},
    {&WindowAtoms::typeNotification, "_NET_WM_WINDOW_TYPE_NOTIFICATION"},
    {&WindowAtoms::typeCombo, "_NET_WM_WINDOW_TYPE_COMBO"},
    {&WindowAtoms::typeDragged, "_NET_WM_WINDOW_TYPE_DND"},
};

static_assert(std::size(names) * sizeof(xcb_atom_t) == sizeof(WindowAtoms), "one has no name");

} // namespace

std::optional<WindowAtoms> windowAtoms(xcb_connection_t *server)
{
    std::vector<xcb_intern_atom_cookie_t> asked;
    for (const auto &[atom, name] : names)
        asked.push_back(xcb_intern_atom(server, false, quint16(std::strlen(name)), name));
    WindowAtoms atoms{};
    bool isComplete = true;
    for (size_t place = 0; place < asked.size(); ++place) {
        const auto reply = fromServer(xcb_intern_atom_reply(server, asked[place], nullptr));
        isComplete = isComplete && reply;
        atoms.*names[place].atom = reply ? reply->atom : xcb_atom_t(XCB_ATOM_NONE);
    }
    return isComplete ? std::optional(atoms) : std::nullopt;
}
