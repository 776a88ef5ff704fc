#include "platform/appkit/controls/SwitchRow.h"

#include <QPainter>
#include <QStyle>
#include <algorithm>

namespace {

constexpr int gap = 18; // between text and switch
constexpr int leastTextWidth = 120;
constexpr int tallest = 1000;
constexpr int wrapped = Qt::TextWordWrap | Qt::TextShowMnemonic;

} // namespace

SwitchRow::SwitchRow(QWidget *parent) : NSSwitch(parent)
{
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

int SwitchRow::textHeight(int width) const
{
    return fontMetrics().boundingRect(QRect(0, 0, width, tallest), wrapped, text()).height();
}

QSize SwitchRow::sizeHint() const
{
    const int textWidth = fontMetrics().size(Qt::TextShowMnemonic, text()).width();
    return {textWidth + gap + widthOfSwitch(), NSSwitch::sizeHint().height()};
}

QSize SwitchRow::minimumSizeHint() const
{
    return {std::min(sizeHint().width(), leastTextWidth + gap + widthOfSwitch()), NSSwitch::sizeHint().height()};
}

int SwitchRow::heightForWidth(int width) const
{
    return std::max(NSSwitch::sizeHint().height(), textHeight(width - gap - widthOfSwitch()));
}

QRectF SwitchRow::trackRect() const
{
    QRectF track = NSSwitch::trackRect();
    const double margin = (widthOfSwitch() - track.width()) / 2;
    const bool isMirrored = layoutDirection() == Qt::RightToLeft;
    track.moveLeft(isMirrored ? margin : width() - margin - track.width());
    return track;
}

void SwitchRow::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    const QRect left(0, 0, width() - gap - widthOfSwitch(), height());
    const bool showsMnemonic = style()->styleHint(QStyle::SH_UnderlineShortcut, nullptr, this);
    const int mnemonic = showsMnemonic ? Qt::TextShowMnemonic : Qt::TextHideMnemonic;
    const int alignment = int(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft | Qt::AlignVCenter));
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(
        QStyle::visualRect(layoutDirection(), rect(), left), alignment | Qt::TextWordWrap | mnemonic, text());
    painter.end();
    NSSwitch::paintEvent(event);
}
