#include "platform/appkit/help/internal/viewer/HelpSidebar.h"

#include "platform/appkit/help/internal/viewer/FoundPageDelegate.h"
#include "platform/appkit/help/internal/viewer/HelpCollection.h"
#include "platform/appkit/help/internal/viewer/HelpText.h"

#include <QHelpContentModel>
#include <QLabel>
#include <QListWidget>
#include <QToolTip>
#include <QTreeView>
#include <QVBoxLayout>

namespace {

constexpr int narrowest = 180;

QListWidgetItem *itemFor(const FoundPage &page)
{
    auto *item = new QListWidgetItem(page.title);
    item->setData(FoundPageDelegate::ExcerptRole, page.excerpt);
    item->setData(FoundPageDelegate::AddressRole, page.address);
    item->setData(Qt::AccessibleDescriptionRole, page.excerpt);
    return item;
}

/// Rows that are easy to hit, and tell their whole title where it does not fit.
class RoomyRows : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        return QStyledItemDelegate::sizeHint(option, index) + QSize(0, 10);
    }
    bool helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
        const QModelIndex &index) override
    {
        const bool fits = sizeHint(option, index).width() <= option.rect.width();
        QToolTip::showText(event->globalPos(), fits ? QString() : index.data().toString(), view);
        return true;
    }
};

/// The entry that leads to a place: to the very anchor, else to its page.
QModelIndex entryOf(const QHelpContentModel *model, const QUrl &place, QUrl::FormattingOptions comparing)
{
    QList<QModelIndex> waiting{QModelIndex()};
    while (!waiting.isEmpty()) {
        const QModelIndex parent = waiting.takeFirst();
        for (int row = 0; row < model->rowCount(parent); ++row) {
            const QModelIndex index = model->index(row, 0, parent);
            if (model->contentItemAt(index)->url().matches(place, comparing))
                return index;
            waiting += index;
        }
    }
    return {};
}

} // namespace

HelpSidebar::HelpSidebar(QWidget *parent) : QStackedWidget(parent), contents_(new QTreeView(this))
{
    setMinimumWidth(narrowest);
    contents_->setObjectName(QStringLiteral("helpContents"));
    contents_->setAccessibleName(helpText(QStringLiteral("Contents")));
    contents_->setHeaderHidden(true);
    contents_->setFrameShape(QFrame::NoFrame);
    contents_->setUniformRowHeights(true);
    contents_->setIndentation(16);
    contents_->setRootIsDecorated(false);
    contents_->setItemDelegate(new RoomyRows(contents_));
    // One step off the page's ground.
    contents_->viewport()->setBackgroundRole(QPalette::Window);
    connect(contents_, &QTreeView::activated, this, &HelpSidebar::chooseContent);
    connect(contents_, &QTreeView::clicked, this, &HelpSidebar::chooseContent);
    auto *page = new QWidget(this);
    auto *layout = new QVBoxLayout(page);
    layout->setContentsMargins(8, 8, 0, 0);
    layout->addWidget(contents_);
    addWidget(page);
    addWidget(makeResults());
}

QWidget *HelpSidebar::makeResults()
{
    auto *page = new QWidget(this);
    resultsTitle_ = new QLabel(page);
    resultsTitle_->setObjectName(QStringLiteral("helpResultsTitle"));
    resultsTitle_->setTextFormat(Qt::PlainText);
    resultsTitle_->setWordWrap(true);
    resultsTitle_->setContentsMargins(12, 8, 12, 8);
    results_ = new QListWidget(page);
    results_->setObjectName(QStringLiteral("helpResults"));
    results_->setAccessibleName(helpText(QStringLiteral("Pages found")));
    results_->setFrameShape(QFrame::NoFrame);
    results_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    results_->viewport()->setBackgroundRole(QPalette::Window);
    results_->setResizeMode(QListView::Adjust);
    results_->setItemDelegate(new FoundPageDelegate(results_));
    const auto choose = [this](const QListWidgetItem *item) {
        Q_EMIT placeChosen(item->data(FoundPageDelegate::AddressRole).toUrl());
    };
    connect(results_, &QListWidget::itemActivated, this, choose);
    connect(results_, &QListWidget::itemClicked, this, choose);
    auto *layout = new QVBoxLayout(page);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(resultsTitle_);
    layout->addWidget(results_, 1);
    return page;
}

void HelpSidebar::setBook(const HelpCollection *book)
{
    delete std::exchange(search_, nullptr);
    contents_->setModel(nullptr);
    place_.clear();
    lookFor({});
    book_ = book;
    if (!book)
        return;
    search_ = new HelpSearch(book->search(), this);
    connect(search_, &HelpSearch::found, this, &HelpSidebar::showFound);
    connect(book->contents(), &QHelpContentModel::contentsCreated, this, &HelpSidebar::takeContents);
    contents_->setModel(book->contents());
    book->contents()->createContents(QString());
}

void HelpSidebar::takeContents()
{
    contents_->expandAll();
    setCurrentPlace(place_);
    Q_EMIT contentsRead();
}

void HelpSidebar::lookFor(const QStringList &words)
{
    setCurrentIndex(words.isEmpty() || !search_ ? 0 : 1);
    if (currentIndex() == 0)
        return;
    resultsTitle_->setText(helpText(QStringLiteral("Looking…")));
    results_->clear();
    search_->lookFor(words);
}

void HelpSidebar::showFound(const QList<FoundPage> &pages)
{
    results_->clear();
    for (const FoundPage &page : pages)
        results_->addItem(itemFor(page));
    results_->setCurrentRow(0);
    resultsTitle_->setText(pages.isEmpty() ? helpText(QStringLiteral("No page has all of these words."))
                                           : helpText(QStringLiteral("Pages found: %1")).arg(pages.size()));
}

void HelpSidebar::setCurrentPlace(const QUrl &address)
{
    place_ = address;
    if (!book_ || address.isEmpty())
        return;
    QModelIndex entry = entryOf(book_->contents(), address, QUrl::None);
    if (!entry.isValid())
        entry = entryOf(book_->contents(), address, QUrl::RemoveFragment);
    contents_->setCurrentIndex(entry);
    if (entry.isValid())
        contents_->scrollTo(entry);
}

QString HelpSidebar::bookTitle() const
{
    const QHelpContentModel *model = book_ ? book_->contents() : nullptr;
    return model && model->rowCount() > 0 ? model->index(0, 0).data().toString() : QString();
}

void HelpSidebar::chooseContent(const QModelIndex &index)
{
    if (book_ && index.isValid())
        Q_EMIT placeChosen(book_->contents()->contentItemAt(index)->url());
}

void HelpSidebar::focusList()
{
    if (currentIndex() == 0)
        contents_->setFocus(Qt::ShortcutFocusReason);
    else
        results_->setFocus(Qt::ShortcutFocusReason);
}
