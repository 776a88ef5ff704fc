#include "updater/BuildNotesWindow.h"

#include "platform/appkit/web/WebView.h"
#include "platform/foundation/bundles/NSBundle.h"
#include "platform/foundation/preferences/CFPreferences.h"
#include "platform/foundation/propertylists/Description.h"
#include "platform/foundation/propertylists/NSNumber.h"
#include "updater/core/UpdateRecord.h"

#include <QApplication>
#include <QEvent>
#include <QWindow>

namespace {

/// Its user looks at it, and would type into it.
bool isInFront(const QWidget *view)
{
    const QWindow *window = view->window()->windowHandle();
    return view->isVisible() && window && window->isExposed() && view->isActiveWindow()
        && !QApplication::activeModalWidget();
}

} // namespace

BuildNotesWindow::BuildNotesWindow(QWidget *parent, const NSBundle *bundle) : QDialog(parent), bundle_(bundle)
{
    if (parent)
        parent->installEventFilter(this);
    soon_.setSingleShot(true);
    soon_.callOnTimeout(this, &BuildNotesWindow::openIfDue);
    connect(qApp, &QGuiApplication::focusWindowChanged, this, &BuildNotesWindow::openSoon);
}

int BuildNotesWindow::build() const
{
    return intValue(bundle_->infoDictionary().value(QStringLiteral("CFBundleVersion")));
}

bool BuildNotesWindow::isHiddenByUser() const
{
    const QString key = hideSetting_.section(u'/', 1) + QString::number(build());
    return boolValue(CFPreferencesCopyAppValue(key, hideSetting_.section(u'/', 0, 0)));
}

bool BuildNotesWindow::eventFilter(QObject *object, QEvent *event)
{
    // What the window manager shows and hides is still the same showing.
    const bool isOfView = object == parent() && !event->spontaneous();
    if (isOfView && event->type() == QEvent::Show)
        takeShowing();
    if (isOfView && event->type() == QEvent::Hide) {
        isDue_ = false;
        close();
    }
    if (event->type() == QEvent::Expose)
        openSoon();
    return QDialog::eventFilter(object, event);
}

void BuildNotesWindow::takeShowing()
{
    const std::optional<int> last = UpdateRecord().buildOfNotes();
    isDue_ = last && *last < build() && !isHiddenByUser();
    if (!isDue_)
        return UpdateRecord().noteBuildOfNotes(build());
    if (QWindow *window = parentWidget()->window()->windowHandle())
        window->installEventFilter(this);
    openSoon();
}

void BuildNotesWindow::openSoon()
{
    // A sheet that waits for the same moment comes first: a timer's turn is after all that is posted.
    if (isDue_)
        soon_.start(0);
}

void BuildNotesWindow::openIfDue()
{
    if (!isDue_ || !isInFront(parentWidget()))
        return;
    isDue_ = false;
    UpdateRecord().noteBuildOfNotes(build());
    show();
}

void BuildNotesWindow::showEvent(QShowEvent *event)
{
    auto *view = findChild<WebView *>();
    const QString page = bundle_->pathForResourceOfType(notesFile_, {});
    if (view && view->source().isEmpty() && !page.isEmpty())
        view->setSource(QUrl::fromLocalFile(page));
    QDialog::showEvent(event);
}
