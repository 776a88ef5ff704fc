#pragma once

#include "agent/windows/x11/PropertyRequest.h"
#include "agent/windows/x11/WindowAtoms.h"
#include "agent/windows/x11/WindowFacts.h"

#include <array>

/// Reads one window; several together take one round trip, as they ask when they are made.
class ClientReading
{
public:
    ClientReading(xcb_connection_t *server, const WindowAtoms &atoms, xcb_window_t root, xcb_window_t window);

    /// Waits for the answers; to be called once. No value where the window has gone.
    std::optional<WindowFacts> take(const WindowAtoms &atoms);

private:
    enum Property { Type, State, Desktop, Frame, Shadow, ProcessID, Class, Name, OldName, Transient, PropertyCount };
    struct Request
    {
        xcb_atom_t property;
        quint32 units; ///< of 4 bytes
    };
    static std::array<Request, PropertyCount> requests(const WindowAtoms &atoms);

    xcb_connection_t *server_;
    xcb_window_t window_;
    xcb_get_geometry_cookie_t geometry_;
    xcb_translate_coordinates_cookie_t position_;
    std::array<xcb_get_property_cookie_t, PropertyCount> properties_{};
};
