#include "agent/actions/Actions.h"

#include "KTXConstants.h"
#include "agent/actions/ActionTexts.h"
#include "agent/actions/Closing.h"
#include "agent/actions/SettingsProgram.h"
#include "agent/actions/x11/ActionConnection.h"
#include "agent/actions/x11/WindowCloser.h"
#include "agent/gestures/GestureView.h"
#include "agent/gestures/Gestures.h"

#include <QHash>

namespace {

const QString closingMatter = QStringLiteral("closing");

} // namespace

Actions::Actions(WindowSystem &windows, Gestures &gestures) : windows_(windows), gestures_(gestures)
{
    connect(&gestures, &Gestures::asked, this, &Actions::perform);
    connect(&notices_, &Notices::pressed, this, &Actions::hearButton);
}

Actions::~Actions() = default;

void Actions::perform(const QString &action, quint32 time)
{
    static const QHash<QString, void (Actions::*)(quint32)> actions{
        {KTXOpenPrefPanePref, &Actions::openPrefPane},
        {KTXScreenClosePref, &Actions::closeWindow},
    };
    if (const auto act = actions.value(action))
        (this->*act)(time);
}

/// The desktop and its panels may have the focus, but are nothing to act on.
std::optional<Actions::Target> Actions::target()
{
    QString failure;
    const auto world = windows_.read({true, {}}, &failure);
    if (!world)
        return std::nullopt;
    const quint32 windowID = gestures_.isOn() ? gestures_.selected() : world->activeWindow;
    const WindowDescription *window = world->window(windowID);
    if (!window || window->windowIsIgnored == WindowIgnored::Type)
        return std::nullopt;
    return Target{*world, *window};
}

void Actions::closeWindow(quint32 time)
{
    const auto found = target();
    if (!found) {
        refuse(actionText("No window was closed"), actionText("There is no window to close."));
        return;
    }
    auto *const closing = new Closing(windows_, found->world, found->window.windowID);
    closing->setParent(this);
    connect(closing, &Closing::ended, this, [this, closing](Closing::Outcome outcome, quint32 dialog) {
        closing->deleteLater();
        gestures_.setClosing(0);
        hearEnd(closing->window(), outcome, dialog);
    });
    gestures_.setClosing(found->window.windowID);
    closing->begin(time);
}

void Actions::hearEnd(const WindowDescription &window, Closing::Outcome outcome, quint32 dialog)
{
    const QString title = titleOf(window);
    switch (outcome) {
    case Closing::Outcome::Closed:
        gestures_.followWindows();
        Q_EMIT windowClosed();
        break;
    case Closing::Outcome::Asks:
        if (gestures_.selected() == window.windowID)
            gestures_.select(dialog);
        break;
    case Closing::Outcome::StaysOpen:
        refuse(actionText("A window did not close"), actionText("“%1” is still open.").arg(title));
        break;
    case Closing::Outcome::CannotBeAsked:
        unanswering_ = window;
        refuse(actionText("A window cannot be asked to close"),
            actionText("“%1” does not answer to being closed. Ending its program loses what it has not stored.")
                .arg(title),
            actionText("End it"));
        break;
    }
}

void Actions::hearButton(const QString &matter)
{
    if (matter == closingMatter)
        endUnansweringProgram();
}

/// Meanwhile the window may have gone, and its number may be another's.
void Actions::endUnansweringProgram()
{
    QString failure;
    const auto world = windows_.read({true, {}}, &failure);
    const WindowDescription *window = world ? world->window(unanswering_.windowID) : nullptr;
    if (window && window->windowPID == unanswering_.windowPID && window->appName == unanswering_.appName)
        WindowCloser::endProgramOf(window->windowID);
}

void Actions::openPrefPane(quint32 time)
{
    // Its end would turn to another window.
    gestures_.cancel();
    const QString reason = openSettings(time != 0 ? time : ActionConnection().time());
    if (reason.isEmpty())
        Q_EMIT settingsOpened();
    else
        refuse(actionText("The settings did not open"), actionText("The settings cannot be opened: %1.").arg(reason));
}

void Actions::refuse(const QString &title, const QString &sentence, const QString &button)
{
    notices_.tell({closingMatter, title, sentence, button});
    Q_EMIT refused(sentence);
}
