#pragma once

#include "platform/foundation/linux/HotKeyGrabs.h"

#include <deque>
#include <optional>
#include <set>
#include <vector>

/// What a connection for hot keys tells.
struct HotKeyInput
{
    enum class Kind { Press, Release, KeyboardChanged } kind;
    quint8 keycode = 0;
    quint16 modifiers = 0; ///< those of the press, lock keys included
};

/// A connection to the X server that grabs keys, and tells presses from repeats.
///
/// A held hot key would keep the whole keyboard grabbed, so the keyboard is let go at once, and the key's release is
/// seen among the server's raw events. Those are asked for only while a hot key is down.
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

    /// The next press or change of the keyboard; no value when there is none now. At a press the keyboard is free
    /// again.
    std::optional<HotKeyInput> nextInput();
    /// Whether something has come in while an answer was waited for.
    bool hasQueuedInput() const { return !queue_.empty(); }

private:
    struct Request
    {
        xcb_window_t root;
        KeyGrab grab;
        xcb_void_cookie_t cookie;
    };
    using HeldKeys = FromServer<xcb_query_keymap_reply_t>;

    explicit HotKeyConnection(XConnection connection) : connection_(std::move(connection)) { }
    bool startKeyboardEvents();
    bool startRawEvents();
    void watchReleases(bool watch);
    HeldKeys heldKeys();
    void handleGrabbedWhileHeld(const std::vector<KeyGrab> &grabs, const HeldKeys &held);
    void ungrab(const std::vector<Request> &requests);

    void takeQueuedEvents();
    void take(const xcb_generic_event_t *event);
    bool handlePress(quint8 keycode);
    void handleRelease(quint8 keycode);

    XConnection connection_;
    std::vector<xcb_window_t> roots_;
    quint8 firstKeyboardEvent_ = 0;
    quint8 rawEventExtension_ = 0;
    std::deque<HotKeyInput> queue_;
    std::set<quint8> down_;
};
