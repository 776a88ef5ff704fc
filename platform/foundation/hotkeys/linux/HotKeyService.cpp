#include "platform/foundation/hotkeys/linux/HotKeyService.h"

#include "platform/foundation/hotkeys/internal/HotKeyEvents.h"
#include "platform/foundation/notifications/NSNotificationCenter.h"
#include "platform/foundation/system/NSLog.h"

#include <algorithm>
#include <set>
#include <utility>

namespace {

// Switching between keyboards sends changes in numbers, mostly with nothing changed.
constexpr int renewalDelay = 20; // milliseconds

bool overlap(const std::vector<KeyGrab> &left, const std::vector<KeyGrab> &right)
{
    return std::find_first_of(left.cbegin(), left.cend(), right.cbegin(), right.cend()) != left.cend();
}

/// Of several keys; empty where one of them cannot be had.
std::vector<KeyGrab> grabsOfAll(
    const QList<VirtualKeyCode> &keyCodes, quint32 modifiers, const KeyboardMapping &keyboard)
{
    std::vector<KeyGrab> all;
    for (const VirtualKeyCode keyCode : keyCodes) {
        const std::vector<KeyGrab> grabs = grabsOf(keyCode, modifiers, keyboard);
        if (grabs.empty())
            return {};
        all.insert(all.end(), grabs.cbegin(), grabs.cend());
    }
    return all;
}

void postChange()
{
    NSNotificationCenter::defaultCenter()->postNotificationNameObject(LMHotKeysDidChange);
}

} // namespace

HotKeyService &HotKeyService::instance()
{
    static HotKeyService service;
    return service;
}

HotKeyService::HotKeyService()
{
    renewal_.setSingleShot(true);
    renewal_.setInterval(renewalDelay);
    QObject::connect(&renewal_, &QTimer::timeout, &renewal_, [this] { renew(); });
}

OSStatus HotKeyService::add(
    VirtualKeyCode keyCode, quint32 modifiers, EventHotKeyID hotKeyID, EventHotKeyRef *hotKeyRef)
{
    if (!connect())
        return eventInternalErr;
    renewIfDue();
    std::vector<KeyGrab> grabs = grabsOf(keyCode, modifiers, keyboard_);
    if (isTaken(keyCode, modifiers, grabs))
        return eventHotKeyExistsErr;
    if (grabs.empty())
        return paramErr;
    const bool isGranted = connection_->grab(grabs);
    scheduleInput();
    if (connection_->isLost())
        return eventInternalErr;
    if (!isGranted)
        return eventHotKeyExistsErr;
    registrations_.push_back({++lastNumber_, keyCode, modifiers, hotKeyID, std::move(grabs)});
    *hotKeyRef = reinterpret_cast<EventHotKeyRef>(lastNumber_);
    return noErr;
}

HotKeyService::Registrations::const_iterator HotKeyService::find(EventHotKeyRef hotKeyRef) const
{
    return std::find_if(registrations_.cbegin(), registrations_.cend(),
        [hotKeyRef](const Registration &one) { return one.number == reinterpret_cast<quintptr>(hotKeyRef); });
}

OSStatus HotKeyService::remove(EventHotKeyRef hotKeyRef)
{
    const auto found = find(hotKeyRef);
    if (found == registrations_.cend())
        return eventHotKeyInvalidErr;
    connection_->ungrab(found->grabs);
    registrations_.erase(found);
    if (isSomethingMissing())
        renewal_.start();
    scheduleInput();
    return noErr;
}

OSStatus HotKeyService::status(EventHotKeyRef hotKeyRef) const
{
    const auto found = find(hotKeyRef);
    if (found == registrations_.cend())
        return eventHotKeyInvalidErr;
    if (!found->grabs.empty())
        return noErr;
    return grabsOf(found->keyCode, found->modifiers, keyboard_).empty() ? paramErr : eventHotKeyExistsErr;
}

QList<quint32> HotKeyService::freeModifiers(const QList<VirtualKeyCode> &keyCodes, const QList<quint32> &modifiers)
{
    if (!connect())
        return {};
    renewIfDue();
    std::vector<std::vector<KeyGrab>> sets;
    QList<quint32> possible;
    for (const quint32 mask : modifiers) {
        if (auto grabs = grabsOfAll(keyCodes, mask, keyboard_); !grabs.empty()) {
            sets.push_back(std::move(grabs));
            possible.append(mask);
        }
    }
    const std::vector<bool> areFree = connection_->areFree(sets);
    scheduleInput();
    QList<quint32> freeOnes;
    for (size_t place = 0; place < areFree.size(); ++place) {
        if (areFree[place])
            freeOnes.append(possible[qsizetype(place)]);
    }
    return freeOnes;
}

bool HotKeyService::connect()
{
    if (!qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")) {
        reportUnavailable(QStringLiteral("a Wayland session does not let programs see other programs' keys"));
        return false;
    }
    if (!connection_)
        open();
    return connection_ != nullptr;
}

void HotKeyService::open()
{
    QString failure = QStringLiteral("the X server has gone");
    connection_ = HotKeyConnection::open(&failure);
    const auto keyboard = connection_ ? connection_->readKeyboard() : std::nullopt;
    if (!keyboard) {
        connection_ = nullptr;
        reportUnavailable(failure);
        return;
    }
    keyboard_ = *keyboard;
    reportedReason_.clear();
    notifier_ = std::make_unique<QSocketNotifier>(connection_->fileDescriptor(), QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(), [this] { handleInput(); });
    scheduleInput();
}

void HotKeyService::reportUnavailable(const QString &reason)
{
    // Once, not for each key.
    if (std::exchange(reportedReason_, reason) != reason)
        NSLog(QStringLiteral("lumaroo: hot keys: none can be registered: %1").arg(reason));
}

bool HotKeyService::isTaken(VirtualKeyCode keyCode, quint32 modifiers, const std::vector<KeyGrab> &grabs) const
{
    return std::any_of(registrations_.cbegin(), registrations_.cend(), [&](const Registration &one) {
        return (one.keyCode == keyCode && one.modifiers == modifiers) || overlap(one.grabs, grabs);
    });
}

void HotKeyService::scheduleInput()
{
    // What came in while an answer was waited for makes the socket readable no more.
    if (connection_->hasQueuedInput() || connection_->isLost())
        QMetaObject::invokeMethod(
            notifier_.get(), [this] { handleInput(); }, Qt::QueuedConnection);
}

void HotKeyService::handleInput()
{
    while (connection_) {
        const auto input = connection_->nextInput();
        if (connection_->isLost())
            handleLoss();
        else if (!input)
            return;
        else if (input->kind == HotKeyInput::Kind::Press)
            handlePress(*input);
        else if (!renewal_.isActive())
            renewal_.start();
    }
}

void HotKeyService::handlePress(const HotKeyInput &input)
{
    // A handler may run an event loop of its own, and the keyboard is to be free in that.
    scheduleInput();
    dispatchPress(input);
}

void HotKeyService::dispatchPress(const HotKeyInput &input)
{
    const auto found = std::find_if(registrations_.cbegin(), registrations_.cend(), [&input](const Registration &one) {
        return std::find(one.grabs.cbegin(), one.grabs.cend(), input.press) != one.grabs.cend();
    });
    // Another key may be pressed before the keyboard is free again, and a press may arrive after its hot key is gone.
    if (found != registrations_.cend())
        dispatchHotKeyPressed(EventHotKeyID(found->hotKeyID), input.time);
}

void HotKeyService::handleLoss()
{
    NSLog(QStringLiteral("lumaroo: hot keys: the X server has gone; no hot key is registered any more"));
    renewal_.stop();
    registrations_.clear();
    // Later: the notifier may be the one that calls.
    notifier_->setEnabled(false);
    notifier_.release()->deleteLater();
    connection_ = nullptr;
    NSNotificationCenter::defaultCenter()->postNotificationNameObject(LMHotKeysDidGo);
}

bool HotKeyService::isSomethingMissing() const
{
    return std::any_of(registrations_.cbegin(), registrations_.cend(),
        [](const Registration &registration) { return registration.grabs.empty(); });
}

/// So that a registration goes by the keyboard as it is.
void HotKeyService::renewIfDue()
{
    if (renewal_.isActive() || connection_->isKeyboardChangePending())
        renew();
    scheduleInput();
}

/// Grabs anew where the keyboard has changed, and where something was missing.
void HotKeyService::renew()
{
    renewal_.stop();
    const auto keyboard = connection_->readKeyboard();
    const bool isChanged = keyboard && std::exchange(keyboard_, *keyboard) != *keyboard;
    if (isChanged || isSomethingMissing())
        regrab();
    scheduleInput();
    // Later: whoever is told may register, and may be registering now.
    if (isChanged)
        QMetaObject::invokeMethod(notifier_.get(), postChange, Qt::QueuedConnection);
}

void HotKeyService::regrab()
{
    const auto wanted = wantedGrabs();
    // First all that goes, so that two can exchange their keys.
    for (size_t place = 0; place < wanted.size(); ++place) {
        if (registrations_[place].grabs != wanted[place])
            connection_->ungrab(std::exchange(registrations_[place].grabs, {}));
    }
    for (size_t place = 0; place < wanted.size(); ++place) {
        Registration &registration = registrations_[place];
        if (registration.grabs.empty() && !wanted[place].empty() && connection_->grab(wanted[place]))
            registration.grabs = wanted[place];
    }
}

/// For each registration; of two that have become the same, the older one keeps the key.
std::vector<std::vector<KeyGrab>> HotKeyService::wantedGrabs() const
{
    std::set<KeyGrab> given;
    std::vector<std::vector<KeyGrab>> all;
    for (const Registration &registration : registrations_) {
        std::vector<KeyGrab> grabs = grabsOf(registration.keyCode, registration.modifiers, keyboard_);
        if (std::any_of(grabs.cbegin(), grabs.cend(), [&given](const KeyGrab &grab) { return given.contains(grab); }))
            grabs.clear();
        given.insert(grabs.cbegin(), grabs.cend());
        all.push_back(std::move(grabs));
    }
    return all;
}
