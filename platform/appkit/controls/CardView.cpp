#include "platform/appkit/controls/CardView.h"

#include "platform/appkit/colors/ColorMixing.h"

#include <QApplication>
#include <QEvent>
#include <QLayout>
#include <QPainter>
#include <QScopedValueRollback>

namespace {

constexpr qreal radius = 12;
constexpr float shareOfHairline = 0.14f;
constexpr float shareOfGround = 0.04f; // where the fields' ground is the window's own

QColor groundIn(const QPalette &palette, QPalette::ColorGroup group)
{
    const QColor window = palette.color(group, QPalette::Window);
    const QColor fields = palette.color(group, QPalette::Base);
    return fields == window ? mixed(window, palette.color(group, QPalette::WindowText), shareOfGround) : fields;
}

} // namespace

CardView::CardView(QWidget *parent) : QWidget(parent)
{
    followPalette();
}

void CardView::followPalette()
{
    const QScopedValueRollback<bool> guard(following_, true);
    const QPalette around = parentWidget() ? parentWidget()->palette() : QApplication::palette();
    QPalette own = around;
    own.setResolveMask(0);
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
        own.setColor(group, QPalette::Window, groundIn(around, group));
    setPalette(own);
}

bool CardView::event(QEvent *event)
{
    const bool handled = QWidget::event(event);
    const bool isOfPalette = event->type() == QEvent::PaletteChange || event->type() == QEvent::ParentChange;
    if (isOfPalette && !following_)
        followPalette();
    return handled;
}

void CardView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor hairline =
        mixed(palette().color(QPalette::Window), palette().color(QPalette::WindowText), shareOfHairline);
    painter.setPen(QPen(hairline, 1));
    painter.setBrush(palette().color(QPalette::Window));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
    int lastBottom = -1;
    for (int index = 0; layout() && index < layout()->count(); ++index) {
        const QLayoutItem *row = layout()->itemAt(index);
        if (row->isEmpty())
            continue;
        const QRect place = row->geometry();
        if (lastBottom >= 0)
            painter.fillRect(QRectF(place.left(), (lastBottom + place.top()) / 2, place.width(), 1), hairline);
        lastBottom = place.bottom();
    }
}
