#pragma once

#include <QtGlobal>
#include <cstdlib>
#include <memory>
#include <xcb/xcb.h>

// The header is C's and names a member with a word of ours.
#define explicit explicitParts
#include <xcb/xkb.h>
#undef explicit

using XConnection = std::shared_ptr<xcb_connection_t>;

/// A reply, an event or an error, which is ours to free.
template <typename Type>
using FromServer = std::unique_ptr<Type, decltype(&std::free)>;

template <typename Type>
FromServer<Type> fromServer(Type *memory)
{
    return {memory, &std::free};
}

/// A connection of its own, and the number of the screen that is meant. One that failed is an object too: ask
/// xcb_connection_has_error().
inline XConnection connectToXServer(int *screen = nullptr)
{
    return {xcb_connect(nullptr, screen), &xcb_disconnect};
}

/// The part of an event's response_type that tells its kind.
inline constexpr quint8 eventTypeMask = 0x7f;
