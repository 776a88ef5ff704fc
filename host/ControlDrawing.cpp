#include "host/ControlDrawing.h"

#include "platform/appkit/colors/ColorMixing.h"
#include "platform/appkit/controls/StyledLabel.h"

#include <QPainter>
#include <QStyleOption>
#include <algorithm>

namespace {

constexpr double leastContrast = 3.1;
constexpr int grooveThickness = 4;
constexpr double boxRadius = 4;
constexpr double ringWidth = 2;
constexpr float shareUnderMouse = 0.06f;
constexpr float shareWhenPressed = 0.14f;

bool hasKeyboardFocus(const QStyleOption &option)
{
    const QStyle::State both = QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange;
    return (option.state & both) == both;
}

/// The accent colour as it stands out from every ground.
QColor ringColor(const QPalette &palette)
{
    return palette.color(QPalette::Link);
}

/// How a fill changes under the mouse and when it is pressed.
QColor answering(const QColor &fill, const QColor &text, const QStyleOption &option)
{
    if (!(option.state & QStyle::State_Enabled))
        return fill;
    if (option.state & (QStyle::State_Sunken | QStyle::State_On))
        return mixed(fill, text, shareWhenPressed);
    return option.state & QStyle::State_MouseOver ? mixed(fill, text, shareUnderMouse) : fill;
}

/// One filled shape in another, since lines may fall beside the pixels of a display whose scale is not whole.
void drawPlate(QPainter &painter, const QRectF &place, double radius, const QColor &edge, double width, QColor fill)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(edge);
    painter.drawRoundedRect(place, radius, radius);
    painter.setBrush(fill);
    const double inner = std::max(0.0, radius - width);
    painter.drawRoundedRect(place.adjusted(width, width, -width, -width), inner, inner);
}

QRectF squareIn(const QRect &place)
{
    const double side = std::min(place.width(), place.height());
    QRectF square(0, 0, side, side);
    square.moveCenter(QRectF(place).center());
    return square;
}

/// The box or circle of what is on or off.
void drawIndicator(QPainter &painter, const QStyleOption &option, double radius)
{
    const QPalette &palette = option.palette;
    const bool isOn = option.state & (QStyle::State_On | QStyle::State_NoChange);
    const QColor fill = isOn ? palette.color(QPalette::Highlight)
                             : answering(palette.color(QPalette::Base), palette.color(QPalette::WindowText), option);
    drawPlate(painter, squareIn(option.rect), radius, isOn ? fill : outlineColor(palette), 1, fill);
}

QPen markPen(const QStyleOption &option, double width)
{
    return {option.palette.color(QPalette::HighlightedText), width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

} // namespace

QColor outlineColor(const QPalette &palette)
{
    const QColor ground = palette.color(QPalette::Window);
    const QColor button = palette.color(QPalette::Button);
    const QColor text = palette.color(QPalette::WindowText);
    static QRgb lastColors[3] = {};
    static QColor last;
    const QRgb colors[3] = {ground.rgb(), button.rgb(), text.rgb()};
    if (std::equal(std::begin(colors), std::end(colors), lastColors) && last.isValid())
        return last;
    std::copy(std::begin(colors), std::end(colors), lastColors);
    last = text;
    for (int percent = 20; percent < 100; percent += 4) {
        const QColor shade = mixed(ground, text, float(percent) / 100);
        if (contrastRatio(shade, ground) >= leastContrast) {
            last = shade;
            break;
        }
    }
    return last;
}

void drawButton(QPainter &painter, const QStyleOption &option, double radius, bool isProminent)
{
    const QPalette &palette = option.palette;
    const QColor fill = palette.color(isProminent ? QPalette::Highlight : QPalette::Button);
    const QColor text = palette.color(isProminent ? QPalette::HighlightedText : QPalette::ButtonText);
    const QColor shown = answering(fill, text, option);
    drawPlate(painter, option.rect, radius, isProminent ? shown : outlineColor(palette), 1, shown);
    if (hasKeyboardFocus(option))
        drawPlate(painter, option.rect, radius, isProminent ? palette.color(QPalette::WindowText) : ringColor(palette),
            ringWidth, shown);
}

void drawField(QPainter &painter, const QStyleOption &option)
{
    const bool isFocused = option.state & QStyle::State_HasFocus;
    drawPlate(painter, option.rect, cornerRadius, isFocused ? ringColor(option.palette) : outlineColor(option.palette),
        isFocused ? ringWidth : 1, option.palette.color(QPalette::Base));
}

void drawCheckBox(QPainter &painter, const QStyleOption &option)
{
    drawIndicator(painter, option, boxRadius);
    const QRectF box = squareIn(option.rect);
    painter.setPen(markPen(option, box.width() / 9));
    painter.setBrush(Qt::NoBrush);
    const auto at = [&box](double x, double y) { return box.topLeft() + QPointF(x * box.width(), y * box.height()); };
    if (option.state & QStyle::State_NoChange)
        painter.drawLine(at(0.28, 0.5), at(0.72, 0.5));
    else if (option.state & QStyle::State_On)
        painter.drawPolyline(QPolygonF{at(0.26, 0.52), at(0.43, 0.69), at(0.75, 0.33)});
}

void drawRadioButton(QPainter &painter, const QStyleOption &option)
{
    const QRectF circle = squareIn(option.rect);
    drawIndicator(painter, option, circle.width() / 2);
    if (!(option.state & QStyle::State_On))
        return;
    painter.setPen(Qt::NoPen);
    painter.setBrush(option.palette.color(QPalette::HighlightedText));
    painter.drawEllipse(circle.center(), circle.width() / 5, circle.width() / 5);
}

void drawFocusRing(QPainter &painter, const QPalette &palette, const QRectF &around)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(ringColor(palette), ringWidth));
    painter.drawRoundedRect(around.adjusted(1, 1, -1, -1), boxRadius, boxRadius);
}

void drawChevron(QPainter &painter, const QStyleOption &option, const QRect &place)
{
    const QPointF center = QRectF(place).center();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(option.palette.color(QPalette::ButtonText), 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(QPolygonF{center + QPointF(-4, -2), center + QPointF(0, 2), center + QPointF(4, -2)});
}

void drawSlider(QPainter &painter, const QStyleOptionSlider &option, const QRect &handle)
{
    const QPalette &palette = option.palette;
    const bool isUpright = option.orientation == Qt::Vertical;
    const double half = grooveThickness / 2.0;
    const QPointF middle = QRectF(option.rect).center();
    QRectF groove(option.rect);
    if (isUpright)
        groove = {middle.x() - half, groove.top() + 1, 2 * half, groove.height() - 2};
    else
        groove = {groove.left() + 1, middle.y() - half, groove.width() - 2, 2 * half};
    const QColor outline = outlineColor(palette);
    drawPlate(painter, groove, half, outline, 0, outline);
    QRectF passed = groove;
    const QPointF grip = QRectF(handle).center();
    if (isUpright)
        option.upsideDown ? passed.setTop(grip.y()) : passed.setBottom(grip.y());
    else
        option.upsideDown ? passed.setLeft(grip.x()) : passed.setRight(grip.x());
    painter.setBrush(palette.color(QPalette::Highlight));
    painter.drawRoundedRect(passed, half, half);
    const QRectF knob = squareIn(handle);
    const QColor fill = answering(palette.color(QPalette::Base), palette.color(QPalette::WindowText), option);
    const bool isFocused = option.state & QStyle::State_HasFocus;
    drawPlate(painter, knob, knob.width() / 2, palette.color(isFocused ? QPalette::Link : QPalette::Highlight),
        isFocused ? 2 * ringWidth : ringWidth, fill);
}

void drawScrollBar(QPainter &painter, const QStyleOptionSlider &option, const QRect &thumb)
{
    if (option.minimum == option.maximum)
        return;
    const bool isHeld = option.state & QStyle::State_Sunken && option.activeSubControls & QStyle::SC_ScrollBarSlider;
    const bool isPointedAt = option.state & QStyle::State_MouseOver;
    const double inset = isHeld || isPointedAt ? 2 : 3.5;
    QRectF bar(thumb);
    bar.adjust(inset, inset, -inset, -inset);
    const double radius = std::min(bar.width(), bar.height()) / 2;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(mixed(
        option.palette.color(QPalette::Window), option.palette.color(QPalette::WindowText), isHeld ? 0.7f : 0.5f));
    painter.drawRoundedRect(bar, radius, radius);
}

void drawSquareFrame(QPainter &painter, const QStyleOption &option)
{
    painter.fillRect(option.rect, outlineColor(option.palette));
    painter.fillRect(option.rect.adjusted(1, 1, -1, -1), option.palette.base());
}
