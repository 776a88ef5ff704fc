#include "agent/gestures/Gestures.h"

#include "KTXConstants.h"
#include "agent/gestures/GestureView.h"

#include <algorithm>
#include <chrono>

using namespace std::chrono_literals;
using Kind = GestureEvent::Kind;

namespace {

/// Who hesitates that long sees the digits.
constexpr auto hesitation = 400ms;
/// Without a key for that long the user has gone.
constexpr auto patience = 30s;

/// No value for an action that neither moves nor ends a selection.
std::optional<GestureEvent> eventOf(const QString &action, quint32 time)
{
    static const QHash<QString, GestureEvent> events{
        {KTXUpPref, {.kind = Kind::Movement, .movement = Movement::Up}},
        {KTXRightPref, {.kind = Kind::Movement, .movement = Movement::Right}},
        {KTXDownPref, {.kind = Kind::Movement, .movement = Movement::Down}},
        {KTXLeftPref, {.kind = Kind::Movement, .movement = Movement::Left}},
        {KTXUnderPref, {.kind = Kind::Movement, .movement = Movement::Under}},
        {KTXCancelPref, {.kind = Kind::Cancel}},
        {KTXSnapPref, {.kind = Kind::Snap}},
    };
    const auto found = events.constFind(action);
    if (found == events.cend())
        return {};
    GestureEvent event = *found;
    event.time = time;
    return event;
}

} // namespace

Gestures::Gestures(WindowSystem &windows, Overlay &overlay, GestureKeys &keys)
    : windows_(windows), overlay_(overlay), keys_(keys)
{
    labels_.setSingleShot(true);
    limit_.setSingleShot(true);
    limit_.setInterval(patience);
    farewell_.setSingleShot(true);
    const auto tells = [this](Kind kind) { return [this, kind](quint32 time) { take({.kind = kind, .time = time}); }; };
    connect(&keys, &GestureKeys::pressed, this, &Gestures::hearPress);
    connect(&keys, &GestureKeys::keyPressed, this, &Gestures::hearPress);
    connect(&keys, &GestureKeys::repeated, this, [this](const QString &action, quint32 time) {
        if (auto event = eventOf(action, time); event && event->kind == Kind::Movement) {
            event->kind = Kind::Repeat;
            take(*event);
        }
    });
    connect(&keys, &GestureKeys::modifiersReleased, this, tells(Kind::ModifiersReleased));
    connect(&keys, &GestureKeys::singlePressed, this, tells(Kind::ModifiersPressedOnce));
    connect(&keys, &GestureKeys::doublePressed, this, tells(Kind::ModifiersPressedTwice));
    connect(&keys, &GestureKeys::somethingElse, this, tells(Kind::Interrupted));
    connect(&keys, &GestureKeys::digitPressed, this,
        [this](int digit, quint32 time) { take({.kind = Kind::Digit, .time = time, .digit = digit}); });
    connect(&keys, &GestureKeys::keyboardRefused, this, [this] { take({.kind = Kind::KeyboardRefused}); });
    connect(&keys, &GestureKeys::lost, this, &Gestures::cancel);
    connect(&session_, &SessionWatch::userIsLeaving, this, &Gestures::cancel);
    connect(&labels_, &QTimer::timeout, this, &Gestures::label);
    connect(&limit_, &QTimer::timeout, this, &Gestures::cancel);
    connect(&farewell_, &QTimer::timeout, this, [this] { overlay_.hideOverlay(); });
    connect(&windows, &WindowSystem::activated, this, &Gestures::takeMarkAway);
    connect(&windows, &WindowSystem::notActivated, this, &Gestures::tellOfWindow);
}

Gestures::~Gestures()
{
    blockSignals(true);
    cancel();
}

void Gestures::apply(const QVariantMap &settings)
{
    settings_ = gestureSettings(settings);
    gesture_.setRules(settings_.gesture);
}

void Gestures::hearPress(const QString &action, quint32 time)
{
    if (const auto event = eventOf(action, time)) {
        take(*event);
        return;
    }
    stay();
    Q_EMIT asked(action, time);
}

void Gestures::take(const GestureEvent &event)
{
    const QList<GestureStep> steps = gesture_.take(event);
    if (steps.isEmpty())
        return;
    if (!std::all_of(steps.cbegin(), steps.cend(), [&](GestureStep step) { return perform(step, event); }))
        gesture_.end();
    if (!isOn()) {
        finish();
        return;
    }
    run_->isCurrent = false;
    windows_.expectActivation(true);
    limit_.start();
    // The release may have come before it was looked for. This asks only now, when the mark is on its way.
    if (gesture_.state() == Gesture::State::Held && event.kind == Kind::Movement && !keys_.areModifiersDown())
        take({.kind = Kind::ModifiersReleased, .time = event.time});
}

bool Gestures::perform(GestureStep step, const GestureEvent &event)
{
    switch (step) {
    case GestureStep::Begin:
        return begin(event);
    case GestureStep::Move:
        return move(event);
    case GestureStep::Choose:
        choose(event.digit);
        return true;
    case GestureStep::Show:
        show();
        return true;
    case GestureStep::WatchModifiers:
        keys_.beginHeld();
        return true;
    case GestureStep::WatchSession:
        watchSession(event);
        return true;
    case GestureStep::TakeKeyboard:
        session_.begin();
        if (keys_.grabKeyboard())
            return true;
        Q_EMIT cancelled();
        return false;
    case GestureStep::TellOfKeyboard:
        Q_EMIT refused({GestureRefusal::Kind::KeyboardKept});
        return true;
    case GestureStep::Accept:
        accept(event.time);
        return true;
    case GestureStep::Drop:
        Q_EMIT cancelled();
        return true;
    case GestureStep::GoBack:
        goBack(event.time);
        return true;
    }
    return true;
}

bool Gestures::begin(const GestureEvent &event)
{
    takeMarkAway();
    run_.emplace(settings_);
    run_->takesKeys = event.kind != Kind::Command;
    overlay_.setStyle(settings_.overlay);
    if (!mayBegin() || !read())
        return false;
    run_->origin = run_->world.activeWindow;
    if (!run_->selection.begin(run_->world)) {
        Q_EMIT refused({});
        return false;
    }
    Q_EMIT began();
    return true;
}

bool Gestures::move(const GestureEvent &event)
{
    if (!run_->isCurrent && !read())
        return false;
    const bool isPress = event.kind != Kind::Repeat;
    const bool hasMoved =
        run_->selection.move(event.movement, isPress ? MovementKind::Press : MovementKind::Repeat, run_->world);
    if (!showSelected(hasMoved ? 0 : selected()))
        return false;
    if (!hasMoved && isPress && run_->settings.beeps)
        keys_.ring();
    return true;
}

/// False where nothing is left to select.
bool Gestures::showSelected(quint32 before)
{
    if (selected() == 0) {
        Q_EMIT refused({});
        return false;
    }
    show();
    if (selected() != before)
        Q_EMIT moved(title(selected()));
    return true;
}

bool Gestures::read()
{
    WindowFailure failure{};
    auto world = windows_.read(run_->settings.windows, &failure);
    if (!world) {
        Q_EMIT refused({GestureRefusal::Kind::Unreadable, {}, failure});
        return false;
    }
    run_->world = std::move(*world);
    run_->isCurrent = true;
    return true;
}

void Gestures::show()
{
    overlay_.showOverlay(gestureView(run_->world, run_->selection.selected(), run_->labels));
    if (run_->takesKeys && run_->labels.isEmpty() && !labels_.isActive())
        labels_.start(run_->settings.labelsAtOnce ? 0ms : hesitation);
}

/// Digits keep their windows to the gesture's end, also where others come in between.
void Gestures::label()
{
    const WindowList windows = labelledWindows(run_->world);
    QHash<int, quint32> labels;
    for (const WindowDescription *window : windows)
        labels.insert(int(labels.size()) + 1, window->windowID);
    const QList<int> digits = labels.keys();
    keys_.takeDigits({digits.cbegin(), digits.cend()});
    const QSet<int> taken = keys_.takenDigits();
    for (const int digit : digits) {
        if (taken.contains(digit))
            run_->labels.insert(digit, labels.value(digit));
    }
    if (!run_->labels.isEmpty())
        show();
}

void Gestures::choose(int digit)
{
    run_->selection.select(run_->labels.value(digit, run_->selection.selected()));
}

QString Gestures::title(quint32 windowID) const
{
    const WindowDescription *window = run_->world.window(windowID);
    return window ? titleOf(*window) : QString();
}
