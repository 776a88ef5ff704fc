#pragma once

#include "platform/foundation/keyboard/VirtualKeyCodes.h"

#include <QFlags>
#include <QObject>
#include <memory>
#include <optional>

/// A key that goes down or up.
struct KeyEvent
{
    std::optional<VirtualKeyCode> keyCode; ///< nothing for a key that has none
    bool isModifier = false; ///< also a lock key, or one of no modifier that hot keys know
    quint32 modifier = 0; ///< which modifiers of hot keys it is one of
    quint32 held = 0; ///< with which of those, latched and locked ones included; only while the keyboard is grabbed
    quint32 time = 0;
};

/// What the desktop tells of its keyboard besides hot keys, and the keyboard itself for those who take it. Modifiers
/// are masks of those that hot keys know; times are the display's, in milliseconds.
///
/// At rest only a modifier key wakes it up.
class Keyboard : public QObject
{
    Q_OBJECT

public:
    enum Event : quint8 { KeyPresses = 1, KeyReleases = 2, Buttons = 4 };
    Q_DECLARE_FLAGS(Events, Event)

    /// Connects to the display where it is not connected; false where that cannot be done.
    virtual bool open() = 0;

    /// Tells of these from now on, whoever has the keyboard, and of no others.
    virtual void watch(Events events) = 0;

    /// Tells now what was before this time. Hot keys come another way, and a press may overtake what was before it.
    virtual void catchUp(quint32 time) = 0;

    // Each of these asks the display, in one or two round trips. Without it nothing is held.

    /// The modifiers that are physically held.
    virtual quint32 heldModifiers() = 0;
    virtual bool isHeld(VirtualKeyCode keyCode) = 0;
    /// Whether any key is held that is none of these modifiers', or any button of the mouse.
    virtual bool isAnythingHeldBut(quint32 modifiers) = 0;

    /// Takes the whole keyboard: each press and release comes here, and to nobody else. False while another program has
    /// it. One round trip.
    virtual bool grab() = 0;
    /// Whether another program has keyboard and mouse to itself: it locks the screen, or has a menu open. Neither is
    /// touched. One round trip.
    virtual bool isScreenTaken() = 0;
    /// Harmless when it is not grabbed.
    virtual void letGo() = 0;

    /// Rings its bell, as loud as its user has set it.
    virtual void ring() = 0;

Q_SIGNALS:
    /// Those that are held from now on.
    void modifiersChanged(quint32 held, quint32 time);
    /// Repeats are none.
    void keyPressed(const KeyEvent &key);
    /// Also while another program holds up all keys; perhaps told twice.
    void keyReleased(const KeyEvent &key);
    /// `isWheel` for a turn of the wheel, which comes as a button too.
    void buttonPressed(bool isWheel, quint32 time);
    /// The display has gone. Everything was given back.
    void lost();
};

Q_DECLARE_OPERATORS_FOR_FLAGS(Keyboard::Events)

/// The keyboard of this session; never null. It is not open yet.
std::unique_ptr<Keyboard> keyboard();
