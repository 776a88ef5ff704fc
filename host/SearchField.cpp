#include "host/SearchField.h"

#include "host/HostText.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCompleter>
#include <QKeyEvent>
#include <QPainter>
#include <QStandardItemModel>
#include <algorithm>

namespace {

constexpr int mostMatches = 12;
constexpr int widthOfLens = 22;
constexpr int marginOfLines = 24;
constexpr double lensRadius = 4.5;

QString line(const SearchedControl &match)
{
    return match.page.isEmpty() || match.page == match.name ? match.name
                                                            : QStringLiteral("%1  –  %2").arg(match.name, match.page);
}

} // namespace

SearchField::SearchField(QWidget *parent)
    : QLineEdit(parent), model_(new QStandardItemModel(this)), completer_(new QCompleter(model_, this))
{
    setObjectName(QStringLiteral("controlSearchField"));
    setPlaceholderText(hostText(QStringLiteral("Search")));
    setAccessibleName(hostText(QStringLiteral("Search settings")));
    setToolTip(QKeySequence(Qt::CTRL | Qt::Key_F).toString(QKeySequence::NativeText));
    setClearButtonEnabled(true);
    leaveRoomForLens();
    // The list holds what matches already.
    completer_->setCompletionMode(QCompleter::UnfilteredPopupCompletion);
    completer_->setMaxVisibleItems(mostMatches);
    completer_->setWidget(this);
    connect(this, &QLineEdit::textEdited, this, &SearchField::fill);
    connect(completer_, qOverload<const QModelIndex &>(&QCompleter::activated), this,
        [this](const QModelIndex &index) { pick(index.row()); });
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *before, QWidget *now) {
        if (now == this && before && view_ && view_->isAncestorOf(before))
            focusBefore_ = before;
    });
}

void SearchField::focusInEvent(QFocusEvent *event)
{
    if (event->reason() != Qt::PopupFocusReason && view_)
        controls_ = searchedControls(view_);
    QLineEdit::focusInEvent(event);
}

void SearchField::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LayoutDirectionChange)
        leaveRoomForLens();
    QLineEdit::changeEvent(event);
}

void SearchField::leaveRoomForLens()
{
    const bool isMirrored = layoutDirection() == Qt::RightToLeft;
    setTextMargins(isMirrored ? 0 : widthOfLens, 0, isMirrored ? widthOfLens : 0, 0);
}

/// The looking-glass is drawn, as an icon would not follow the palette.
void SearchField::paintEvent(QPaintEvent *event)
{
    QLineEdit::paintEvent(event);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QPalette::ColorRole role = hasFocus() ? QPalette::Text : QPalette::PlaceholderText;
    painter.setPen(QPen(palette().color(role), 1.6, Qt::SolidLine, Qt::RoundCap));
    const double x = layoutDirection() == Qt::RightToLeft ? width() - 15.5 : 14.5;
    const QPointF center(x, height() / 2.0 - 1);
    painter.drawEllipse(center, lensRadius, lensRadius);
    painter.drawLine(center + QPointF(3.4, 3.4), center + QPointF(6.6, 6.6));
}

void SearchField::fill(const QString &search)
{
    matches_.clear();
    model_->clear();
    for (const SearchedControl &one : std::as_const(controls_)) {
        if (model_->rowCount() < mostMatches && one.control && controlMatches(one, search)) {
            matches_.append(one);
            model_->appendRow(new QStandardItem(line(one)));
        }
    }
    if (matches_.isEmpty())
        completer_->popup()->hide();
    else
        completer_->complete(placeOfList());
}

/// As wide as its lines, where the window is; it ends where the field does.
QRect SearchField::placeOfList() const
{
    const int lines = completer_->popup()->sizeHintForColumn(0) + marginOfLines;
    const int wide = std::clamp(lines, width(), std::max(width(), window()->width()));
    return {layoutDirection() == Qt::RightToLeft ? 0 : width() - wide, 0, wide, height()};
}

void SearchField::showFirstMatch(const QString &search)
{
    if (!view_ || search.isEmpty())
        return;
    controls_ = searchedControls(view_);
    for (const SearchedControl &one : std::as_const(controls_)) {
        if (controlMatches(one, search)) {
            showControl(one.control);
            return;
        }
    }
}

void SearchField::pick(int place)
{
    const QPointer<QWidget> control = place < matches_.size() ? matches_.at(place).control : nullptr;
    close();
    if (control)
        showControl(control);
}

void SearchField::close()
{
    completer_->popup()->hide();
    clear();
    matches_.clear();
    if (QWidget *focus = focusBefore_ && focusBefore_->isVisible() ? focusBefore_.data() : view_.data())
        (focus == view_ ? focus->nextInFocusChain() : focus)->setFocus(Qt::OtherFocusReason);
}

void SearchField::keyPressEvent(QKeyEvent *event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (event->key() == Qt::Key_Escape)
        close();
    else if (isReturn && !text().isEmpty() && !matches_.isEmpty())
        pick(std::max(0, completer_->popup()->currentIndex().row()));
    else if (!isReturn)
        QLineEdit::keyPressEvent(event);
}
