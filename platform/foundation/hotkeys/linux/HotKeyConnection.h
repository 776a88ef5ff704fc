#pragma once

#include "platform/foundation/hotkeys/linux/HotKeyGrabs.h"

#include <QString>
#include <deque>
#include <memory>
#include <optional>
#include <set>
#include <utility>
#include <vector>

/// What a connection for hot keys tells.
struct HotKeyInput
{
    enum class Kind { Press, KeyboardChanged } kind;
    KeyGrab press; ///< the key with its modifiers, lock keys included
};

/// A connection to the X server that grabs keys, and tells presses from repeats.
///
/// A held hot key would keep the whole keyboard grabbed, so the keyboard is let go as soon as the press has been told,
/// and the key's release is seen among the server's raw events. Those are asked for only while a hot key is down.
class HotKeyConnection
{
public:
    /// Null, with the reason, without an X server or one that cannot do this.
    static std::unique_ptr<HotKeyConnection> open(QString *failure);

    int fileDescriptor() const { return xcb_get_file_descriptor(connection_.get()); }
    bool isLost() const { return xcb_connection_has_error(connection_.get()) != 0; }

    std::optional<KeyboardMapping> readKeyboard();

    /// Grabs all on every screen, or none: false when another program holds one. One round trip when all goes well.
    bool grab(const std::vector<KeyGrab> &grabs);
    /// When it returns, others can have them.
    void ungrab(const std::vector<KeyGrab> &grabs);

    /// The next press or change of the keyboard; no value when there is none now. After a press, the next call lets
    /// the keyboard go.
    std::optional<HotKeyInput> nextInput();
    /// Whether something has come in, or been asked for, of which the socket tells no more.
    bool hasQueuedInput();
    /// Whether a change of the keyboard has come in that is still to be told.
    bool isKeyboardChangePending();

private:
    struct Event
    {
        enum class Kind { Press, Release, ModifiersChanged, KeyboardChanged } kind;
        KeyGrab key;
        quint32 sequence = 0; ///< of the last request that the server had handled before
    };
    /// A key that was down a moment ago; the server is asked whether it still is.
    struct DownKey
    {
        quint8 keycode;
        xcb_query_keymap_cookie_t asked;
    };
    struct GrabOnRoot
    {
        KeyGrab grab;
        xcb_window_t root;
    };
    /// The keys that are down.
    struct HeldKeys
    {
        FromServer<xcb_query_keymap_reply_t> keys;
        quint32 sequence; ///< of the request that asked

        bool contains(quint8 keycode) const { return keys && keys->keys[keycode / 8] & (1 << (keycode % 8)); }
    };

    explicit HotKeyConnection(XConnection connection) : connection_(std::move(connection)) { }
    bool startKeyboardEvents();
    bool startRawEvents();
    void watchReleases(bool watch);

    std::vector<GrabOnRoot> onEveryRoot(const std::vector<KeyGrab> &grabs) const;
    void ungrab(const std::vector<GrabOnRoot> &grabs);
    void wait();
    HeldKeys heldKeys(xcb_query_keymap_cookie_t asked);
    HeldKeys heldKeys() { return heldKeys(xcb_query_keymap(connection_.get())); }

    void take(xcb_generic_event_t *(*poll)(xcb_connection_t *));
    void take(const xcb_generic_event_t *event);
    void takeKeyboardEvent(const xcb_generic_event_t *event);
    bool isNewPress(quint8 keycode);
    void noteDown(quint8 keycode);
    void confirmDown();
    void noteRelease(quint8 keycode);
    void noteModifiers(quint16 modifiers);
    void noteHeldBefore(const std::vector<KeyGrab> &grabs, const HeldKeys &held);
    bool isPressPending(quint8 keycode, quint32 sequence) const;
    static bool isBefore(const Event &event, quint32 sequence);

    XConnection connection_;
    std::vector<xcb_window_t> roots_;
    quint8 firstKeyboardEvent_ = 0;
    quint8 rawEventExtension_ = 0;
    std::set<KeyGrab> grabbed_;
    std::deque<Event> events_;
    std::set<quint8> down_;
    std::optional<DownKey> unconfirmed_;
};
