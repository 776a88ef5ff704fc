#pragma once

#include "agent/keys/Keyboard.h"
#include "platform/foundation/keyboard/KeyboardMapping.h"
#include "platform/foundation/system/X11.h"

#include <QSocketNotifier>
#include <array>
#include <bitset>
#include <deque>
#include <utility>
#include <vector>

struct xcb_input_raw_key_press_event_t;

/// The X server's keyboard, on a connection of its own: raw events of other programs' grabs do not come to the
/// connection that holds the grab.
class XKeyboard : public Keyboard
{
    Q_OBJECT

public:
    ~XKeyboard() override = default;

    bool open() override;
    void watch(Events events) override;
    void catchUp(quint32 time) override;
    quint32 heldModifiers() override;
    bool isHeld(VirtualKeyCode keyCode) override;
    bool isAnythingHeldBut(quint32 modifiers) override;
    bool grab() override;
    bool isScreenTaken() override;
    void letGo() override;
    void ring() override;

private:
    using HeldKeys = std::bitset<256>;

    bool start();
    void readMappingIfDue();
    bool readMapping();
    void readDevicesIfDue();
    quint16 heldServerModifiers();
    HeldKeys heldKeys(xcb_query_keymap_cookie_t question);
    quint32 asModifiers(quint16 serverModifiers) const;
    KeyEvent keyEvent(quint8 keycode, quint32 time) const;

    void handleLater();
    void handleEvents();
    bool receive();
    void handleNext();
    bool isBefore(const xcb_generic_event_t *event, quint32 time) const;
    void handle(const xcb_generic_event_t *event);
    void handleKeyboardEvent(const xcb_generic_event_t *event);
    void handleInputEvent(const xcb_generic_event_t *event);
    void handleRawKey(const xcb_input_raw_key_press_event_t *event, bool isPress);
    void handleGrabbedKey(const xcb_key_press_event_t *event, bool isPress);
    void handleLoss();

    XConnection connection_;
    std::unique_ptr<QSocketNotifier> notifier_;
    std::deque<FromServer<xcb_generic_event_t>> received_; ///< and not handled yet
    xcb_window_t root_ = 0;
    quint8 firstKeyboardEvent_ = 0;
    quint8 inputExtension_ = 0;
    KeyboardMapping mapping_;
    std::array<quint16, 256> modifiersOfKeys_{}; ///< of the server, by keycode
    bool isMappingDue_ = false;
    std::vector<quint16> devices_; ///< what keys are pressed on; none when they are to be read
    HeldKeys down_; ///< while the keyboard is grabbed
    bool isGrabbed_ = false;
    bool isHandlingDue_ = false;
};
