#include "platform/appkit/AlertSheets.h"

#include "platform/foundation/Boundary.h"

#include <QApplication>
#include <QEvent>
#include <QScreen>
#include <QWindow>

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

} // namespace

AlertSheets *AlertSheets::ofWindow(QWidget *view)
{
    QWidget *window = view ? view->window() : nullptr;
    const QObject *owner = window ? static_cast<QObject *>(window) : qApp;
    auto *sheets = owner->findChild<AlertSheets *>(QString(), Qt::FindDirectChildrenOnly);
    return sheets ? sheets : new AlertSheets(window);
}

AlertSheets::AlertSheets(QWidget *window)
    : QObject(window ? static_cast<QObject *>(window) : qApp), window_(window), hasWindow_(window != nullptr)
{
    if (!window)
        return;
    window->installEventFilter(this);
    watchWindow();
}

void AlertSheets::watchWindow()
{
    if (QWindow *handle = window_->windowHandle())
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
    if (!hasWindow_)
        return true;
    // Before a window is first on screen its window manager may still place it elsewhere.
    return window_ && window_->isVisible() && window_->windowHandle() && window_->windowHandle()->isExposed();
}

void AlertSheets::showFirst()
{
    if (sheets_.empty() || !canShow() || (shown_ && shown_->isVisible()))
        return;
    if (!shown_) {
        const Qt::WindowModality modality = hasWindow_ ? Qt::WindowModal : Qt::ApplicationModal;
        shown_ = new AlertWindow(sheets_.front().content, modality, window_);
        connect(shown_, &QDialog::finished, this, &AlertSheets::end);
    }
    if (hasWindow_)
        putInFrontOf(window_, shown_);
    shown_->show();
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
    const QPointer<AlertWindow> window = shown_;
    const AlertSheet sheet = std::move(sheets_.front());
    sheets_.pop_front();
    takeDown();
    if (window_ && sheets_.empty())
        window_->activateWindow();
    // It may do anything, also destroy the window.
    runAtBoundary("end of an alert sheet", [&] { sheet.didEnd(*window); });
    if (self)
        showFirst();
}

void AlertSheets::dropSheetsOf(const QObject *delegate)
{
    if (!sheets_.empty() && sheets_.front().delegate == delegate)
        takeDown();
    std::erase_if(sheets_, [delegate](const AlertSheet &sheet) { return sheet.delegate == delegate; });
    showFirst();
}

bool AlertSheets::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() == QEvent::Show && object == window_)
        watchWindow();
    if (event->type() == QEvent::Hide && object == window_ && shown_)
        shown_->hide();
    if (event->type() == QEvent::Expose)
        QMetaObject::invokeMethod(this, &AlertSheets::showFirst, Qt::QueuedConnection);
    return false;
}
