#include "platform/appkit/colors/NSColorWell.h"

#include "platform/appkit/colors/NSColorPanel.h"
#include "platform/appkit/colors/SystemColors.h"
#include "platform/foundation/bundles/NSBundle.h"

#include <QClipboard>
#include <QDragEnterEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMimeData>
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

/// The colour that a drop or the clipboard holds, or no valid one.
QColor colorIn(const QMimeData *data)
{
    if (data && data->hasColor())
        return qvariant_cast<QColor>(data->colorData());
    const QString text = data ? data->text().trimmed() : QString();
    return text.startsWith(u'#') ? QColor(text) : QColor();
}

} // namespace

NSColorWell::NSColorWell(QWidget *parent) : QAbstractButton(parent), color_(NSColor::whiteColor())
{
    setFocusPolicy(Qt::StrongFocus);
    setAcceptDrops(true);
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

void NSColorWell::setInitialColorName(const QString &name)
{
    for (const NSColorRef &color : {NSColor::selectedTextBackgroundColor(), NSColor::selectedControlColor()}) {
        if (color->colorName() == name)
            setColor(color);
    }
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
    else if (event->matches(QKeySequence::Copy))
        copyColor();
    else if (event->matches(QKeySequence::Paste))
        takeColor(QGuiApplication::clipboard()->mimeData());
    else
        QAbstractButton::keyPressEvent(event);
}

void NSColorWell::activate()
{
    NSColorPanel::sharedColorPanel()->orderFrontForWell(this);
}

void NSColorWell::dragEnterEvent(QDragEnterEvent *event)
{
    if (colorIn(event->mimeData()).isValid())
        event->acceptProposedAction();
}

void NSColorWell::dropEvent(QDropEvent *event)
{
    // Never a move: the source keeps its colour.
    event->setDropAction(Qt::CopyAction);
    event->accept();
    takeColor(event->mimeData());
}

void NSColorWell::takeColor(const QMimeData *offered)
{
    const QColor color = colorIn(offered);
    if (!color.isValid())
        return;
    setColor(calibratedColor(color));
    Q_EMIT colorPicked();
}

void NSColorWell::copyColor() const
{
    const QColor shown = liveColor(color_);
    auto *copied = new QMimeData;
    copied->setColorData(shown);
    copied->setText(shown.name(shown.alpha() == 255 ? QColor::HexRgb : QColor::HexArgb));
    QGuiApplication::clipboard()->setMimeData(copied);
}
