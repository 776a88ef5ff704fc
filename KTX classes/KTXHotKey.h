#pragma once

#include "platform/foundation/NSValue.h"
#include "platform/foundation/hotkeys/HotKeys.h"

#include <QString>
#include <atomic>
#include <memory>
#include <utility>
#include <vector>

/// Posted on the process's local centre when a hot key is pressed; the object is the KTXHotKey, as a pointer. The
/// keyboard is free once all observers have returned: open no window or menu before that.
inline const QString KTXHotKeyPressed = QStringLiteral("KTXHotKeyPressed");
/// Meant for that notification's user information, which is empty so far.
inline const QString KTXHotKeyInfo = QStringLiteral("KTXHotKeyInfo");

/// One system-wide hot key: a virtual key code with a mask of modifiers. Main thread only.
///
/// The class lists its hot keys, and the place in that list is the number by which the system names them. Removing any
/// but the last one leaves the numbers of those behind it wrong; so only the newest is to be removed.
class KTXHotKey
{
public:
    using List = std::vector<std::shared_ptr<KTXHotKey>>;

    /// "KTXk": whose hot keys these are, for the system.
    static constexpr quint32 signature = fourCharacterCode("KTXk");
    /// The number of the registration that only tries whether a combination is free.
    static constexpr quint32 probeID = 9999;

    /// Installs the handler and makes the list, once. Whatever is asked of the class first calls it.
    static void initialize();
    /// The hot keys that exist for the system to name; the list owns them.
    static List &assignedHotKeys();
    /// Throws AssertionFailure when the system takes no handler.
    static void setHotKeyHandler();
    /// Adds a hot key at the end of the list; it is not registered yet.
    static std::shared_ptr<KTXHotKey> createWithKeyCodeAndModifiers(VirtualKeyCode keyCode, quint32 modifiers);
    /// Whether the combination can be registered now. It is tried, so a hot key that has it already makes it taken.
    static bool isAvailableWithKeyCodeAndModifiers(VirtualKeyCode keyCode, quint32 modifiers);
    /// Unregisters all and empties the list.
    static void unregisterAllHotkeys();

    KTXHotKey();
    /// Lets the reference go, but leaves the combination registered.
    ~KTXHotKey() = default;
    KTXHotKey(const KTXHotKey &) = delete;
    KTXHotKey &operator=(const KTXHotKey &) = delete;
    bool init();

    VirtualKeyCode keycode() const { return keycode_; }
    void setKeycode(VirtualKeyCode keycode) { keycode_ = keycode; }
    quint32 modifiers() const { return modifiers_; }
    void setModifiers(quint32 modifiers) { modifiers_ = modifiers; }
    /// Kept for its owner; every registration is made without options.
    quint32 exclusive() const { return exclusive_; }
    void setExclusive(quint32 exclusive) { exclusive_ = exclusive; }
    bool keyWasPressed() const { return keyWasPressed_; }
    void setKeyWasPressed(bool wasPressed) { keyWasPressed_ = wasPressed; }
    bool keyWasReleased() const { return keyWasReleased_; }
    EventHotKeyID hotKeyID() const { return hotKeyID_; }
    void setHotKeyID(EventHotKeyID hotKeyID) { hotKeyID_ = hotKeyID; }
    /// Present exactly while the hot key is registered; absent from those listed once the X server has gone.
    std::shared_ptr<const NSValue> hotKeyRef() const { return hotKeyRef_.load(); }
    void setHotKeyRef(std::shared_ptr<const NSValue> hotKeyRef) { hotKeyRef_.store(std::move(hotKeyRef)); }

    /// Registers the combination, after giving up an earlier registration; the system's status, 0 for success.
    OSStatus registerAsHotKey();
    /// Harmless for a hot key that is not registered.
    void unregisterAsHotKey();
    bool isHotKeyRegistered() const { return hotKeyRef() != nullptr; }

    /// Removes what stands at this hot key's number. Throws std::out_of_range where nothing does.
    void removeFromAssignedHotKeys();

    /// Changes the combination and registers it where it is free, or in any case with `forceChanges`.
    ///
    /// Returns whether it was free; where it is the hot key's own already, whether it is registered. Refuses, and
    /// changes nothing, for no modifiers.
    bool setToKeyCodeWithModifiersForceChanges(VirtualKeyCode keyCode, quint32 modifiers, bool forceChanges);

    /// The modifiers' glyphs, and with description() the key's name after them.
    QString modifierGlyphs() const;
    QString description() const;

private:
    VirtualKeyCode keycode_;
    quint32 modifiers_ = 0;
    quint32 exclusive_ = 0;
    bool keyWasPressed_ = false;
    bool keyWasReleased_ = false;
    EventHotKeyID hotKeyID_;
    std::atomic<std::shared_ptr<const NSValue>> hotKeyRef_;
};

/// Posts KTXHotKeyPressed for the hot key that an event names. Throws std::out_of_range for a number that none has.
OSStatus KTXHotKeyHandler(EventHandlerCallRef nextHandler, EventRef event, void *userData);
