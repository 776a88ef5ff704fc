#include "platform/appkit/controls/StyledLabel.h"

#include "platform/appkit/colors/ColorMixing.h"

#include <QApplication>
#include <QEvent>
#include <QScopedValueRollback>
#include <QStyle>
#include <algorithm>
#include <cmath>

namespace {

constexpr double leastContrast = 4.6;
constexpr double titleScale = 1.5;
constexpr double secondaryScale = 0.9;

double linear(double component)
{
    return component <= 0.04045 ? component / 12.92 : std::pow((component + 0.055) / 1.055, 2.4);
}

double luminance(const QColor &color)
{
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

QColor palerText(const QColor &text, const QColor &window)
{
    for (int percent = 40; percent > 0; percent -= 5) {
        const QColor pale = mixed(text, window, float(percent) / 100);
        if (contrastRatio(pale, window) >= leastContrast)
            return pale;
    }
    return text;
}

QFont scaled(QFont font, double scale)
{
    if (font.pointSizeF() > 0)
        font.setPointSizeF(font.pointSizeF() * scale);
    else
        font.setPixelSize(std::max(1, qRound(font.pixelSize() * scale)));
    return font;
}

} // namespace

double contrastRatio(const QColor &one, const QColor &other)
{
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

StyledLabel::StyledLabel(QWidget *parent) : QLabel(parent) { }

void StyledLabel::setTextStyle(TextStyle textStyle)
{
    textStyle_ = textStyle;
    applyTextStyle();
}

/// A window's layouts ask for the same few widths again and again, and the base class would set the text anew each
/// time.
int StyledLabel::heightForWidth(int width) const
{
    const Measured now{text(), font(), contentsMargins(), margin(), indent(), logicalDpiY(), wordWrap()};
    if (!(now == measured_)) {
        measured_ = now;
        heights_.clear();
    }
    const auto known = heights_.constFind(width);
    return known == heights_.cend() ? *heights_.insert(width, QLabel::heightForWidth(width)) : *known;
}

bool StyledLabel::event(QEvent *event)
{
    const bool handled = QLabel::event(event);
    switch (event->type()) {
    case QEvent::ParentChange:
    case QEvent::FontChange:
    case QEvent::ApplicationFontChange:
    case QEvent::PaletteChange:
        applyTextStyle();
        break;
    case QEvent::Polish:
        unmirrored_ = alignment();
        applyDirection();
        break;
    case QEvent::LayoutDirectionChange:
        applyDirection();
        break;
    default:
        break;
    }
    return handled;
}

void StyledLabel::applyDirection()
{
    // The base class would follow the text's script instead, and leave an English text behind in a mirrored window.
    if (unmirrored_)
        setAlignment(QStyle::visualAlignment(layoutDirection(), unmirrored_));
}

void StyledLabel::applyTextStyle()
{
    if (applying_ || textStyle_ == Body)
        return;
    const QScopedValueRollback<bool> guard(applying_, true);
    const QFont base = parentWidget() ? parentWidget()->font() : QApplication::font(this);
    if (textStyle_ == Heading) {
        QFont bold = font();
        bold.setBold(true);
        setFont(bold);
    } else {
        setFont(scaled(base, textStyle_ == Title ? titleScale : secondaryScale));
    }
    if (textStyle_ != Secondary)
        return;
    QPalette pale = palette();
    const QPalette around = parentWidget() ? parentWidget()->palette() : QApplication::palette(this);
    for (const auto group : {QPalette::Active, QPalette::Inactive})
        pale.setColor(group, QPalette::WindowText,
            palerText(around.color(group, QPalette::WindowText), around.color(group, QPalette::Window)));
    setPalette(pale);
}
