#include "host/Overview.h"

#include "host/HostText.h"
#include "host/PaneGrid.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QStandardItemModel>
#include <QVBoxLayout>

namespace {

constexpr int pathRole = Qt::UserRole;
constexpr int margin = 24;

QStandardItem *itemFor(const InstalledPane &pane)
{
    auto *item = new QStandardItem(paneIcon(pane), pane.name);
    item->setData(pane.path, pathRole);
    item->setToolTip(pane.name);
    return item;
}

} // namespace

Overview::Overview(QWidget *parent)
    : QWidget(parent), searchField_(new QLineEdit(this)), grid_(new PaneGrid(this)), emptyNote_(new QLabel(this)),
      model_(new QStandardItemModel(this))
{
    setObjectName(QStringLiteral("overview"));
    searchField_->setObjectName(QStringLiteral("searchField"));
    searchField_->setPlaceholderText(hostText(QStringLiteral("Search")));
    searchField_->setAccessibleName(hostText(QStringLiteral("Search settings")));
    searchField_->setClearButtonEnabled(true);
    searchField_->setMaximumWidth(320);
    searchField_->installEventFilter(this);
    grid_->setObjectName(QStringLiteral("paneGrid"));
    grid_->setAccessibleName(hostText(QStringLiteral("All settings")));
    grid_->setModel(model_);
    emptyNote_->setObjectName(QStringLiteral("emptyNote"));
    emptyNote_->setAlignment(Qt::AlignCenter);
    emptyNote_->setWordWrap(true);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(margin, margin / 2, margin, margin);
    layout->setSpacing(18);
    layout->addWidget(searchField_, 0, Qt::AlignHCenter);
    layout->addWidget(grid_, 1);
    layout->addWidget(emptyNote_, 1);
    // A layout item aligned to the centre gets its size hint only; the field shall have its full width.
    searchField_->setMinimumWidth(320);

    connect(searchField_, &QLineEdit::textChanged, this, &Overview::search);
    connect(searchField_, &QLineEdit::returnPressed, this, &Overview::openFirst);
    connect(grid_, &PaneGrid::opened, this,
        [this](const QModelIndex &index) { Q_EMIT paneOpened(index.data(pathRole).toString()); });
}

void Overview::setPanes(const QList<InstalledPane> &panes)
{
    panes_ = panes;
    fill();
}

void Overview::search(const QString &)
{
    fill();
}

void Overview::fill()
{
    const QString text = searchField_->text();
    model_->clear();
    for (const InstalledPane &pane : std::as_const(panes_)) {
        if (paneMatches(pane, text))
            model_->appendRow(itemFor(pane));
    }
    const bool empty = model_->rowCount() == 0;
    emptyNote_->setText(panes_.isEmpty() ? hostText(QStringLiteral("No settings are installed."))
                                         : hostText(QStringLiteral("Nothing matches “%1”.")).arg(text));
    emptyNote_->setVisible(empty);
    grid_->setVisible(!empty);
    setCurrentPane(currentPath_);
}

void Overview::setCurrentPane(const QString &path)
{
    currentPath_ = path;
    const QModelIndexList found = model_->match(model_->index(0, 0), pathRole, path, 1, Qt::MatchExactly);
    grid_->setCurrentIndex(found.isEmpty() ? model_->index(0, 0) : found.first());
}

void Overview::focusSearch()
{
    searchField_->setFocus(Qt::ShortcutFocusReason);
    searchField_->selectAll();
}

void Overview::focusPanes()
{
    (grid_->isVisibleTo(this) ? static_cast<QWidget *>(grid_) : searchField_)->setFocus(Qt::OtherFocusReason);
}

QString Overview::searchText() const
{
    return searchField_->text().trimmed();
}

QStringList Overview::shownNames() const
{
    QStringList names;
    for (int row = 0; row < model_->rowCount(); ++row)
        names += model_->item(row)->text();
    return names;
}

void Overview::openFirst()
{
    if (model_->rowCount() > 0 && !searchField_->text().trimmed().isEmpty())
        Q_EMIT paneOpened(model_->index(0, 0).data(pathRole).toString());
}

bool Overview::eventFilter(QObject *object, QEvent *event)
{
    if (object != searchField_ || event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(object, event);
    const int key = static_cast<QKeyEvent *>(event)->key();
    if (key == Qt::Key_Escape)
        searchField_->clear();
    else if (key == Qt::Key_Down)
        focusPanes();
    return key == Qt::Key_Escape || key == Qt::Key_Down;
}
