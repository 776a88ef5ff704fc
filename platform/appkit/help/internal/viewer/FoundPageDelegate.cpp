#include "platform/appkit/help/internal/viewer/FoundPageDelegate.h"

#include <QApplication>
#include <QPainter>
#include <QTextLayout>

namespace {

constexpr int besides = 12;
constexpr int above = 8;
constexpr int excerptLines = 2;

QFont titleFont(const QStyleOptionViewItem &option)
{
    QFont font = option.font;
    font.setBold(true);
    return font;
}

/// As much of a text as some lines of this width hold.
void drawLines(QPainter *painter, const QRect &place, const QString &text, const QFontMetrics &metrics)
{
    QTextLayout layout(text, painter->font());
    layout.beginLayout();
    for (int number = 0; number < excerptLines; ++number) {
        QTextLine line = layout.createLine();
        if (!line.isValid())
            break;
        line.setLineWidth(place.width());
        const QString rest = text.mid(line.textStart());
        const bool isLast = number == excerptLines - 1;
        const QString shown = isLast ? metrics.elidedText(rest, Qt::ElideRight, place.width())
                                     : text.mid(line.textStart(), line.textLength());
        const QRect row(place.x(), place.y() + number * metrics.lineSpacing(), place.width(), metrics.lineSpacing());
        painter->drawText(row, Qt::AlignLeading | Qt::TextSingleLine, shown.trimmed());
    }
    layout.endLayout();
}

} // namespace

void FoundPageDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    QStyleOptionViewItem item = option;
    initStyleOption(&item, index);
    item.text.clear();
    QApplication::style()->drawControl(QStyle::CE_ItemViewItem, &item, painter, option.widget);
    const bool isSelected = option.state & QStyle::State_Selected;
    const QPalette::ColorGroup group = option.state & QStyle::State_Active ? QPalette::Active : QPalette::Inactive;
    painter->save();
    painter->setPen(option.palette.color(group, isSelected ? QPalette::HighlightedText : QPalette::Text));
    const QRect place = option.rect.adjusted(besides, above, -besides, -above);
    const QFontMetrics title(titleFont(option));
    painter->setFont(titleFont(option));
    painter->setLayoutDirection(option.direction);
    painter->drawText(QRect(place.x(), place.y(), place.width(), title.lineSpacing()),
        Qt::AlignLeading | Qt::TextSingleLine,
        title.elidedText(index.data().toString(), Qt::ElideRight, place.width()));
    painter->setFont(option.font);
    drawLines(painter, place.adjusted(0, title.lineSpacing() + 2, 0, 0), index.data(ExcerptRole).toString(),
        QFontMetrics(option.font));
    painter->restore();
}

QSize FoundPageDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &) const
{
    const int title = QFontMetrics(titleFont(option)).lineSpacing();
    const int excerpt = QFontMetrics(option.font).lineSpacing() * excerptLines;
    return {option.rect.width(), title + 2 + excerpt + 2 * above};
}
