#include "updater/BuildNotesWindow.h"

#include "platform/appkit/web/WebView.h"
#include "platform/foundation/bundles/NSBundle.h"
#include "platform/foundation/preferences/CFPreferences.h"
#include "platform/foundation/propertylists/Description.h"
#include "platform/foundation/propertylists/NSNumber.h"
#include "updater/core/UpdateRecord.h"

#include <QApplication>
#include <QEvent>
#include <QTimer>

BuildNotesWindow::BuildNotesWindow(QWidget *parent, const NSBundle *bundle) : QDialog(parent), bundle_(bundle)
{
    if (parent)
        parent->installEventFilter(this);
    connect(qApp, &QGuiApplication::focusWindowChanged, this, [this] {
        if (isWaiting_)
            QTimer::singleShot(0, this, &BuildNotesWindow::openWhenNothingIsInFront);
    });
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
    if (object == parent() && !event->spontaneous()) {
        if (event->type() == QEvent::Show)
            QTimer::singleShot(0, this, &BuildNotesWindow::openIfDue);
        if (event->type() == QEvent::Hide) {
            isWaiting_ = false;
            close();
        }
    }
    return QDialog::eventFilter(object, event);
}

void BuildNotesWindow::openIfDue()
{
    const std::optional<int> last = UpdateRecord().buildOfNotes();
    isWaiting_ = last && *last < build() && !isHiddenByUser();
    if (isWaiting_)
        openWhenNothingIsInFront();
    else
        UpdateRecord().noteBuildOfNotes(build());
}

void BuildNotesWindow::openWhenNothingIsInFront()
{
    if (!isWaiting_ || !parentWidget()->isVisible() || QApplication::activeModalWidget())
        return;
    isWaiting_ = false;
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
