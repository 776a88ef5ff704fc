#pragma once

#include "platform/foundation/hotkeys/linux/HotKeyGrabs.h"

#include <QString>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

/// A connection to the X server that grabs keys, and tells of their presses.
///
/// A held hot key would keep the whole keyboard grabbed, so the keyboard is let go as soon as the press has been told,
/// and the key's release is seen among the server's raw events. Those are asked for only while a hot key is down. What
/// is a press, the tracker knows.
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
    /// Which of these sets nobody else holds anything of. Each is grabbed and given back, in one round trip for all.
    std::vector<bool> areFree(const std::vector<std::vector<KeyGrab>> &sets);
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
    struct GrabOnRoot
    {
        KeyGrab grab;
        xcb_window_t root;
    };

    explicit HotKeyConnection(XConnection connection) : connection_(std::move(connection)) { }
    bool startEvents();
    void watchReleases(bool watch);
    void carryOut(const std::vector<ServerOrder> &orders);
    void carryOut(ServerOrder order);

    std::vector<GrabOnRoot> onEveryRoot(const std::vector<KeyGrab> &grabs) const;
    void ungrab(const std::vector<GrabOnRoot> &grabs);
    std::vector<xcb_void_cookie_t> tryToGrab(const std::vector<KeyGrab> &grabs);
    bool isGranted(const xcb_void_cookie_t &request);
    void wait();

    void takeAnswer();
    void take(xcb_generic_event_t *(*poll)(xcb_connection_t *));
    void take(const xcb_generic_event_t *event);
    void takeKeyboardEvent(const xcb_generic_event_t *event);

    XConnection connection_;
    std::vector<xcb_window_t> roots_;
    quint8 firstKeyboardEvent_ = 0;
    quint8 rawEventExtension_ = 0;
    PressTracker tracker_;
    std::optional<xcb_query_keymap_cookie_t> asked_; ///< which keys are down
};
