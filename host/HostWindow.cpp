#include "host/HostWindow.h"

#include "host/ErrorPage.h"
#include "host/HostHeader.h"
#include "host/HostText.h"
#include "host/LetterTile.h"
#include "host/NoticeBar.h"
#include "host/Overview.h"
#include "host/PanePage.h"
#include "host/SearchField.h"
#include "host/linux/WindowActivation.h"
#include "platform/appkit/controls/AssistiveTools.h"
#include "platform/foundation/bundles/NSBundle.h"

#include <QApplication>
#include <QCloseEvent>
#include <QScreen>
#include <QShortcut>
#include <QStackedWidget>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWindow>
#include <utility>

namespace {

constexpr QSize defaultSize(820, 640);
constexpr QSize smallestSize(400, 280);

QString windowName()
{
    return hostText(QStringLiteral("Settings"));
}

QIcon hostIcon()
{
    const QIcon own(NSBundle::mainBundle()->pathForResourceOfType(QStringLiteral("Settings"), QStringLiteral("png")));
    const QIcon icon = QIcon::fromTheme(QGuiApplication::desktopFileName(), own);
    return icon.pixmap(32).isNull() ? letterTile(windowName()) : icon;
}

QSize largestSize(const QWidget *window)
{
    return window->screen()->availableSize() - QSize(16, 48);
}

QWidget *pageAround(const QWidget *view)
{
    QWidget *around = view->parentWidget();
    while (around && !qobject_cast<PanePage *>(around))
        around = around->parentWidget();
    return around;
}

bool isWithin(const QWidget *inner, const QWidget *outer)
{
    return inner && (inner == outer || outer->isAncestorOf(inner));
}

} // namespace

HostWindow::HostWindow(QSize rememberedSize)
    : stack_(new QStackedWidget(this)), header_(new HostHeader(this)), noticeBar_(new NoticeBar(this)),
      sizeChosen_(rememberedSize.isValid())
{
    describeControlsToAssistiveTools();
    setObjectName(QStringLiteral("settingsWindow"));
    stack_->setObjectName(QStringLiteral("pages"));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(header_);
    layout->addWidget(noticeBar_);
    connect(header_->backButton(), &QToolButton::clicked, this, &HostWindow::backRequested);
    layout->addWidget(stack_, 1);
    setMinimumSize(smallestSize);
    resize((sizeChosen_ ? rememberedSize : defaultSize).boundedTo(largestSize(this)).expandedTo(smallestSize));
    addShortcuts();
    // The mouse's own back button counts wherever in the window it is pressed.
    qApp->installEventFilter(this);
}

void HostWindow::offerOverview(bool offered)
{
    header_->backButton()->setVisible(offered);
    header_->search()->setVisible(!offered);
}

void HostWindow::addShortcuts()
{
    const auto add = [this](const QKeySequence &keys, void (HostWindow::*wish)()) {
        connect(new QShortcut(keys, this), &QShortcut::activated, this, wish);
    };
    add(Qt::ALT | Qt::Key_Left, &HostWindow::backRequested);
    add(Qt::Key_Back, &HostWindow::backRequested);
    add(Qt::CTRL | Qt::Key_F, &HostWindow::searchRequested);
    add(Qt::CTRL | Qt::Key_Q, &HostWindow::closeRequested);
    add(Qt::CTRL | Qt::Key_W, &HostWindow::closeRequested);
}

void HostWindow::showPage(QWidget *page, bool withHeader)
{
    if (stack_->indexOf(page) < 0)
        stack_->addWidget(page);
    header_->setVisible(withHeader);
    stack_->setCurrentWidget(page);
}

void HostWindow::showOverview(const QList<InstalledPane> &panes, const QString &currentPath)
{
    if (!overview_) {
        overview_ = new Overview;
        connect(overview_, &Overview::paneOpened, this, [this](const QString &path) {
            searched_ = overview_->searchText();
            Q_EMIT paneOpened(path);
        });
    }
    overview_->setPanes(panes);
    overview_->setCurrentPane(currentPath);
    setWindowTitle(windowName());
    iconOwner_.reset();
    setWindowIcon(hostIcon());
    showPage(overview_, false);
    overview_->focusPanes();
}

void HostWindow::focusSearch()
{
    if (overview_ && stack_->currentWidget() == overview_)
        overview_->focusSearch();
    else
        header_->search()->setFocus(Qt::ShortcutFocusReason);
}

void HostWindow::setTitle(const InstalledPane &pane)
{
    setWindowTitle(pane.name);
    header_->setTitle(pane.name);
    iconOwner_ = pane;
    if (isOnScreen())
        showIcon();
}

void HostWindow::showError(const InstalledPane &pane, const PaneFailureReport &report)
{
    if (!errorPage_)
        errorPage_ = new ErrorPage;
    setTitle(pane);
    offerOverview(true);
    errorPage_->setReport(pane.name, report);
    showPage(errorPage_, true);
    header_->backButton()->setFocus(Qt::OtherFocusReason);
}

void HostWindow::growFor(QWidget *view)
{
    if (std::exchange(sizeChosen_, true))
        return;
    const QSize wanted = view->sizeHint().expandedTo(view->minimumSizeHint()) + QSize(0, header_->sizeHint().height());
    resize(size().expandedTo(wanted).boundedTo(largestSize(this)));
}

void HostWindow::addView(QWidget *view)
{
    auto *page = new PanePage;
    showPage(page, true);
    // The page knows its room before it measures the view for it.
    layout()->activate();
    page->takeView(view);
}

void HostWindow::showView(QWidget *view, std::function<void()> onScreen)
{
    growFor(view);
    if (QWidget *page = pageAround(view))
        showPage(page, true);
    else
        addView(view);
    header_->search()->setView(view);
    QWidget *focus = lastFocus_.value(view);
    if (!focus)
        focus = view->nextInFocusChain();
    if (isWithin(focus, view))
        focus->setFocus(Qt::OtherFocusReason);
    onScreen_ = std::move(onScreen);
    show();
    tellWhenOnScreen();
}

void HostWindow::hideView(QWidget *view)
{
    onScreen_ = {};
    header_->search()->setView(nullptr);
    QWidget *focus = focusWidget();
    lastFocus_[view] = isWithin(focus, view) ? focus : nullptr;
    // A pane may have taken its view out of the window.
    if (QWidget *page = pageAround(view)) {
        stack_->removeWidget(page);
        page->hide();
    }
}

void HostWindow::showIcon()
{
    if (const auto pane = std::exchange(iconOwner_, std::nullopt))
        setWindowIcon(paneIcon(*pane));
}

bool HostWindow::isOnScreen() const
{
    // A window manager frames and places the window before it first shows; only then is its frame known.
    return windowHandle() && windowHandle()->isExposed();
}

void HostWindow::tellWhenOnScreen()
{
    if (!isOnScreen())
        return;
    // The window's content shall not wait for the decoding of its icon.
    showIcon();
    if (onScreen_)
        std::exchange(onScreen_, {})();
    showWhatWasSearched();
}

void HostWindow::showWhatWasSearched()
{
    // A pane that was searched by its own name is shown as it was left.
    if (!searched_.isEmpty() && !windowTitle().contains(searched_, Qt::CaseInsensitive))
        header_->search()->showFirstMatch(searched_);
    searched_.clear();
}

void HostWindow::bringToFront(const QString &activationToken)
{
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    // A question is answered before anything else.
    QWidget *question = QApplication::activeModalWidget();
    activateWindowWithToken(question ? question : this, activationToken);
}

bool HostWindow::event(QEvent *event)
{
    if (event->type() == QEvent::WindowUnblocked)
        Q_EMIT unblocked();
    if (event->type() == QEvent::WindowActivate)
        Q_EMIT activated();
    return QWidget::event(event);
}

bool HostWindow::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() == QEvent::Expose && object == windowHandle())
        QMetaObject::invokeMethod(this, &HostWindow::tellWhenOnScreen, Qt::QueuedConnection);
    if (event->type() != QEvent::MouseButtonPress || static_cast<QMouseEvent *>(event)->button() != Qt::BackButton)
        return QWidget::eventFilter(object, event);
    const auto *widget = qobject_cast<QWidget *>(object);
    if (!widget || widget->window() != this)
        return QWidget::eventFilter(object, event);
    Q_EMIT backRequested();
    return true;
}

void HostWindow::closeEvent(QCloseEvent *event)
{
    event->setAccepted(mayClose_);
    if (!mayClose_)
        Q_EMIT closeRequested();
}

void HostWindow::resizeEvent(QResizeEvent *event)
{
    if (!(windowState() & (Qt::WindowMaximized | Qt::WindowFullScreen)))
        normalSize_ = event->size();
    QWidget::resizeEvent(event);
}
