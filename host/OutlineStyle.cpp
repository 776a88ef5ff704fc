#include "host/OutlineStyle.h"

#include "platform/appkit/colors/ColorMixing.h"

#include <QAbstractScrollArea>
#include <QPainter>
#include <QStyleOption>

namespace {

constexpr float shareOfText = 0.55f;
constexpr int fusionDarkensOutlinesBy = 140; // percent

QColor outlineColor(const QPalette &palette, QPalette::ColorGroup group)
{
    return mixed(palette.color(group, QPalette::Window), palette.color(group, QPalette::WindowText), shareOfText);
}

void setOutlineColors(QPalette &palette, QPalette::ColorGroup group)
{
    palette.setColor(group, QPalette::Window, outlineColor(palette, group).lighter(fusionDarkensOutlinesBy));
    // What has the focus is outlined in a darker shade of the highlight.
    if (group != QPalette::Disabled)
        palette.setColor(group, QPalette::Highlight, palette.color(group, QPalette::Link));
}

/// Fills, since lines may fall beside the pixels of a display whose scale is not whole.
void drawFrame(const QStyleOption &option, QPainter &painter)
{
    painter.fillRect(option.rect, outlineColor(option.palette, option.palette.currentColorGroup()));
    painter.fillRect(option.rect.adjusted(1, 1, -1, -1), option.palette.base());
}

bool hasOutline(QStyle::PrimitiveElement element)
{
    switch (element) {
    case QStyle::PE_IndicatorCheckBox:
    case QStyle::PE_IndicatorRadioButton:
    case QStyle::PE_PanelButtonCommand:
    case QStyle::PE_PanelButtonTool:
    case QStyle::PE_FrameLineEdit:
    case QStyle::PE_FrameFocusRect:
        return true;
    default:
        return false;
    }
}

} // namespace

OutlineStyle::OutlineStyle() : QProxyStyle(QStringLiteral("fusion")) { }

QPalette OutlineStyle::outlined(const QPalette &palette) const
{
    if (palette.cacheKey() != lastKey_) {
        lastOutlined_ = palette;
        for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
            setOutlineColors(lastOutlined_, group);
        lastKey_ = palette.cacheKey();
    }
    lastOutlined_.setCurrentColorGroup(palette.currentColorGroup());
    return lastOutlined_;
}

template <typename Option>
bool OutlineStyle::drawOutlined(
    PrimitiveElement element, const QStyleOption *option, QPainter *painter, const QWidget *widget) const
{
    const auto *original = qstyleoption_cast<const Option *>(option);
    // Every option is a plain one as well, which must not be all that is copied of it.
    if (!original || original->type != Option::Type)
        return false;
    Option copy = *original;
    copy.palette = outlined(original->palette);
    QProxyStyle::drawPrimitive(element, &copy, painter, widget);
    return true;
}

void OutlineStyle::drawPrimitive(
    PrimitiveElement element, const QStyleOption *option, QPainter *painter, const QWidget *widget) const
{
    if (element == PE_Frame && qobject_cast<const QAbstractScrollArea *>(widget)) {
        drawFrame(*option, *painter);
        return;
    }
    const bool isDrawn = hasOutline(element)
        && (drawOutlined<QStyleOptionButton>(element, option, painter, widget)
            || drawOutlined<QStyleOption>(element, option, painter, widget)
            || drawOutlined<QStyleOptionFrame>(element, option, painter, widget)
            || drawOutlined<QStyleOptionFocusRect>(element, option, painter, widget));
    if (!isDrawn)
        QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void OutlineStyle::drawComplexControl(
    ComplexControl control, const QStyleOptionComplex *option, QPainter *painter, const QWidget *widget) const
{
    const auto *slider = qstyleoption_cast<const QStyleOptionSlider *>(option);
    if (control != CC_Slider || !slider) {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
        return;
    }
    QStyleOptionSlider outlinedSlider = *slider;
    outlinedSlider.palette = outlined(slider->palette);
    QProxyStyle::drawComplexControl(control, &outlinedSlider, painter, widget);
}

int OutlineStyle::pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const
{
    // A frame of one pixel vanishes under the contents where the display's scale is not whole.
    if (metric == PM_DefaultFrameWidth && qobject_cast<const QAbstractScrollArea *>(widget))
        return 2;
    return QProxyStyle::pixelMetric(metric, option, widget);
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
