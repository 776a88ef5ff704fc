#include "host/OutlineStyle.h"

#include "host/ControlDrawing.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QPainter>
#include <QStyleOption>
#include <algorithm>

namespace {

constexpr int controlHeight = 30;
constexpr int sidePadding = 6;
constexpr int indicatorSide = 18;
constexpr int knobSide = 18;
constexpr int scrollBarThickness = 14;
constexpr int leastThumb = 32;

bool isDefaultButton(const QStyleOption &option)
{
    const auto *button = qstyleoption_cast<const QStyleOptionButton *>(&option);
    return button && button->type == QStyleOption::SO_Button && button->features & QStyleOptionButton::DefaultButton
        && button->state & QStyle::State_Enabled;
}

/// A button that is as high as wide is round.
double toolButtonRadius(const QRect &place)
{
    return place.width() == place.height() ? place.width() / 2.0 : cornerRadius;
}

bool hasFrame(const QStyleOption &option)
{
    const auto *frame = qstyleoption_cast<const QStyleOptionFrame *>(&option);
    return !frame || frame->lineWidth > 0;
}

/// The bar has no buttons: all of it is the way of the thumb.
QRect scrollBarPart(const QStyleOptionSlider &option, QStyle::SubControl part)
{
    const bool isUpright = option.orientation == Qt::Vertical;
    const int length = isUpright ? option.rect.height() : option.rect.width();
    const qint64 values = qint64(option.maximum) - option.minimum;
    const int thumb = values > 0
        ? std::min(length, std::max(leastThumb, int(qint64(option.pageStep) * length / (values + option.pageStep))))
        : length;
    const int start = QStyle::sliderPositionFromValue(
        option.minimum, option.maximum, option.sliderPosition, length - thumb, option.upsideDown);
    const auto between = [&](int from, int to) {
        const QRect place = isUpright ? QRect(0, from, option.rect.width(), to - from)
                                      : QRect(from, 0, to - from, option.rect.height());
        return place.translated(option.rect.topLeft());
    };
    switch (part) {
    case QStyle::SC_ScrollBarGroove:
        return option.rect;
    case QStyle::SC_ScrollBarSlider:
        return between(start, start + thumb);
    case QStyle::SC_ScrollBarSubPage:
        return between(0, start);
    case QStyle::SC_ScrollBarAddPage:
        return between(start + thumb, length);
    default:
        return {};
    }
}

} // namespace

OutlineStyle::OutlineStyle() : QProxyStyle(QStringLiteral("fusion")) { }

bool OutlineStyle::drawOwn(
    PrimitiveElement element, const QStyleOption &option, QPainter &painter, const QWidget *widget) const
{
    switch (element) {
    case PE_IndicatorCheckBox:
        drawCheckBox(painter, option);
        return true;
    case PE_IndicatorRadioButton:
        drawRadioButton(painter, option);
        return true;
    case PE_PanelButtonCommand:
        drawButton(painter, option, cornerRadius, isDefaultButton(option));
        return true;
    case PE_PanelButtonTool:
        drawButton(painter, option, toolButtonRadius(option.rect), false);
        return true;
    case PE_PanelLineEdit:
    case PE_FrameLineEdit:
        if (hasFrame(option))
            drawField(painter, option);
        return hasFrame(option);
    case PE_Frame:
        if (qobject_cast<const QAbstractScrollArea *>(widget))
            drawSquareFrame(painter, option);
        return qobject_cast<const QAbstractScrollArea *>(widget);
    case PE_FrameFocusRect:
        // A button's panel has the ring itself.
        if (option.state & State_KeyboardFocusChange
            && !(widget && (widget->inherits("QPushButton") || widget->inherits("QToolButton"))))
            drawFocusRing(painter, option.palette, option.rect);
        return true;
    default:
        return false;
    }
}

void OutlineStyle::drawPrimitive(
    PrimitiveElement element, const QStyleOption *option, QPainter *painter, const QWidget *widget) const
{
    painter->save();
    if (!drawOwn(element, *option, *painter, widget))
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    painter->restore();
}

void OutlineStyle::drawControl(
    ControlElement element, const QStyleOption *option, QPainter *painter, const QWidget *widget) const
{
    if (element != CE_PushButtonLabel || !isDefaultButton(*option)) {
        QProxyStyle::drawControl(element, option, painter, widget);
        return;
    }
    QStyleOptionButton label = *qstyleoption_cast<const QStyleOptionButton *>(option);
    label.palette.setBrush(QPalette::ButtonText, label.palette.highlightedText());
    QProxyStyle::drawControl(element, &label, painter, widget);
}

bool OutlineStyle::drawOwn(
    ComplexControl control, const QStyleOptionComplex &option, QPainter &painter, const QWidget *widget) const
{
    if (const auto *list = qstyleoption_cast<const QStyleOptionComboBox *>(&option);
        control == CC_ComboBox && list && !list->editable && list->frame) {
        drawButton(painter, option, cornerRadius, false);
        drawChevron(painter, option, subControlRect(CC_ComboBox, &option, SC_ComboBoxArrow, widget));
        return true;
    }
    const auto *slider = qstyleoption_cast<const QStyleOptionSlider *>(&option);
    if (control == CC_ScrollBar && slider) {
        drawScrollBar(painter, *slider, subControlRect(CC_ScrollBar, &option, SC_ScrollBarSlider, widget));
        return true;
    }
    if (control == CC_Slider && slider && slider->tickPosition == QSlider::NoTicks) {
        drawSlider(painter, *slider, subControlRect(CC_Slider, &option, SC_SliderHandle, widget));
        return true;
    }
    return false;
}

void OutlineStyle::drawComplexControl(
    ComplexControl control, const QStyleOptionComplex *option, QPainter *painter, const QWidget *widget) const
{
    painter->save();
    if (!drawOwn(control, *option, *painter, widget))
        QProxyStyle::drawComplexControl(control, option, painter, widget);
    painter->restore();
}

QRect OutlineStyle::subControlRect(
    ComplexControl control, const QStyleOptionComplex *option, SubControl subControl, const QWidget *widget) const
{
    const auto *slider = qstyleoption_cast<const QStyleOptionSlider *>(option);
    if (control == CC_ScrollBar && slider)
        return scrollBarPart(*slider, subControl);
    const QRect place = QProxyStyle::subControlRect(control, option, subControl, widget);
    if (control != CC_ComboBox)
        return place;
    const int inwards = option->direction == Qt::RightToLeft ? -sidePadding : sidePadding;
    if (subControl == SC_ComboBoxArrow)
        return place.translated(-inwards / 2, 0);
    return subControl == SC_ComboBoxEditField ? place.translated(inwards, 0) : place;
}

QSize OutlineStyle::sizeFromContents(
    ContentsType type, const QStyleOption *option, const QSize &contents, const QWidget *widget) const
{
    const QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
    switch (type) {
    case CT_PushButton:
    case CT_ComboBox:
        return {size.width() + 2 * sidePadding, std::max(size.height(), controlHeight)};
    case CT_LineEdit:
        return {size.width(), hasFrame(*option) ? std::max(size.height(), controlHeight) : size.height()};
    default:
        return size;
    }
}

int OutlineStyle::pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const
{
    switch (metric) {
    case PM_DefaultFrameWidth:
        // A frame of one pixel vanishes under the contents where the display's scale is not whole.
        return qobject_cast<const QAbstractScrollArea *>(widget) ? 2 : QProxyStyle::pixelMetric(metric, option, widget);
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
        return indicatorSide;
    case PM_SliderThickness:
    case PM_SliderControlThickness:
    case PM_SliderLength:
        return knobSide;
    case PM_ScrollBarExtent:
        return scrollBarThickness;
    case PM_ButtonShiftHorizontal:
    case PM_ButtonShiftVertical:
        return 0;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int OutlineStyle::styleHint(
    StyleHint hint, const QStyleOption *option, const QWidget *widget, QStyleHintReturn *returnData) const
{
    // Our alerts have none. The colour panel's dialog would search the icon themes for those of its hidden buttons.
    if (hint == SH_DialogButtonBox_ButtonsHaveIcons)
        return 0;
    if (hint == SH_TabBar_Alignment && widget && widget->inherits("PageTabBar"))
        return Qt::AlignCenter;
    return QProxyStyle::styleHint(hint, option, widget, returnData);
}
