#pragma once

#include "platform/foundation/Export.h"
#include "platform/foundation/OSStatus.h"
#include "platform/foundation/keyboard/VirtualKeyCodes.h"

#include <QList>
#include <QString>
#include <QtGlobal>

// System-wide hot keys: key combinations that reach this process whatever program has the focus. Main thread only;
// presses are delivered by the run loop.
//
// Behind them stand passive grabs of the X server. They answer a press only: no release, no auto-repeat, and whatever
// Caps Lock, Num Lock, Scroll Lock and the layout's group are. They follow the keyboard when its layout or its
// modifiers change; LMHotKeyStatus() tells which one the keyboard cannot give any more. While another program holds the
// whole keyboard (an open menu, a locked screen) no press comes.
//
// A press grabs the whole keyboard for a moment: it is free again when the handlers have returned. What takes the
// keyboard or shows a window belongs into a deferred call. From then on a key that is held longer than its modifiers
// types into the program with the focus.
//
// When the X server goes, every registration is gone with it: one line is logged, LMHotKeysDidGo is posted, and the
// references are stale.

inline constexpr OSStatus eventInternalErr = -9868; ///< this session gives no hot keys; a logged line says why
inline constexpr OSStatus eventHandlerAlreadyInstalledErr = -9866;
inline constexpr OSStatus eventParameterNotFoundErr = -9870;
inline constexpr OSStatus eventNotHandledErr = -9874; ///< a handler's answer: the next handler may have the event
inline constexpr OSStatus eventHotKeyExistsErr = -9878; ///< this process or another program holds the combination
inline constexpr OSStatus eventHotKeyInvalidErr = -9879; ///< no such registration, or no longer

/// Posted on the process's local centre, without object, when the X server has gone and all registrations with it.
inline const QString LMHotKeysDidGo = QStringLiteral("LMHotKeysDidGo");

/// Posted there, without object, when the keyboard has changed, and with it perhaps what LMHotKeyStatus() tells and
/// what can be registered.
inline const QString LMHotKeysDidChange = QStringLiteral("LMHotKeysDidChange");

/// Four characters as a number, the first one highest.
constexpr quint32 fourCharacterCode(const char (&characters)[5])
{
    quint32 code = 0;
    for (int place = 0; place < 4; ++place)
        code = code << 8 | quint8(characters[place]);
    return code;
}

inline constexpr quint32 cmdKey = 0x100; ///< Super
inline constexpr quint32 shiftKey = 0x200;
inline constexpr quint32 optionKey = 0x800; ///< Alt (or Meta, where no key is Alt)
inline constexpr quint32 controlKey = 0x1000;

inline constexpr quint32 kEventClassKeyboard = fourCharacterCode("keyb");
inline constexpr quint32 kEventHotKeyPressed = 5;
inline constexpr quint32 kEventParamDirectObject = fourCharacterCode("----");
inline constexpr quint32 typeEventHotKeyID = fourCharacterCode("hkid");

/// Both options mean the same here: on this desktop every registration is exclusive.
inline constexpr quint32 kEventHotKeyNoOptions = 0;
inline constexpr quint32 kEventHotKeyExclusive = 1;

/// What its owner calls a hot key; the system only hands it back.
struct EventHotKeyID
{
    quint32 signature = 0; ///< a four-character code
    quint32 id = 0;

    bool operator==(const EventHotKeyID &) const = default;
};

struct EventTypeSpec
{
    quint32 eventClass = 0;
    quint32 eventKind = 0;
};

/// A registration. No value is used twice, so a stale one is known for what it is.
using EventHotKeyRef = struct OpaqueEventHotKeyRef *;
using EventTargetRef = struct OpaqueEventTargetRef *;
using EventHandlerRef = struct OpaqueEventHandlerRef *;
using EventHandlerCallRef = struct OpaqueEventHandlerCallRef *;
using EventRef = const struct OpaqueEventRef *; ///< valid during the handler's call only

/// Called for an event of the types it was installed for. noErr ends the event's way, and so does any other status but
/// eventNotHandledErr. What it throws is logged.
using EventHandlerUPP = OSStatus (*)(EventHandlerCallRef nextHandler, EventRef event, void *userData);

/// Where the events of this process that belong to no window arrive; never null.
LM_FOUNDATION EventTargetRef GetApplicationEventTarget();

/// Installs a handler; those installed later are asked first. `handlerRef` may be null.
///
/// Returns eventHandlerAlreadyInstalledErr for a handler that the target has already, and paramErr for an unknown
/// target, no handler or no event types.
LM_FOUNDATION OSStatus InstallEventHandler(EventTargetRef target, EventHandlerUPP handler, quint64 typeCount,
    const EventTypeSpec *types, void *userData, EventHandlerRef *handlerRef);

/// Copies a parameter of an event to `buffer`: of a hot key press, the EventHotKeyID as kEventParamDirectObject.
///
/// `actualType` and `actualSize` (in bytes) may be null. Returns eventParameterNotFoundErr where the event has no such
/// parameter of that type, and paramErr for no event, no buffer or one that is too small.
LM_FOUNDATION OSStatus GetEventParameter(EventRef event, quint32 name, quint32 desiredType, quint32 *actualType,
    quint64 bufferSize, quint64 *actualSize, void *buffer);

/// The display's time of the event that the handlers are called for, in milliseconds; 0 outside of their calls. With it
/// a window manager tells what was asked for last.
LM_FOUNDATION quint32 LMCurrentEventTime();

/// Registers a hot key: a virtual key code with a mask of the modifiers above, which may be 0.
///
/// Returns eventHotKeyExistsErr where this process has registered the combination already, or another program holds it
/// or a part of it (with a lock key, on one of the screens); paramErr for other modifiers, options or targets, for no
/// place for the reference, and for a key or modifier that the keyboard does not have; eventInternalErr where there are
/// no hot keys: without an X server, and in a Wayland session, which does not let programs see other programs' keys.
/// Only with noErr is `hotKeyRef` written to.
LM_FOUNDATION OSStatus RegisterEventHotKey(VirtualKeyCode keyCode, quint32 modifiers, EventHotKeyID hotKeyID,
    EventTargetRef target, quint32 options, EventHotKeyRef *hotKeyRef);

/// Whether a registration works now: noErr; paramErr while the changed keyboard lacks its key or modifier;
/// eventHotKeyExistsErr while, since such a change, another registration or program has the combination. In both cases
/// it is tried again with the next change. eventHotKeyInvalidErr for a null or stale reference.
LM_FOUNDATION OSStatus LMHotKeyStatus(EventHotKeyRef hotKeyRef);

/// Those of these masks of modifiers with which no other program holds any of the keys, in their order.
///
/// They are tried, all at once, which takes one round trip and holds them no longer than that. Empty where there are no
/// hot keys; a mask with a modifier that the keyboard does not have, or with which it lacks a key, is not free.
LM_FOUNDATION QList<quint32> LMFreeHotKeyModifiers(
    const QList<VirtualKeyCode> &keyCodes, const QList<quint32> &modifiers);

/// Gives a combination back; when it returns, other programs can have it.
///
/// Returns eventHotKeyInvalidErr, and does nothing, for a null or stale reference.
LM_FOUNDATION OSStatus UnregisterEventHotKey(EventHotKeyRef hotKeyRef);
