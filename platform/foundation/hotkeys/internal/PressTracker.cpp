#include "platform/foundation/hotkeys/internal/PressTracker.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace {

using Kind = KeyboardEvent::Kind;

bool isBefore(const KeyboardEvent &event, quint32 sequence)
{
    return qint32(event.sequence - sequence) < 0;
}

} // namespace

void PressTracker::remove(const std::vector<KeyGrab> &grabs)
{
    for (const KeyGrab &grab : grabs)
        grabbed_.erase(grab);
}

void PressTracker::take(const KeyboardEvent &event)
{
    auto place = events_.cend();
    // From the back: the question is newer than most of what waits.
    while (event.kind == Kind::HeldKeysAnswered && place != events_.cbegin()
        && !isBefore(*std::prev(place), event.sequence))
        --place;
    events_.insert(place, event);
}

bool PressTracker::isAnswerNext() const
{
    return hasEvents() && events_.front().kind == Kind::HeldKeysAnswered;
}

bool PressTracker::isKeyboardChangePending() const
{
    return std::any_of(events_.cbegin(), events_.cend(),
        [](const KeyboardEvent &event) { return event.kind == Kind::KeyboardChanged; });
}

PressTracker::Step PressTracker::handleNext()
{
    const KeyboardEvent event = events_.front();
    events_.pop_front();
    switch (event.kind) {
    case Kind::Press:
        return handlePress(event.key, event.time);
    case Kind::Release:
        return {{}, handleRelease(event.key.keycode)};
    case Kind::ModifiersChanged:
        return {{}, handleModifiers(event.key.modifiers)};
    case Kind::HeldKeysAnswered:
        return {{}, handleAnswer(event.held)};
    case Kind::KeyboardChanged:
        break;
    }
    return {HotKeyInput{HotKeyInput::Kind::KeyboardChanged, {}, 0}, {}};
}

PressTracker::Step PressTracker::handlePress(const KeyGrab &press, quint32 time)
{
    // A repeat grabs the keyboard, too.
    if (down_.test(press.keycode))
        return {{}, {ServerOrder::LetKeyboardGo}};
    down_.set(press.keycode);
    std::vector<ServerOrder> orders = watchReleases();
    orders.push_back(ServerOrder::LetKeyboardGo);
    // What was released before releases were watched, by whoever had the keyboard then, is up in the answer.
    for (const ServerOrder order : askHeldKeys())
        orders.push_back(order);
    return {HotKeyInput{HotKeyInput::Kind::Press, press, time}, orders};
}

std::vector<ServerOrder> PressTracker::handleRelease(quint8 keycode)
{
    down_.reset(keycode);
    return ignoreReleasesIfNoneMatters();
}

/// A key that repeats becomes a hot key with the modifiers that are pressed while it is down. It is not pressed, then.
std::vector<ServerOrder> PressTracker::handleModifiers(quint16 modifiers)
{
    const bool makesHotKeys = std::any_of(
        grabbed_.cbegin(), grabbed_.cend(), [modifiers](const KeyGrab &grab) { return grab.modifiers == modifiers; });
    return makesHotKeys ? askHeldKeys() : std::vector<ServerOrder>();
}

/// By its turn all presses before it are known, so a grabbed key that is held besides them was not pressed as a hot
/// key.
std::vector<ServerOrder> PressTracker::handleAnswer(const HeldKeys &held)
{
    --questions_;
    for (const KeyGrab &grab : grabbed_)
        down_.set(grab.keycode);
    down_ &= held;
    return ignoreReleasesIfNoneMatters();
}

std::vector<ServerOrder> PressTracker::watchReleases()
{
    if (std::exchange(isWatching_, true))
        return {};
    return {ServerOrder::WatchReleases};
}

std::vector<ServerOrder> PressTracker::askHeldKeys()
{
    ++questions_;
    std::vector<ServerOrder> orders = watchReleases();
    orders.push_back(ServerOrder::AskHeldKeys);
    return orders;
}

std::vector<ServerOrder> PressTracker::ignoreReleasesIfNoneMatters()
{
    if (down_.any() || questions_ > 0 || !std::exchange(isWatching_, false))
        return {};
    return {ServerOrder::IgnoreReleases};
}
