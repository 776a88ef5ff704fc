#include "platform/appkit/controls/KeyRepeatField.h"

#include "platform/appkit/colors/ColorMixing.h"

#include <QKeyEvent>
#include <QPainter>
#include <QStyle>

namespace {

constexpr int windowCount = 8;
constexpr QSizeF windowSize(20, 16);
constexpr int gap = 7;
constexpr int margin = 9;
constexpr double frameWidth = 2.5;
constexpr double radius = 6;

bool isArrow(int key)
{
    return key >= Qt::Key_Left && key <= Qt::Key_Down;
}

/// Which way a key goes; 0 for one that is not for this field.
int stepOf(const QKeyEvent &event)
{
    const bool isCommand = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    if (isCommand || !(isArrow(event.key()) || event.key() == Qt::Key_Space))
        return 0;
    return event.key() == Qt::Key_Left || event.key() == Qt::Key_Up ? -1 : 1;
}

} // namespace

KeyRepeatField::KeyRepeatField(QWidget *parent) : QAbstractButton(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    timer_.setTimerType(Qt::PreciseTimer);
    connect(&timer_, &QTimer::timeout, this, [this] {
        timer_.setInterval(interval_);
        move();
    });
    connect(this, &QAbstractButton::pressed, this, [this] { start(1); });
    connect(this, &QAbstractButton::released, this, &KeyRepeatField::stop);
}

void KeyRepeatField::setBeat(std::chrono::milliseconds delay, std::chrono::milliseconds interval)
{
    delay_ = delay;
    interval_ = interval;
}

QSize KeyRepeatField::sizeHint() const
{
    return {2 * margin + windowCount * int(windowSize.width()) + (windowCount - 1) * gap, 36};
}

void KeyRepeatField::start(int step)
{
    step_ = step;
    move();
    if (repeats_)
        timer_.start(delay_);
}

void KeyRepeatField::stop()
{
    heldKey_ = 0;
    timer_.stop();
}

void KeyRepeatField::move()
{
    place_ = (place_ + step_ + windowCount) % windowCount;
    update();
    Q_EMIT moved();
}

void KeyRepeatField::keyPressEvent(QKeyEvent *event)
{
    const int step = stepOf(*event);
    if (step == 0) {
        event->ignore();
        return;
    }
    // The beat is our own: what the keyboard repeats says nothing of it.
    if (event->isAutoRepeat())
        return;
    heldKey_ = event->key();
    start(step);
}

void KeyRepeatField::keyReleaseEvent(QKeyEvent *event)
{
    if (!event->isAutoRepeat() && event->key() == heldKey_)
        stop();
}

void KeyRepeatField::focusOutEvent(QFocusEvent *event)
{
    stop();
    QAbstractButton::focusOutEvent(event);
}

void KeyRepeatField::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor ground = palette().color(QPalette::Window);
    const QColor text = palette().color(QPalette::WindowText);
    const QRectF field = QRectF(rect()).adjusted(1, 1, -1, -1);
    painter.setPen(hasFocus() ? QPen(palette().color(QPalette::Link), 2) : QPen(mixed(ground, text, 0.5f), 1));
    painter.setBrush(mixed(ground, text, 0.06f));
    painter.drawRoundedRect(field, radius, radius);
    const double top = (height() - windowSize.height()) / 2;
    for (int index = 0; index < windowCount; ++index) {
        const QRectF window(QPointF(margin + index * (windowSize.width() + gap), top), windowSize);
        const bool isFramed = index == place_ && isEnabled();
        painter.setPen(
            isFramed ? QPen(palette().color(QPalette::Highlight), frameWidth) : QPen(mixed(ground, text, 0.4f), 1));
        painter.setBrush(palette().color(QPalette::Base));
        painter.drawRoundedRect(window, 3, 3);
        painter.drawLine(window.topLeft() + QPointF(0, 5), window.topRight() + QPointF(0, 5));
    }
}
