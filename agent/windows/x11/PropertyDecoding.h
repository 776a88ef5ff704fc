#pragma once

#include "platform/foundation/system/X11.h"

#include <QByteArrayView>
#include <QList>
#include <QMargins>
#include <QString>
#include <optional>

// What stands in a window's properties. Any program may write anything there, so each is taken only in the form that it
// is agreed to have, and within bounds. Bytes in, values out: nothing here asks the server.

/// A property as the server hands it out; its type is none where the window does not have it.
struct PropertyBytes
{
    xcb_atom_t type = XCB_ATOM_NONE;
    quint8 format = 0; ///< bits of an item: 8, 16 or 32
    QByteArrayView bytes;
};

/// Longer titles are cut.
inline constexpr qsizetype longestTitle = 1024;
/// In pixels; margins with a side beyond that count as absent.
inline constexpr quint32 widestMargin = 4096;

/// All items of a property with items of 32 bits; no value where it is absent or has another type.
std::optional<QList<quint32>> numbersOf(const PropertyBytes &property, xcb_atom_t type);

/// Its first item.
std::optional<quint32> numberOf(const PropertyBytes &property, xcb_atom_t type);

/// What stands around a window's content, or within it: left, right, top and bottom.
std::optional<QMargins> marginsOf(const PropertyBytes &property);

/// The types of texts besides Latin-1.
struct TextTypes
{
    xcb_atom_t utf8 = XCB_ATOM_NONE;
    xcb_atom_t compound = XCB_ATOM_NONE;
};

/// A title in one line, in whichever encoding its type tells. Empty where there is none, or none that can be read;
/// whole characters only.
QString titleOf(const PropertyBytes &property, const TextTypes &types);

/// Of a text that was cut: without a character's first bytes at the end, whose others were not asked for.
QByteArrayView withoutPartAtEnd(QByteArrayView utf8);

/// The window that leads the group of a window, by its hints (WM_HINTS).
std::optional<xcb_window_t> groupLeaderOf(const PropertyBytes &hints);

/// A program's name for the window, and its class.
struct ProgramClass
{
    QString instance;
    QString name;

    bool operator==(const ProgramClass &) const = default;
};
ProgramClass programClassOf(const PropertyBytes &property);

/// The text size that the user has chosen for the whole display, among the display's preferences.
std::optional<double> dotsPerInchOf(const PropertyBytes &preferences);
