#include "agent/keys/GestureKeys.h"

#include "agent/keys/AgentHotKeys.h"

#include <utility>

namespace {

using namespace std::chrono_literals;

constexpr auto releaseCheckDelay = 1s;
constexpr auto grabRetryDelay = 20ms;
constexpr int mostGrabTries = 10;

} // namespace

GestureKeys::GestureKeys(AgentHotKeys &hotKeys) : keyboard_(keyboard()), watch_(*keyboard_)
{
    connect(&hotKeys, &AgentHotKeys::pressed, this,
        [this](const QString &action, const QString &, quint32 time) { handleHotKey(action, time); });
    connect(keyboard_.get(), &Keyboard::modifiersChanged, this, &GestureKeys::handleModifiers);
    connect(keyboard_.get(), &Keyboard::keyPressed, this, &GestureKeys::handleKey);
    connect(keyboard_.get(), &Keyboard::keyReleased, this, &GestureKeys::handleRelease);
    connect(keyboard_.get(), &Keyboard::buttonPressed, this, &GestureKeys::handleButton);
    connect(keyboard_.get(), &Keyboard::lost, this, &GestureKeys::handleLoss);
    connect(&digitKeys_, &DigitKeys::pressed, this, &GestureKeys::handleDigit);
    connect(&repeat_, &KeyRepeat::due, this, &GestureKeys::repeat);
    connect(&chordWatch_, &QTimer::timeout, this, &GestureKeys::updateWatch);
    connect(&releaseCheck_, &QTimer::timeout, this, &GestureKeys::checkRelease);
    connect(&grabRetry_, &QTimer::timeout, this, &GestureKeys::tryToGrab);
    for (QTimer *timer : {&chordWatch_, &releaseCheck_, &grabRetry_})
        timer->setSingleShot(true);
    chordWatch_.setInterval(ChordPresses::longestDouble);
    releaseCheck_.setInterval(releaseCheckDelay);
    grabRetry_.setInterval(grabRetryDelay);
}

GestureKeys::~GestureKeys()
{
    end();
}

void GestureKeys::apply(const QVariantMap &settings)
{
    keys_.follow(settings);
    chord_.setModifiers(keys_.modifiers());
    repeat_.setTiming(repeatTiming(settings));
    keyboard_->open();
}

void GestureKeys::beginHeld()
{
    isOn_ = true;
    heldSince_ = lastTime_;
    releaseCheck_.start();
    updateWatch();
}

bool GestureKeys::areModifiersDown()
{
    return keys_.modifiers() != 0 && (keyboard_->heldModifiers() & keys_.modifiers()) == keys_.modifiers();
}

bool GestureKeys::grabKeyboard()
{
    isOn_ = true;
    releaseCheck_.stop();
    grabTries_ = 0;
    tryToGrab();
    return isGrabbed_ || !keyboard_->isScreenTaken();
}

void GestureKeys::tryToGrab()
{
    isGrabbed_ = keyboard_->grab();
    updateWatch();
    if (isGrabbed_)
        Q_EMIT keyboardGrabbed();
    else if (++grabTries_ < mostGrabTries)
        grabRetry_.start();
    else
        Q_EMIT keyboardRefused();
}

void GestureKeys::letKeyboardGo()
{
    grabRetry_.stop();
    isGrabbed_ = false;
    keyboard_->letGo();
    updateWatch();
}

void GestureKeys::takeDigits(const QSet<int> &digits)
{
    digits_ = digits;
    // With the keyboard come all keys.
    digitKeys_.take(isGrabbed_ ? QSet<int>() : digits, keys_);
}

QSet<int> GestureKeys::takenDigits() const
{
    if (!isGrabbed_)
        return digitKeys_.taken();
    QSet<int> taken;
    for (const int digit : digits_) {
        if (!keys_.isActionsKey(ActionKeyTable::keyOfDigit(digit)))
            taken.insert(digit);
    }
    return taken;
}

void GestureKeys::end()
{
    isOn_ = false;
    releaseCheck_.stop();
    stopRepeat();
    takeDigits({});
    letKeyboardGo();
}

void GestureKeys::handleHotKey(const QString &action, quint32 time)
{
    keyboard_->catchUp(time);
    note(time);
    chord_.somethingElseWasPressed(time);
    // First: with many windows the display takes a while to change what it tells us.
    Q_EMIT pressed(action, time);
    updateChordWatch();
    if (isOn_)
        startRepeat(action);
}

void GestureKeys::handleModifiers(quint32 held, quint32 time)
{
    note(time);
    const ChordPresses::Outcome outcome = chord_.modifiersDidChange(held, time);
    if (chord_.isWaiting(time) && held == keys_.modifiers())
        chordWatch_.start();
    // What went down or up before the press may come late: presses come another way.
    const quint32 wentUp = std::exchange(held_, held) & ~held & keys_.modifiers();
    const bool isLate = qint32(time - heldSince_) < 0;
    if (releaseCheck_.isActive() && !isLate && wentUp)
        tellRelease(time);
    updateWatch();
    tellChord(outcome, time);
}

void GestureKeys::tellChord(ChordPresses::Outcome outcome, quint32 time)
{
    // What was down before is seen in no event.
    if (outcome == ChordPresses::Outcome::Nothing || keyboard_->isAnythingHeldBut(keys_.modifiers()))
        return;
    if (outcome == ChordPresses::Outcome::Single)
        Q_EMIT singlePressed(time);
    else
        Q_EMIT doublePressed(time);
}

void GestureKeys::somethingElseWasPressed(quint32 time)
{
    chord_.somethingElseWasPressed(time);
    updateChordWatch();
}

void GestureKeys::updateChordWatch()
{
    if (!chord_.hasBegun())
        chordWatch_.stop();
    updateWatch();
}

void GestureKeys::handleKey(const KeyEvent &key)
{
    if (key.modifier & keys_.modifiers())
        return;
    note(key.time);
    somethingElseWasPressed(key.time);
    if (isGrabbed_ && !key.isModifier)
        handleOurKey(key);
}

void GestureKeys::handleOurKey(const KeyEvent &key)
{
    const QString action = keys_.actionOf(key);
    if (!action.isEmpty()) {
        Q_EMIT keyPressed(action, key.time);
        if (isOn_)
            startRepeat(action);
        return;
    }
    stopRepeat();
    const auto digit = keys_.digitOf(key);
    if (digit && digits_.contains(*digit))
        Q_EMIT digitPressed(*digit, key.time);
    else
        Q_EMIT somethingElse(key.time);
}

void GestureKeys::handleRelease(const KeyEvent &key)
{
    if (repeat_.isOn() && key.keyCode && keys_.keyOf(repeatedAction_) == pressedKeyCode(*key.keyCode))
        stopRepeat();
    // Where another program holds up all keys, the keyboard tells of no modifier; its devices do.
    if (releaseCheck_.isActive() && key.modifier & keys_.modifiers() && !areModifiersDown())
        tellRelease(key.time);
}

void GestureKeys::handleButton(bool isWheel, quint32 time)
{
    note(time);
    somethingElseWasPressed(time);
    if (isGrabbed_ && !isWheel)
        Q_EMIT somethingElse(time);
}

void GestureKeys::handleDigit(int digit, quint32 time)
{
    keyboard_->catchUp(time);
    note(time);
    if (isOn_)
        Q_EMIT digitPressed(digit, time);
}

void GestureKeys::handleLoss()
{
    end();
    watch_.forget();
    held_ = 0;
    Q_EMIT lost();
}

void GestureKeys::startRepeat(const QString &action)
{
    stopRepeat();
    if (!isMovementAction(action))
        return;
    repeatedAction_ = action;
    repeat_.start();
    updateWatch();
}

void GestureKeys::stopRepeat()
{
    repeat_.stop();
    updateWatch();
}

void GestureKeys::repeat()
{
    const auto key = keys_.keyOf(repeatedAction_);
    if (!key || !keyboard_->isHeld(*key)) {
        stopRepeat();
        return;
    }
    const quint32 time = timeNow();
    note(time);
    Q_EMIT repeated(repeatedAction_, time);
}

void GestureKeys::checkRelease()
{
    if (areModifiersDown())
        releaseCheck_.start();
    else
        tellRelease(timeNow());
}

void GestureKeys::tellRelease(quint32 time)
{
    releaseCheck_.stop();
    Q_EMIT modifiersReleased(time);
    updateWatch();
}

void GestureKeys::note(quint32 time)
{
    lastTime_ = time;
    sinceLastTime_.start();
    if (releaseCheck_.isActive())
        releaseCheck_.start();
}

/// Never ahead of the display, which tells its time with events only.
quint32 GestureKeys::timeNow() const
{
    return lastTime_ + quint32(sinceLastTime_.isValid() ? sinceLastTime_.elapsed() : 0);
}

void GestureKeys::updateWatch()
{
    Keyboard::Events events;
    if (chordWatch_.isActive())
        events |= Keyboard::KeyPresses | Keyboard::Buttons;
    if (releaseCheck_.isActive() || repeat_.isOn())
        events |= Keyboard::KeyReleases;
    if (isGrabbed_)
        events |= Keyboard::Buttons;
    watch_.setEvents(events);
}
