#include "tutorial/ProgressDots.h"

#include "platform/appkit/colors/ColorMixing.h"

#include <QPainter>
#include <QStyle>

namespace {

constexpr int diameter = 8;
constexpr int distance = 16;

} // namespace

void ProgressDots::setProgress(int number, int count)
{
    number_ = number;
    count_ = count;
    updateGeometry();
    update();
}

QSize ProgressDots::sizeHint() const
{
    return {count_ * distance, diameter + 4};
}

/// The shown step's is long, those behind it are filled: not by colour alone.
void ProgressDots::paintEvent(QPaintEvent *)
{
    const QColor strong = palette().color(QPalette::Link);
    const QColor weak = mixed(palette().color(QPalette::Window), palette().color(QPalette::WindowText), 0.45F);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    for (int i = 0; i < count_; ++i) {
        const bool isShown = i + 1 == number_;
        const int width = isShown ? distance - 3 : diameter;
        const QRect place(i * distance + (distance - width) / 2, (height() - diameter) / 2, width, diameter);
        painter.setPen(QPen(i < number_ ? strong : weak, 1.2));
        painter.setBrush(i < number_ ? QBrush(strong) : QBrush(Qt::NoBrush));
        painter.drawRoundedRect(QStyle::visualRect(layoutDirection(), rect(), place), diameter / 2, diameter / 2);
    }
}
