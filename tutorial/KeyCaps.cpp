#include "tutorial/KeyCaps.h"

#include "platform/appkit/colors/ColorMixing.h"

#include <QPainter>
#include <QStyle>

namespace {

constexpr int padding = 12;
constexpr int gap = 8;
constexpr int thickness = 3; ///< of a cap
constexpr double radius = 6;

} // namespace

KeyCaps::KeyCaps(QWidget *parent) : QWidget(parent)
{
    QFont larger = font();
    larger.setPointSizeF(larger.pointSizeF() * 1.25);
    setFont(larger);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void KeyCaps::setCaps(const QList<GuidePage::Cap> &caps)
{
    caps_ = caps;
    QStringList texts;
    for (const GuidePage::Cap &cap : caps)
        texts += cap.text;
    setAccessibleName(texts.join(u' '));
    updateGeometry();
    update();
}

int KeyCaps::widthOf(const GuidePage::Cap &cap) const
{
    const int text = fontMetrics().horizontalAdvance(cap.text);
    return cap.isKey ? std::max(text + 2 * padding, fontMetrics().height() + padding + 4) : text;
}

QSize KeyCaps::sizeHint() const
{
    int width = 0;
    for (const GuidePage::Cap &cap : caps_)
        width += widthOf(cap) + gap;
    return {std::max(width - gap, 0), fontMetrics().height() + padding + thickness + 2};
}

void KeyCaps::paintKey(QPainter &painter, const QRectF &place) const
{
    const QColor text = palette().color(QPalette::WindowText);
    const QColor ground = palette().color(QPalette::Window);
    const QColor top = ground.lightness() < 128 ? mixed(ground, text, 0.14F) : palette().color(QPalette::Base);
    painter.setPen(QPen(mixed(ground, text, 0.42F), 1));
    painter.setBrush(mixed(ground, text, 0.25F));
    painter.drawRoundedRect(place, radius, radius);
    painter.setBrush(top);
    painter.drawRoundedRect(place.adjusted(0, 0, 0, -thickness), radius, radius);
}

void KeyCaps::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    int left = 0;
    for (const GuidePage::Cap &cap : caps_) {
        const QRect place(left, 0, widthOf(cap), height());
        const QRect mirrored = QStyle::visualRect(layoutDirection(), rect(), place);
        if (cap.isKey)
            paintKey(painter, QRectF(mirrored).adjusted(0.5, 0.5, -0.5, -0.5));
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(mirrored.adjusted(0, 0, 0, -thickness), Qt::AlignCenter, cap.text);
        left += place.width() + gap;
    }
}
