#include "platform/appkit/alerts/internal/AlertSheets.h"

#include "platform/foundation/Boundary.h"

#include <QApplication>
#include <QEvent>
#include <QScreen>
#include <QWindow>
#include <algorithm>

namespace {

int keptWithin(int place, int length, int start, int end)
{
    return qMax(start, qMin(place, end - length));
}

void putInFrontOf(const QWidget *window, QWidget *sheet)
{
    sheet->adjustSize();
    // Both are framed alike.
    const QRect around = window->frameGeometry();
    QRect frame(QPoint(), sheet->size() + around.size() - window->size());
    frame.moveCenter(around.center());
    const QRect screen = window->screen()->availableGeometry();
    sheet->move(keptWithin(frame.x(), frame.width(), screen.x(), screen.x() + screen.width()),
        keptWithin(frame.y(), frame.height(), screen.y(), screen.y() + screen.height()));
}

bool isExposed(const QWidget *window)
{
    return window->windowHandle() && window->windowHandle()->isExposed();
}

bool hasSheet(const QWidget *window)
{
    const auto alerts = window->findChildren<AlertWindow *>(QString(), Qt::FindDirectChildrenOnly);
    return std::any_of(alerts.cbegin(), alerts.cend(),
        [](const AlertWindow *alert) { return alert->isVisible() && alert->windowModality() == Qt::WindowModal; });
}

} // namespace

AlertSheets *AlertSheets::ofView(QWidget *view)
{
    const QObject *owner = view ? static_cast<QObject *>(view) : qApp;
    auto *sheets = owner->findChild<AlertSheets *>(QString(), Qt::FindDirectChildrenOnly);
    return sheets ? sheets : new AlertSheets(view);
}

AlertSheets::AlertSheets(QWidget *view)
    : QObject(view ? static_cast<QObject *>(view) : qApp), view_(view), hasView_(view != nullptr)
{
    if (!view)
        return;
    view->installEventFilter(this);
    watchWindow();
}

AlertSheets::~AlertSheets()
{
    // The window may outlive the view.
    if (hasView_)
        takeDown();
}

void AlertSheets::watchWindow()
{
    if (QWindow *handle = window()->windowHandle())
        handle->installEventFilter(this);
}

void AlertSheets::begin(AlertSheet sheet)
{
    if (sheet.delegate)
        connect(sheet.delegate, &QObject::destroyed, this, &AlertSheets::dropSheetsOf, Qt::UniqueConnection);
    sheets_.push_back(std::move(sheet));
    showFirst();
}

bool AlertSheets::canShow() const
{
    if (!hasView_)
        return true;
    // Before a window is first on screen its window manager may still place it elsewhere.
    return view_ && view_->isVisible() && isExposed(window()) && !hasSheet(window());
}

void AlertSheets::showFirst()
{
    if (sheets_.empty() || !canShow() || (shown_ && shown_->isVisible()))
        return;
    if (!shown_) {
        const Qt::WindowModality modality = hasView_ ? Qt::WindowModal : Qt::ApplicationModal;
        shown_ = new AlertWindow(sheets_.front().content, modality, window());
        connect(shown_, &QDialog::finished, this, &AlertSheets::end);
    }
    if (hasView_)
        showOnWindow();
    else
        shown_->show();
}

void AlertSheets::showOnWindow()
{
    // The view may have come into another window meanwhile.
    if (shown_->parentWidget() != window())
        shown_->setParent(window(), shown_->windowFlags());
    putInFrontOf(window(), shown_);
    // Hidden while minimised along with its window, it would take the window down again.
    shown_->setWindowState(shown_->windowState() & ~Qt::WindowMinimized);
    shown_->show();
}

void AlertSheets::showNextOn(const QWidget *window)
{
    for (AlertSheets *sheets : window->findChildren<AlertSheets *>())
        sheets->showFirst();
}

void AlertSheets::takeDown()
{
    if (!shown_)
        return;
    shown_->disconnect(this);
    shown_->hide();
    shown_->deleteLater();
    shown_ = nullptr;
}

void AlertSheets::end()
{
    const QPointer<AlertSheets> self = this;
    const QPointer<QWidget> window = this->window();
    const QPointer<AlertWindow> answered = shown_;
    const AlertSheet sheet = std::move(sheets_.front());
    sheets_.pop_front();
    takeDown();
    if (window && sheets_.empty())
        window->activateWindow();
    // It may do anything, also destroy the window.
    runAtBoundary("end of an alert sheet", [&] { sheet.didEnd(*answered); });
    if (self)
        showFirst();
    if (window)
        showNextOn(window);
}

void AlertSheets::dropSheetsOf(const QObject *delegate)
{
    const bool isShown = shown_ && !sheets_.empty() && sheets_.front().delegate == delegate;
    if (isShown)
        takeDown();
    std::erase_if(sheets_, [delegate](const AlertSheet &sheet) { return sheet.delegate == delegate; });
    if (isShown && sheets_.empty() && window())
        window()->activateWindow();
    showFirst();
    if (window())
        showNextOn(window());
}

bool AlertSheets::eventFilter(QObject *object, QEvent *event)
{
    const bool isShow = object == view_ && event->type() == QEvent::Show;
    if (isShow)
        watchWindow();
    // Where only the window is minimised, the window manager does the same with its sheet, which goes on blocking it.
    if (object == view_ && event->type() == QEvent::Hide && !event->spontaneous() && shown_)
        shown_->hide();
    if (isShow || event->type() == QEvent::Expose)
        QMetaObject::invokeMethod(this, &AlertSheets::showFirst, Qt::QueuedConnection);
    return false;
}
