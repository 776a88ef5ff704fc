#include "platform/appkit/controls/PageTabView.h"

#include "platform/appkit/colors/ColorMixing.h"
#include "platform/appkit/controls/internal/PageSymbols.h"

#include <QFocusEvent>
#include <QPainter>
#include <QStyle>
#include <algorithm>

namespace {

constexpr int symbolSide = 20;
constexpr int gap = 4; // between symbol and name
constexpr int padding = 8;
constexpr int leastWidth = 76;
constexpr int widthOfSymbolAlone = 40;
constexpr int widthForAName = 52;
constexpr qreal radius = 8;
constexpr float shareOfHairline = 0.14f;

/// A letter in brackets stands in the tab like the rest.
QString textAsDrawn(QString text)
{
    return text.remove(u'&');
}

} // namespace

PageTabBar::PageTabBar(QTabWidget *tabView) : QTabBar(tabView), tabView_(tabView)
{
    setUsesScrollButtons(false);
    setExpanding(false);
    setDrawBase(false);
    setElideMode(Qt::ElideNone);
    setFocusPolicy(Qt::TabFocus);
}

QSize PageTabBar::tabSizeHint(int) const
{
    int widest = leastWidth;
    for (int index = 0; index < count(); ++index)
        widest = std::max(widest, fontMetrics().horizontalAdvance(textAsDrawn(tabText(index))) + 2 * padding);
    return {widest, padding + symbolSide + gap + fontMetrics().height() + padding};
}

QSize PageTabBar::minimumTabSizeHint(int index) const
{
    return {widthOfSymbolAlone, tabSizeHint(index).height()};
}

void PageTabBar::focusInEvent(QFocusEvent *event)
{
    const bool isByKey = event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason
        || event->reason() == Qt::ShortcutFocusReason;
    showFocus(isByKey || (showsFocus_ && event->reason() == Qt::ActiveWindowFocusReason));
    QTabBar::focusInEvent(event);
}

void PageTabBar::keyPressEvent(QKeyEvent *event)
{
    showFocus(true);
    QTabBar::keyPressEvent(event);
}

void PageTabBar::showFocus(bool shown)
{
    showsFocus_ = shown;
    update();
}

void PageTabBar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QColor hairline =
        mixed(palette().color(QPalette::Window), palette().color(QPalette::WindowText), shareOfHairline);
    painter.fillRect(0, height() - 1, width(), 1, hairline);
    for (int index = 0; index < count(); ++index) {
        if (isTabVisible(index))
            paintTab(painter, index);
    }
}

void PageTabBar::paintTab(QPainter &painter, int index) const
{
    const QRect place = tabRect(index);
    const bool isCurrent = index == currentIndex();
    const QColor color = palette().color(isCurrent ? QPalette::Link : QPalette::WindowText);
    const QRectF plate = QRectF(place).adjusted(2.5, 3.5, -2.5, -4.5);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(isCurrent && hasFocus() && showsFocus_ ? QPen(color, 2) : QPen(Qt::NoPen));
    painter.setBrush(isCurrent ? mixed(palette().color(QPalette::Window), color, 0.14f) : QColor(Qt::transparent));
    painter.drawRoundedRect(plate, radius, radius);
    const bool hasName = place.width() >= widthForAName;
    const int top = hasName ? place.top() + padding : place.center().y() - symbolSide / 2;
    paintPageSymbol(painter, tabView_->widget(index)->property("identifier").toString(),
        QRectF(place.center().x() - symbolSide / 2.0, top, symbolSide, symbolSide), color);
    if (!hasName)
        return;
    const bool showsMnemonic = style()->styleHint(QStyle::SH_UnderlineShortcut, nullptr, this);
    const QRect line(place.left() + 3, top + symbolSide + gap, place.width() - 6, fontMetrics().height());
    const int mnemonic = showsMnemonic ? Qt::TextShowMnemonic : Qt::TextHideMnemonic;
    painter.setPen(color);
    painter.drawText(line, Qt::AlignCenter | mnemonic,
        fontMetrics().elidedText(tabText(index), Qt::ElideRight, line.width(), mnemonic));
}

PageTabView::PageTabView(QWidget *parent) : QTabWidget(parent)
{
    setTabBar(new PageTabBar(this));
}
