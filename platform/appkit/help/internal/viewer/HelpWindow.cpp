#include "platform/appkit/help/internal/viewer/HelpWindow.h"

#include "platform/appkit/help/internal/viewer/HelpCollection.h"
#include "platform/appkit/help/internal/viewer/HelpHeader.h"
#include "platform/appkit/help/internal/viewer/HelpPage.h"
#include "platform/appkit/help/internal/viewer/HelpSidebar.h"
#include "platform/appkit/help/internal/viewer/HelpState.h"
#include "platform/appkit/help/internal/viewer/HelpText.h"
#include "platform/foundation/system/NSLog.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QShortcut>
#include <QSplitter>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWindow>

namespace {

constexpr QSize defaultSize(980, 700);
constexpr QSize smallestSize(480, 320);
constexpr int sidebarWidth = 260;

QFrame *makeLine(QWidget *parent)
{
    auto *line = new QFrame(parent);
    line->setFrameShape(QFrame::HLine);
    line->setFrameShadow(QFrame::Plain);
    line->setForegroundRole(QPalette::Mid);
    return line;
}

} // namespace

HelpWindow::HelpWindow()
    : header_(new HelpHeader(this)), sidebar_(new HelpSidebar(this)), page_(new HelpPage(this)),
      notice_(new QLabel(this))
{
    setObjectName(QStringLiteral("helpWindow"));
    // The program ends with its own window, not with this one.
    setAttribute(Qt::WA_QuitOnClose, false);
    auto *parts = new QSplitter(this);
    parts->addWidget(sidebar_);
    parts->addWidget(page_);
    parts->setStretchFactor(1, 1);
    parts->setSizes({sidebarWidth, defaultSize.width() - sidebarWidth});
    parts->setChildrenCollapsible(false);
    parts->setHandleWidth(1);
    notice_->setObjectName(QStringLiteral("helpNotice"));
    notice_->setTextFormat(Qt::PlainText);
    notice_->setContentsMargins(12, 6, 12, 6);
    notice_->hide();
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(header_);
    layout->addWidget(makeLine(this));
    layout->addWidget(parts, 1);
    layout->addWidget(notice_);
    connectSidebar();
    connectPage();
    addShortcuts();
    setMinimumSize(smallestSize);
    const QSize remembered = HelpState::windowSize();
    const QSize room = screen()->availableSize() - QSize(16, 48);
    resize((remembered.isValid() ? remembered : defaultSize).boundedTo(room).expandedTo(smallestSize));
    page_->setZoom(HelpState::zoom());
}

HelpWindow::~HelpWindow()
{
    if (isVisible())
        remember();
    page_->disconnect(this);
    sidebar_->setBook(nullptr);
    page_->setBook(nullptr);
}

void HelpWindow::connectSidebar()
{
    connect(sidebar_, &HelpSidebar::placeChosen, this, &HelpWindow::openPlace);
    connect(sidebar_, &HelpSidebar::contentsRead, this, &HelpWindow::showTitle);
    connect(header_->search, &QLineEdit::textChanged, this,
        [this](const QString &text) { sidebar_->lookFor(HelpSearch::wordsIn(text)); });
    connect(header_->search, &QLineEdit::returnPressed, sidebar_, &HelpSidebar::focusList);
}

void HelpWindow::connectPage()
{
    connect(page_, &QTextBrowser::backwardAvailable, header_->back, &QWidget::setEnabled);
    connect(page_, &QTextBrowser::forwardAvailable, header_->forward, &QWidget::setEnabled);
    connect(header_->back, &QToolButton::clicked, page_, &QTextBrowser::backward);
    connect(header_->forward, &QToolButton::clicked, page_, &QTextBrowser::forward);
    connect(header_->smaller, &QToolButton::clicked, page_, &HelpPage::zoomOutOneStep);
    connect(header_->larger, &QToolButton::clicked, page_, &HelpPage::zoomInOneStep);
    connect(page_, &HelpPage::webPageWanted, this, &HelpWindow::openWebPage);
    connect(page_, &HelpPage::pageChanged, this, [this](const QUrl &place) {
        notice_->hide();
        showTitle();
        sidebar_->setCurrentPlace(place);
    });
}

void HelpWindow::addShortcuts()
{
    const auto add = [this](const QKeySequence &keys, const auto *receiver, auto wish) {
        connect(new QShortcut(keys, this), &QShortcut::activated, receiver, wish);
    };
    for (const QKeySequence &keys : {QKeySequence(Qt::ALT | Qt::Key_Left), QKeySequence(Qt::Key_Back)})
        add(keys, page_, &QTextBrowser::backward);
    for (const QKeySequence &keys : {QKeySequence(Qt::ALT | Qt::Key_Right), QKeySequence(Qt::Key_Forward)})
        add(keys, page_, &QTextBrowser::forward);
    for (const QKeySequence &keys : {QKeySequence(Qt::CTRL | Qt::Key_Plus), QKeySequence(Qt::CTRL | Qt::Key_Equal)})
        add(keys, page_, &HelpPage::zoomInOneStep);
    add(Qt::CTRL | Qt::Key_Minus, page_, &HelpPage::zoomOutOneStep);
    add(Qt::CTRL | Qt::Key_0, page_, [this] { page_->setZoom(100); });
    add(Qt::Key_F3, page_, [this] { page_->goToMark(false); });
    add(Qt::SHIFT | Qt::Key_F3, page_, [this] { page_->goToMark(true); });
    add(Qt::ALT | Qt::Key_Home, this, &HelpWindow::goToStart);
    add(Qt::CTRL | Qt::Key_F, this, &HelpWindow::focusSearch);
    add(Qt::Key_F6, this, &HelpWindow::changeSide);
    add(Qt::Key_Escape, this, &HelpWindow::leaveSearchOrClose);
    add(Qt::CTRL | Qt::Key_W, this, &QWidget::close);
}

void HelpWindow::open(const HelpRequest &request)
{
    if (const QWidget *asking = QApplication::activeWindow(); asking && asking != this)
        setWindowIcon(asking->windowIcon());
    openURL_ = request.openURL;
    header_->search->clear();
    openBook(request.book);
    if (book_)
        openPlace(book_->placeOfAnchor(request.anchor));
    bringToFront(request.alert);
}

void HelpWindow::openBook(const HelpBook &book)
{
    if (book_ && book_->book() == book)
        return;
    sidebar_->setBook(nullptr);
    page_->setBook(nullptr);
    bookName_ = book.name;
    QString problem;
    book_ = HelpCollection::open(book, &problem);
    setPartsEnabled(book_ != nullptr);
    if (!book_)
        return tellProblem(book, problem);
    sidebar_->setBook(book_.get());
    page_->setBook(book_.get());
    page_->setFocus();
}

void HelpWindow::tellProblem(const HelpBook &book, const QString &problem)
{
    NSLog(QStringLiteral("lumaroo: help: the book %1 cannot be opened: %2").arg(book.name, problem));
    page_->setMessage(helpText(QStringLiteral("This help is not available")),
        helpText(QStringLiteral("Its book is missing or damaged. Installing the program again brings it back.")),
        problem);
}

void HelpWindow::setPartsEnabled(bool enabled)
{
    header_->search->setEnabled(enabled);
    sidebar_->setVisible(enabled);
    header_->back->setEnabled(false);
    header_->forward->setEnabled(false);
}

void HelpWindow::showTitle()
{
    const QString book = sidebar_->bookTitle().isEmpty() ? bookName_ : sidebar_->bookTitle();
    const QString page = page_->documentTitle();
    setWindowTitle(page.isEmpty() || page == book ? book : QStringLiteral("%1 – %2").arg(page, book));
}

void HelpWindow::bringToFront(QWidget *alert)
{
    winId(); // from now on there is a handle
    // An alert of the whole application blocks every window but those that belong to it.
    windowHandle()->setTransientParent(alert ? alert->windowHandle() : nullptr);
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

void HelpWindow::openPlace(const QUrl &place)
{
    page_->setSource(place);
    page_->markWords(HelpSearch::wordsIn(header_->search->text()));
}

void HelpWindow::openWebPage(const QUrl &address)
{
    const bool isOpened = openURL_ && openURL_(address);
    notice_->setText(helpText(QStringLiteral("The web page cannot be opened: %1")).arg(address.toDisplayString()));
    notice_->setVisible(!isOpened);
}

void HelpWindow::remember()
{
    HelpState::remember(normalSize_, page_->zoom());
}

void HelpWindow::closeEvent(QCloseEvent *event)
{
    remember();
    QWidget::closeEvent(event);
}

void HelpWindow::resizeEvent(QResizeEvent *event)
{
    if (!(windowState() & (Qt::WindowMaximized | Qt::WindowFullScreen)))
        normalSize_ = size();
    QWidget::resizeEvent(event);
}

void HelpWindow::goToStart()
{
    if (book_)
        openPlace(book_->firstPage());
}

void HelpWindow::focusSearch()
{
    header_->search->setFocus(Qt::ShortcutFocusReason);
    header_->search->selectAll();
}

void HelpWindow::changeSide()
{
    if (page_->hasFocus())
        sidebar_->focusList();
    else
        page_->setFocus(Qt::ShortcutFocusReason);
}

void HelpWindow::leaveSearchOrClose()
{
    if (header_->search->text().isEmpty()) {
        close();
        return;
    }
    header_->search->clear();
    page_->markWords({});
    page_->setFocus(Qt::ShortcutFocusReason);
}
