#pragma once

#include "platform/foundation/Export.h"

#include <QtGlobal>
#include <bitset>
#include <compare>
#include <deque>
#include <optional>
#include <set>
#include <vector>

/// One grab of the X server: a key with exactly these modifiers, lock keys included.
struct KeyGrab
{
    quint8 keycode = 0;
    quint16 modifiers = 0;

    std::strong_ordering operator<=>(const KeyGrab &) const = default; // NOLINT(modernize-use-nullptr)
};

/// What a connection for hot keys tells.
struct HotKeyInput
{
    enum class Kind { Press, KeyboardChanged } kind;
    KeyGrab press; ///< the key with its modifiers, lock keys included
    quint32 time = 0; ///< of the press, by the server's clock

    bool operator==(const HotKeyInput &) const = default;
};

/// Which keys are down, by their keycodes.
using HeldKeys = std::bitset<256>;

/// What the server tells of the keyboard.
struct KeyboardEvent
{
    enum class Kind { Press, Release, ModifiersChanged, KeyboardChanged, HeldKeysAnswered } kind;
    KeyGrab key; ///< the key pressed or released, with the modifiers then; of changed modifiers, those from then on
    /// Of the last request that the server had handled before; of an answer, that of its question.
    quint32 sequence = 0;
    HeldKeys held; ///< the answer
    quint32 time = 0; ///< of a press
};

/// What is to be asked of the server.
enum class ServerOrder {
    WatchReleases, ///< tell of every key's release from now on, whoever has the keyboard
    IgnoreReleases,
    LetKeyboardGo, ///< a press has grabbed it
    AskHeldKeys ///< answered by an event, before anything else is handled
};

/// Tells presses of grabbed keys from repeats, which come as presses too. It goes by the order in which the server did
/// things, and needs none to run.
///
/// A key that is down cannot be pressed. It is up again with its release, which the server tells of only while the
/// press has the keyboard grabbed, or while releases are watched. So they are watched before the keyboard is let go,
/// and before it is asked which keys are down: what is released after the answer is known to be, then.
class LM_FOUNDATION PressTracker
{
public:
    struct Step
    {
        std::optional<HotKeyInput> told;
        std::vector<ServerOrder> orders; ///< to be carried out in this order, after what is told
    };

    void add(const std::vector<KeyGrab> &grabs) { grabbed_.insert(grabs.cbegin(), grabs.cend()); }
    void remove(const std::vector<KeyGrab> &grabs);
    bool has(const KeyGrab &grab) const { return grabbed_.contains(grab); }
    /// To be carried out before new grabs are asked for: a key that is down by then is not pressed.
    std::vector<ServerOrder> prepareToGrab() { return askHeldKeys(); }

    /// Takes an event to be handled later. An answer goes behind what the server did before it got to the question.
    void take(const KeyboardEvent &event);
    bool hasEvents() const { return !events_.empty(); }
    bool isAnswerNext() const;
    bool isKeyboardChangePending() const;
    /// Handles the next event, of which there must be one.
    Step handleNext();

private:
    Step handlePress(const KeyGrab &press, quint32 time);
    std::vector<ServerOrder> handleRelease(quint8 keycode);
    std::vector<ServerOrder> handleModifiers(quint16 modifiers);
    std::vector<ServerOrder> handleAnswer(const HeldKeys &held);
    std::vector<ServerOrder> watchReleases();
    std::vector<ServerOrder> askHeldKeys();
    std::vector<ServerOrder> ignoreReleasesIfNoneMatters();

    std::set<KeyGrab> grabbed_;
    std::deque<KeyboardEvent> events_;
    HeldKeys down_; ///< of the grabbed keys those that are known to be
    int questions_ = 0; ///< whose answers are still to be handled
    bool isWatching_ = false;
};
