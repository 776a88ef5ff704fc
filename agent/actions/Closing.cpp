#include "agent/actions/Closing.h"

#include "agent/actions/x11/WindowCloser.h"

#include <algorithm>
#include <chrono>
#include <utility>

using namespace std::chrono_literals;

namespace {

constexpr auto patience = 2s;

} // namespace

Closing::Closing(WindowSystem &windows, const WindowWorld &world, quint32 windowID)
    : windows_(windows), window_(*world.window(windowID)), closer_(std::make_unique<WindowCloser>())
{
    for (const WindowDescription &window : world.windows)
        before_ += window.windowID;
    limit_.setSingleShot(true);
    connect(&limit_, &QTimer::timeout, this, &Closing::giveUp);
    connect(closer_.get(), &WindowCloser::windowsDidChange, this, &Closing::look);
}

Closing::~Closing() = default;

void Closing::begin(quint32 time)
{
    const bool canBeAsked = !closer_->isLost() && closer_->canBeAsked(window_.windowID);
    if (canBeAsked) {
        closer_->ask(window_.windowID, time);
        limit_.start(patience);
    } else {
        QMetaObject::invokeMethod(this, &Closing::tellThatItCannotBeAsked, Qt::QueuedConnection);
    }
}

/// Unless it has just gone.
void Closing::tellThatItCannotBeAsked()
{
    end(closer_->isLost() || !look() ? Outcome::Unknown : Outcome::CannotBeAsked);
}

/// False where nobody tells windows; another manager may.
bool Closing::look()
{
    WindowFailure failure{};
    const auto world = windows_.read({true, {}}, &failure);
    if (!world)
        return false;
    if (!world->window(window_.windowID))
        end(Outcome::Closed);
    else if (const quint32 dialog = dialogIn(*world))
        end(Outcome::Asks, dialog);
    return true;
}

void Closing::giveUp()
{
    end(look() ? Outcome::StaysOpen : Outcome::Unknown);
}

/// The topmost one.
quint32 Closing::dialogIn(const WindowWorld &world) const
{
    const auto isOfItsProgram = [this](const WindowDescription &other) {
        const bool isSameProcess = other.windowPID != 0 && other.windowPID == window_.windowPID;
        return isSameProcess || closer_->belongsTo(other.windowID, window_.windowID);
    };
    const auto found = std::find_if(world.windows.cbegin(), world.windows.cend(), [&](const WindowDescription &other) {
        return other.isCandidate() && !before_.contains(other.windowID) && isOfItsProgram(other);
    });
    return found == world.windows.cend() ? 0 : found->windowID;
}

void Closing::end(Outcome outcome, quint32 dialog)
{
    if (std::exchange(hasEnded_, true))
        return;
    limit_.stop();
    Q_EMIT ended(outcome, dialog);
}
