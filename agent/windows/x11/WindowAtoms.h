#pragma once

#include "platform/foundation/system/X11.h"

#include <optional>

/// The names of properties, of their types and of what they list, as this server numbers them.
struct WindowAtoms
{
    xcb_atom_t utf8Text, compoundText;

    xcb_atom_t supported, supportingManager, clientList, clientsByStack, activeWindow, currentDesktop;

    xcb_atom_t windowType, windowState, windowDesktop, windowPID, windowName;
    xcb_atom_t frameExtents, shadowExtents;

    xcb_atom_t stateHidden, stateShaded, stateModal, stateNotInTaskbar;

    xcb_atom_t typeNormal, typeDialog, typeUtility;
    xcb_atom_t typeDesktop, typeDock, typeToolbar, typeMenu, typeDropdownMenu, typePopupMenu, typeSplash, typeTooltip,
        typeNotification, typeCombo, typeDragged;
};

/// By one round trip; no value where the server does not answer.
std::optional<WindowAtoms> windowAtoms(xcb_connection_t *server);
