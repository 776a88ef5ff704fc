#include "agent/actions/Actions.h"

#include "KTXConstants.h"
#include "agent/actions/ActionTexts.h"
#include "agent/actions/Closing.h"
#include "agent/actions/PictureShowing.h"
#include "agent/actions/Screenshot.h"
#include "agent/actions/SettingsProgram.h"
#include "agent/actions/x11/ActionConnection.h"
#include "agent/actions/x11/WindowCloser.h"
#include "agent/gestures/GestureView.h"
#include "agent/gestures/Gestures.h"
#include "agent/notices/WindowFailureText.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <utility>

namespace {

const QString closingMatter = QStringLiteral("closing");
const QString pictureMatter = QStringLiteral("picture");
const QString previewMatter = QStringLiteral("preview");
const QString settingsMatter = QStringLiteral("settings");

/// For whoever reads it, with the home folder's sign.
QString shownFolder(const QString &path)
{
    const QString folder = QFileInfo(path).path(), home = QDir::homePath();
    return folder.startsWith(home + u'/') ? u'~' + folder.mid(home.size()) : folder;
}

void answer(const ActionTold &told, const ActionOutcome &outcome = {})
{
    if (told)
        told(outcome);
}

} // namespace

Actions::Actions(WindowSystem &windows, Gestures &gestures) : windows_(windows), gestures_(gestures)
{
    connect(&gestures, &Gestures::asked, this, &Actions::perform);
    connect(&gestures, &Gestures::moved, this, &Actions::followWithPreview);
    connect(&gestures, &Gestures::over, this, &Actions::endPreview);
    connect(&notices_, &Notices::pressed, this, &Actions::hearButton);
    connect(&notices_, &Notices::clicked, this, &Actions::hearClick);
    connect(&session_, &SessionWatch::userIsLeaving, this, &Actions::endPreview);
}

Actions::~Actions() = default;

void Actions::perform(const QString &action, quint32 time)
{
    static const QHash<QString, void (*)(Actions &, quint32)> actions{
        {KTXOpenPrefPanePref, [](Actions &all, quint32 at) { all.openPrefPane(at); }},
        {KTXScreenClosePref, [](Actions &all, quint32 at) { all.closeWindow(at); }},
        {KTXScreenshotPref, [](Actions &all, quint32) { all.takeScreenshot(); }},
        {KTXPreviewPref, [](Actions &all, quint32) { all.showPreview(); }},
    };
    if (const auto act = actions.value(action))
        act(*this, time);
}

/// Without a value `reason` says why, with the action's own text where there is just no window.
std::optional<Actions::Target> Actions::target(const char *noWindow, QString *reason)
{
    WindowFailure failure{};
    const auto world = windows_.read({true, {}}, &failure);
    *reason = world ? actionText(noWindow) : windowFailureText(failure);
    if (!world)
        return std::nullopt;
    const quint32 windowID = gestures_.isOn() ? gestures_.selected() : world->activeWindow;
    const WindowDescription *window = world->window(windowID);
    // The desktop and its panels may have the focus, but are nothing to act on.
    if (!window || window->windowIsIgnored == WindowIgnored::Type)
        return std::nullopt;
    reason->clear();
    return Target{*world, *window};
}

void Actions::takeScreenshot(const ActionTold &told)
{
    gestures_.stay();
    QString reason;
    const auto found = target("There is no window to take a picture of.", &reason);
    if (found)
        reason = reasonForNoPicture(found->window);
    if (!reason.isEmpty()) {
        refuse({pictureMatter, actionText("No picture was taken"), reason, {}}, told);
        return;
    }
    auto *const screenshot = new Screenshot(found->window);
    screenshot->setParent(this);
    connect(screenshot, &Screenshot::taken, this, [this, screenshot, told](const QString &path) {
        screenshot->deleteLater();
        tellOfPicture(screenshot->window(), path, told);
    });
    connect(screenshot, &Screenshot::failed, this, [this, screenshot, told](const QString &sentence) {
        screenshot->deleteLater();
        refuse({pictureMatter, actionText("No picture was taken"), sentence, {}}, told);
    });
}

void Actions::tellOfPicture(const WindowDescription &window, const QString &path, const ActionTold &told)
{
    picture_ = path;
    notices_.tell({pictureMatter, actionText("Picture of “%1” taken").arg(shownTitle(window)),
        actionText("It is stored as “%1” in %2.").arg(QFileInfo(path).fileName(), shownFolder(path)),
        actionText("Show"), path, {}, actionText("Show")});
    Q_EMIT screenshotTaken(path);
    answer(told, {{}, path});
}

void Actions::closeWindow(quint32 time, const ActionTold &told)
{
    gestures_.stay();
    QString reason;
    const auto found = target("There is no window to close.", &reason);
    if (!found) {
        refuse({closingMatter, actionText("No window was closed"), reason, {}}, told);
        return;
    }
    auto *const closing = new Closing(windows_, found->world, found->window.windowID);
    closing->setParent(this);
    connect(closing, &Closing::ended, this, [this, closing, told](Closing::Outcome outcome, quint32 dialog) {
        closing->deleteLater();
        gestures_.endClosing(closing->window().windowID);
        hearEnd(closing->window(), outcome, dialog, told);
    });
    gestures_.beginClosing(found->window.windowID);
    closing->begin(time);
}

void Actions::hearEnd(const WindowDescription &window, Closing::Outcome outcome, quint32 dialog, const ActionTold &told)
{
    const QString title = shownTitle(window);
    switch (outcome) {
    case Closing::Outcome::Closed:
        gestures_.followWindows();
        Q_EMIT windowClosed();
        answer(told);
        break;
    case Closing::Outcome::Asks:
        if (gestures_.selected() == window.windowID)
            gestures_.select(dialog);
        answer(told, {actionText("“%1” asks something before it closes.").arg(title), {}});
        break;
    case Closing::Outcome::StaysOpen:
        refuse({closingMatter, actionText("A window did not close"), actionText("“%1” is still open.").arg(title), {}},
            told);
        break;
    case Closing::Outcome::Unknown:
        refuse({closingMatter, actionText("A window may still be open"),
                   actionText("The windows cannot be seen any more, so it is not known whether “%1” has closed.")
                       .arg(shownTitle(window)),
                   {}},
            told);
        break;
    case Closing::Outcome::CannotBeAsked:
        unanswering_ = window;
        refuse({closingMatter, actionText("A window cannot be asked to close"),
                   actionText("“%1” does not answer to being closed. Ending its program loses what it has not stored.")
                       .arg(title),
                   actionText("End it")},
            told);
        break;
    }
}

void Actions::hearButton(const QString &matter)
{
    if (matter == closingMatter)
        endUnansweringProgram();
    else if (matter == pictureMatter)
        showFile(picture_);
}

void Actions::hearClick(const QString &matter)
{
    if (matter == pictureMatter)
        showFile(picture_);
}

/// Meanwhile the window may have gone, and its number may be another's.
void Actions::endUnansweringProgram()
{
    WindowFailure failure{};
    const auto world = windows_.read({true, {}}, &failure);
    const WindowDescription *window = world ? world->window(unanswering_.windowID) : nullptr;
    if (window && window->windowPID == unanswering_.windowPID && window->appName == unanswering_.appName)
        WindowCloser::endProgramOf(window->windowID);
}

void Actions::openPrefPane(quint32 time)
{
    // Its end would turn to another window.
    gestures_.cancel();
    endPreview();
    const QString reason = openSettings(time != 0 ? time : ActionConnection().time());
    if (reason.isEmpty())
        Q_EMIT settingsOpened();
    else
        refuse({settingsMatter, actionText("The settings did not open"),
            actionText("The settings cannot be opened: %1.").arg(reason), {}});
}

void Actions::showPreview(const ActionTold &told)
{
    gestures_.stay();
    if (isPreviewing_) {
        endPreview();
        answer(told);
        return;
    }
    // A key comes from nobody while the screen is locked.
    const bool isCommand = bool(told);
    const QString reason = isCommand && gestures_.isScreenTaken()
        ? actionText("Another program has the keyboard and the mouse, as one that locks the screen.")
        : begunPreview();
    if (!reason.isEmpty()) {
        refuse({previewMatter, actionText("No preview is shown"), reason, {}}, told);
        return;
    }
    session_.begin();
    Q_EMIT previewShown();
    answer(told);
}

/// Why there is none.
QString Actions::begunPreview()
{
    QString reason;
    const auto found = target("There is no window to show.", &reason);
    if (found)
        reason = reasonForNoPicture(found->window);
    if (!reason.isEmpty())
        return reason;
    preview(*found);
    return preview_ ? QString() : actionText("This X server gives no pictures of windows.");
}

/// The one before goes only when this one is there.
void Actions::preview(const Target &target)
{
    auto shown = ::showPreview(target.window, monitorOf(target.window, target.world.monitors));
    if (shown) {
        connect(
            shown.get(), &Preview::ended, this, [this, ended = shown.get()] { hearPreviewsEnd(ended); },
            Qt::QueuedConnection);
        isPreviewing_ = true;
    }
    preview_ = std::move(shown);
}

void Actions::followWithPreview()
{
    if (!isPreviewing_)
        return;
    QString reason;
    const auto found = target("", &reason);
    if (found && reasonForNoPicture(found->window).isEmpty())
        preview(*found);
    else
        hidePreview();
}

/// During a gesture the selection goes on, and the preview with it.
void Actions::hearPreviewsEnd(const Preview *ended)
{
    // By now another one may be shown.
    if (preview_.get() != ended)
        return;
    if (gestures_.isOn())
        hidePreview();
    else
        endPreview();
}

void Actions::hidePreview()
{
    preview_.reset();
}

void Actions::endPreview()
{
    hidePreview();
    session_.end();
    if (std::exchange(isPreviewing_, false))
        Q_EMIT previewEnded();
}

void Actions::refuse(const Notice &notice, const ActionTold &told)
{
    notices_.tell(notice);
    Q_EMIT refused(notice.text);
    answer(told, {notice.text, {}});
}
