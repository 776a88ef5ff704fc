// What the server tells, and what becomes of it.

#include "agent/keys/x11/XKeyboard.h"

#include <algorithm>
#include <xcb/xinput.h>

namespace {

constexpr quint16 realModifiers = 0xff; // in a key event, buttons and the layout's group stand beside them
constexpr quint32 firstWheelButton = 4, lastWheelButton = 7;

} // namespace

/// What came in while an answer was waited for makes the socket readable no more.
void XKeyboard::handleLater()
{
    if (std::exchange(isHandlingDue_, true))
        return;
    const auto handle = [this] {
        isHandlingDue_ = false;
        handleEvents();
    };
    QMetaObject::invokeMethod(this, handle, Qt::QueuedConnection);
}

void XKeyboard::handleEvents()
{
    while (receive())
        handleNext();
}

void XKeyboard::catchUp(quint32 time)
{
    receive();
    const auto last = std::find_if(
        received_.crbegin(), received_.crend(), [&](const auto &event) { return isBefore(event.get(), time); });
    for (auto count = std::distance(last, received_.crend()); count > 0 && !received_.empty(); --count)
        handleNext();
    if (!received_.empty())
        handleLater();
}

void XKeyboard::handleNext()
{
    const auto event = std::move(received_.front());
    received_.pop_front();
    handle(event.get());
}

/// Whether there is an event to handle.
bool XKeyboard::receive()
{
    if (!connection_)
        return false;
    while (auto event = fromServer(xcb_poll_for_event(connection_.get())))
        received_.push_back(std::move(event));
    if (!xcb_connection_has_error(connection_.get()))
        return !received_.empty();
    handleLoss();
    return false;
}

/// In the same millisecond, modifiers go down before a key that is pressed with them, and up after it.
bool XKeyboard::isBefore(const xcb_generic_event_t *event, quint32 time) const
{
    const auto hasGone = [time](quint32 then, bool isRelease) {
        const auto since = qint32(time - then);
        return since > 0 || (since == 0 && !isRelease);
    };
    const quint8 type = event->response_type & eventTypeMask;
    if (type == XCB_KEY_PRESS || type == XCB_KEY_RELEASE)
        return hasGone(reinterpret_cast<const xcb_key_press_event_t *>(event)->time, type == XCB_KEY_RELEASE);
    if (type == XCB_GE_GENERIC) {
        const auto *raw = reinterpret_cast<const xcb_input_raw_key_press_event_t *>(event);
        return hasGone(raw->time, raw->event_type == XCB_INPUT_RAW_KEY_RELEASE);
    }
    if (type != firstKeyboardEvent_ || event->pad0 != XCB_XKB_STATE_NOTIFY)
        return true;
    const auto *state = reinterpret_cast<const xcb_xkb_state_notify_event_t *>(event);
    return hasGone(state->time, state->eventType == XCB_KEY_RELEASE);
}

void XKeyboard::handle(const xcb_generic_event_t *event)
{
    const quint8 type = event->response_type & eventTypeMask;
    if (type == XCB_KEY_PRESS || type == XCB_KEY_RELEASE)
        handleGrabbedKey(reinterpret_cast<const xcb_key_press_event_t *>(event), type == XCB_KEY_PRESS);
    else if (type == XCB_GE_GENERIC)
        handleInputEvent(event);
    else if (type == firstKeyboardEvent_)
        handleKeyboardEvent(event);
}

void XKeyboard::handleKeyboardEvent(const xcb_generic_event_t *event)
{
    if (event->pad0 != XCB_XKB_STATE_NOTIFY) {
        isMappingDue_ = true;
        return;
    }
    readMappingIfDue();
    const auto *state = reinterpret_cast<const xcb_xkb_state_notify_event_t *>(event);
    Q_EMIT modifiersChanged(asModifiers(state->baseMods), state->time);
}

void XKeyboard::handleInputEvent(const xcb_generic_event_t *event)
{
    const auto *raw = reinterpret_cast<const xcb_input_raw_key_press_event_t *>(event);
    if (raw->extension != inputExtension_)
        return;
    if (raw->event_type == XCB_INPUT_HIERARCHY) {
        devices_.clear();
        return;
    }
    // Each comes a second time, of the keyboard or pointer that unites the devices.
    if (raw->deviceid != raw->sourceid)
        return;
    if (raw->event_type == XCB_INPUT_RAW_BUTTON_PRESS)
        Q_EMIT buttonPressed(raw->detail >= firstWheelButton && raw->detail <= lastWheelButton, raw->time);
    else if (raw->event_type == XCB_INPUT_RAW_KEY_PRESS || raw->event_type == XCB_INPUT_RAW_KEY_RELEASE)
        handleRawKey(raw, raw->event_type == XCB_INPUT_RAW_KEY_PRESS);
}

KeyEvent XKeyboard::keyEvent(quint8 keycode, quint32 time) const
{
    const quint16 modifiers = modifiersOfKeys_[keycode];
    return {mapping_.keys.virtualKeyCodeOf(keycode), modifiers != 0, asModifiers(modifiers), 0, time};
}

void XKeyboard::handleRawKey(const xcb_input_raw_key_press_event_t *event, bool isPress)
{
    readMappingIfDue();
    const KeyEvent key = keyEvent(quint8(event->detail), event->time);
    if (!isPress)
        Q_EMIT keyReleased(key);
    // While the keyboard is grabbed, its presses come by that.
    else if (!isGrabbed_)
        Q_EMIT keyPressed(key);
}

void XKeyboard::handleGrabbedKey(const xcb_key_press_event_t *event, bool isPress)
{
    const bool wasDown = down_.test(event->detail);
    down_.set(event->detail, isPress);
    // One that is on its way when the keyboard is let go goes nowhere.
    if (!isGrabbed_ || (isPress && wasDown))
        return;
    readMappingIfDue();
    KeyEvent key = keyEvent(event->detail, event->time);
    key.held = asModifiers(event->state & realModifiers);
    if (isPress)
        Q_EMIT keyPressed(key);
    else
        Q_EMIT keyReleased(key);
}

void XKeyboard::handleLoss()
{
    // Later: the notifier may be the one that calls.
    notifier_->setEnabled(false);
    notifier_.release()->deleteLater();
    connection_ = nullptr;
    received_.clear();
    isGrabbed_ = false;
    devices_.clear();
    Q_EMIT lost();
}
