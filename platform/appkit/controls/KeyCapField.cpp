#include "platform/appkit/controls/KeyCapField.h"

#include "platform/appkit/colors/ColorMixing.h"

#include <QFocusEvent>
#include <QLineEdit>
#include <QPainter>
#include <algorithm>

namespace {

constexpr double radius = 5;
constexpr int sidePadding = 5;
constexpr float shareOfEdge = 0.45f;
constexpr float shareOfRim = 0.5f; // stands out from the card by 3:1
constexpr double ringWidth = 2;

/// A menu, a sheet or another window in front only interrupts what the field waits for.
bool isOfField(const QFocusEvent &event)
{
    return event.reason() != Qt::ActiveWindowFocusReason && event.reason() != Qt::PopupFocusReason;
}

/// A font in which a text has room: as it is, or smaller.
QFont fitting(QFont font, const QString &text, int room)
{
    const int needed = QFontMetrics(font).horizontalAdvance(text);
    if (needed > room && font.pointSizeF() > 0)
        font.setPointSizeF(font.pointSizeF() * room / needed);
    return font;
}

} // namespace

KeyCapField::KeyCapField(QLineEdit *field, const QString &prompt)
    : QObject(field), field_(field), prompt_(prompt), isWaiting_(field->hasFocus())
{
    field->installEventFilter(this);
    field->update();
}

void KeyCapField::showKey()
{
    setWaiting(false);
}

void KeyCapField::setWaiting(bool isWaiting)
{
    isWaiting_ = isWaiting;
    field_->update();
}

bool KeyCapField::eventFilter(QObject *object, QEvent *event)
{
    const bool isFocus = event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut;
    if (isFocus && isOfField(*static_cast<QFocusEvent *>(event)))
        setWaiting(event->type() == QEvent::FocusIn);
    if (event->type() != QEvent::Paint)
        return QObject::eventFilter(object, event);
    draw();
    return true;
}

void KeyCapField::draw() const
{
    const QPalette palette = field_->palette();
    const QColor ground = palette.color(QPalette::Window);
    const bool isFocused = field_->hasFocus();
    const QColor rim =
        isFocused ? palette.color(QPalette::Link) : mixed(ground, palette.color(QPalette::WindowText), shareOfRim);
    QPainter painter(field_);
    painter.setRenderHint(QPainter::Antialiasing);
    drawKeyCap(painter, field_->rect(), palette, palette.color(QPalette::Base), rim, isFocused ? ringWidth : 1);
    QFont font = field_->font();
    font.setBold(!isWaiting_);
    const QString text = isWaiting_ ? prompt_ : field_->text();
    const QRect room = field_->rect().adjusted(sidePadding, 0, -sidePadding, -keyCapEdge);
    painter.setFont(fitting(font, text, room.width()));
    painter.setPen(palette.color(QPalette::Text));
    painter.drawText(room, Qt::AlignCenter, text);
}

void drawKeyCap(QPainter &painter, const QRect &place, const QPalette &palette, const QColor &face, const QColor &rim,
    double rimWidth)
{
    const QRectF outer(place.adjusted(0, 0, 0, -keyCapEdge));
    const auto fill = [&painter](const QRectF &shape, double corner, const QColor &color) {
        painter.setBrush(color);
        painter.drawRoundedRect(shape, corner, corner);
    };
    painter.setPen(Qt::NoPen);
    fill(place, radius, mixed(palette.color(QPalette::Window), palette.color(QPalette::WindowText), shareOfEdge));
    fill(outer, radius, rim);
    fill(outer.adjusted(rimWidth, rimWidth, -rimWidth, -rimWidth), std::max(0.0, radius - rimWidth), face);
}
