#include "platform/appkit/colors/NSColorPanel.h"

#include "platform/appkit/colors/NSColorWell.h"
#include "platform/appkit/colors/SystemColors.h"

#include <QColorDialog>
#include <QEvent>
#include <QGuiApplication>
#include <QLayout>
#include <QScreen>
#include <QSignalBlocker>
#include <QWindow>
#include <algorithm>

namespace {

/// From y downward to y upward, or back.
QRectF flipped(const QRectF &frame)
{
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    return {frame.x() - screen.x(), screen.y() + screen.height() - frame.y() - frame.height(), frame.width(),
        frame.height()};
}

QPoint topLeftOnScreen(const QRectF &frameWithYUpward)
{
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    const int top = screen.height() - qFloor(frameWithYUpward.y()) - qRound(frameWithYUpward.height());
    return screen.topLeft() + QPoint(qFloor(frameWithYUpward.x()), top);
}

QMargins marginsOf(const QWidget *window)
{
    const QWindow *handle = window->windowHandle();
    return handle && handle->handle() ? handle->frameMargins() : QMargins();
}

QMargins marginsOfAnyWindow()
{
    for (const QWindow *window : QGuiApplication::topLevelWindows()) {
        if (window->isVisible() && window->handle() && !window->frameMargins().isNull())
            return window->frameMargins();
    }
    return {};
}

bool windowsCanBePlaced()
{
    return QGuiApplication::platformName() == QLatin1StringView("xcb");
}

} // namespace

QRectF windowFrame(const QWidget *window)
{
    return window ? flipped(window->window()->geometry() + marginsOf(window->window())) : QRectF();
}

NSColorPanel *&NSColorPanel::instance()
{
    static NSColorPanel *panel = nullptr;
    return panel;
}

NSColorPanel *NSColorPanel::sharedColorPanel()
{
    if (!instance()) {
        instance() = new NSColorPanel;
        // A window must go before the application object does.
        qAddPostRoutine([] { delete std::exchange(instance(), nullptr); });
    }
    return instance();
}

NSColorPanel::NSColorPanel() : window_(new QColorDialog)
{
    window_->setOptions(QColorDialog::ShowAlphaChannel | QColorDialog::NoButtons | QColorDialog::DontUseNativeDialog);
    window_->setModal(false);
    window_->setAttribute(Qt::WA_QuitOnClose, false);
    // Window managers draw less around a window of fixed size: this one is to be framed like the others.
    window_->layout()->setSizeConstraint(QLayout::SetMinimumSize);
    window_->adjustSize();
    window_->installEventFilter(this);
    connect(window_, &QColorDialog::currentColorChanged, this, &NSColorPanel::giveColorToWell);
    connect(window_, &QDialog::finished, this, &NSColorPanel::letGoOfWell);
}

NSColorPanel::~NSColorPanel()
{
    delete window_;
}

QMargins NSColorPanel::frameMargins() const
{
    if (window_->isVisible())
        return marginsOf(window_);
    return marginsWhenShown_ ? *marginsWhenShown_ : marginsOfAnyWindow();
}

QRectF NSColorPanel::frame() const
{
    return flipped(window_->geometry() + frameMargins());
}

void NSColorPanel::setFrameOrigin(QPointF origin)
{
    if (!windowsCanBePlaced())
        return;
    const QMargins margins = frameMargins();
    const QPoint topLeft = topLeftOnScreen(QRectF(origin, frame().size())) + QPoint(margins.left(), margins.top());
    window_->setGeometry(QRect(topLeft, window_->size()));
    originWhileHidden_ = window_->isVisible() ? std::nullopt : std::optional(origin);
}

bool NSColorPanel::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == window_ && event->type() == QEvent::Show)
        window_->windowHandle()->installEventFilter(this);
    else if (watched == window_->windowHandle() && event->type() == QEvent::Expose)
        windowIsOnScreen();
    return false;
}

void NSColorPanel::windowIsOnScreen()
{
    if (!window_->windowHandle()->isExposed())
        return;
    marginsWhenShown_ = marginsOf(window_);
    // What the window manager draws around the panel may have been a guess until now.
    if (originWhileHidden_)
        setFrameOrigin(*std::exchange(originWhileHidden_, std::nullopt));
    bringIntoSight();
}

/// The place beside a window that fills the screen, or stands at its right edge, is beyond the screen.
void NSColorPanel::bringIntoSight()
{
    if (!activeWell_ || !windowsCanBePlaced())
        return;
    const QRect room = activeWell_->screen()->availableGeometry();
    const QMargins margins = frameMargins();
    QRect frame = window_->geometry() + margins;
    frame.moveRight(std::min(frame.right(), room.right()));
    frame.moveBottom(std::min(frame.bottom(), room.bottom()));
    frame.moveTopLeft({std::max(frame.left(), room.left()), std::max(frame.top(), room.top())});
    window_->setGeometry(frame - margins);
}

void NSColorPanel::orderFrontForWell(NSColorWell *well)
{
    const QPointer<NSColorWell> before = std::exchange(activeWell_, well);
    showColor(well->color());
    if (before)
        before->update();
    well->update();
    window_->setWindowIcon(well->window()->windowIcon());
    window_->show();
    window_->raise();
    window_->activateWindow();
}

NSColorWell *NSColorPanel::activeWell()
{
    return instance() ? instance()->activeWell_.data() : nullptr;
}

void NSColorPanel::colorWasSet(const NSColorWell *well)
{
    if (NSColorPanel *panel = instance(); panel && panel->activeWell_ == well)
        panel->showColor(well->color());
}

void NSColorPanel::showColor(const NSColorRef &color)
{
    const QSignalBlocker noAction(window_);
    window_->setCurrentColor(liveColor(color));
}

void NSColorPanel::giveColorToWell(const QColor &color)
{
    if (activeWell_)
        activeWell_->takeColorFromPanel(calibratedColor(color));
}

void NSColorPanel::letGoOfWell()
{
    if (const QPointer<NSColorWell> well = std::exchange(activeWell_, nullptr))
        well->update();
}
