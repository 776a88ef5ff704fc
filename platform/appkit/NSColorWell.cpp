#include "platform/appkit/NSColorWell.h"

#include "platform/appkit/NSColorPanel.h"
#include "platform/appkit/SystemColors.h"
#include "platform/foundation/NSBundle.h"

#include <QKeyEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>

namespace {

constexpr int borderWidth = 4;

void paintCheckerboard(QPainter *painter, const QRect &area)
{
    constexpr int square = 6;
    painter->fillRect(area, Qt::white);
    for (int y = 0; y < area.height(); y += square) {
        for (int x = (y / square) % 2 * square; x < area.width(); x += 2 * square)
            painter->fillRect(QRect(area.topLeft() + QPoint(x, y), QSize(square, square)) & area, Qt::lightGray);
    }
}

} // namespace

NSColorWell::NSColorWell(QWidget *parent) : QAbstractButton(parent), color_(NSColor::whiteColor())
{
    setFocusPolicy(Qt::StrongFocus);
    connect(this, &QAbstractButton::clicked, this, &NSColorWell::activate);
    describeColor();
}

NSColorWell::~NSColorWell() = default;

void NSColorWell::setColor(const NSColorRef &color)
{
    color_ = color;
    describeColor();
    update();
    NSColorPanel::colorWasSet(this);
}

QColor NSColorWell::initialColor() const
{
    return liveColor(color_);
}

void NSColorWell::setInitialColor(const QColor &color)
{
    setColor(calibratedColor(color));
}

void NSColorWell::takeColorFromPanel(const NSColorRef &color)
{
    color_ = color;
    describeColor();
    update();
    Q_EMIT colorPicked();
}

QSize NSColorWell::sizeHint() const
{
    return {48, 24};
}

void NSColorWell::describeColor()
{
    const QColor shown = liveColor(color_);
    const QString opaque = NSBundle::mainBundle()->localizedStringForKeyValueTable(QStringLiteral("%1, %2 % opaque"));
    setAccessibleDescription(opaque.arg(shown.name()).arg(qRound(shown.alphaF() * 100)));
}

void NSColorWell::changeEvent(QEvent *event)
{
    // A system colour follows the palette.
    if (event->type() == QEvent::PaletteChange)
        describeColor();
    QAbstractButton::changeEvent(event);
}

void NSColorWell::paintBorder(QPainter *painter) const
{
    const bool active = isDown() || NSColorPanel::activeWell() == this;
    painter->setPen(palette().color(active ? QPalette::Highlight : QPalette::Mid));
    painter->setBrush(palette().color(active ? QPalette::Highlight : QPalette::Button));
    painter->drawRoundedRect(rect().adjusted(0, 0, -1, -1), 3, 3);
}

void NSColorWell::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    paintBorder(&painter);
    if (!isEnabled())
        painter.setOpacity(0.4);
    const QRect area = rect().adjusted(borderWidth, borderWidth, -borderWidth, -borderWidth);
    paintCheckerboard(&painter, area);
    painter.fillRect(area, liveColor(color_));
    if (hasFocus()) {
        QStyleOptionFocusRect focus;
        focus.initFrom(this);
        focus.rect = rect().adjusted(2, 2, -2, -2);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
    }
}

void NSColorWell::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        QAbstractButton::keyPressEvent(event);
}

void NSColorWell::activate()
{
    NSColorPanel::sharedColorPanel()->orderFrontForWell(this);
}
