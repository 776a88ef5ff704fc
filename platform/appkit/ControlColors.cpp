#include "platform/appkit/Controls.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPalette>
#include <QWidget>
#include <cmath>

namespace {

struct ColorRoles
{
    QPalette::ColorRole text;
    QPalette::ColorRole background;
};

bool isField(const QWidget *control)
{
    return qobject_cast<const QLineEdit *>(control) || qobject_cast<const QAbstractScrollArea *>(control)
        || qobject_cast<const QAbstractSpinBox *>(control);
}

ColorRoles rolesOf(const QWidget *control)
{
    if (isField(control))
        return {QPalette::Text, QPalette::Base};
    if (qobject_cast<const QAbstractButton *>(control) || qobject_cast<const QComboBox *>(control))
        return {QPalette::ButtonText, QPalette::Button};
    return {QPalette::WindowText, QPalette::Window};
}

double linear(double component)
{
    return component <= 0.04045 ? component / 12.92 : std::pow((component + 0.055) / 1.055, 2.4);
}

/// The contrast between a colour and white, from 1 to 21.
double contrastWithWhite(const QColor &color)
{
    const double luminance =
        0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
    return 1.05 / (luminance + 0.05);
}

void setColors(QObject *control, const QColor &text, const QColor &background)
{
    auto *widget = qobject_cast<QWidget *>(control);
    if (!widget || !text.isValid() || !background.isValid())
        return;
    const ColorRoles roles = rolesOf(widget);
    QPalette palette = widget->palette();
    palette.setColor(roles.text, text);
    palette.setColor(roles.background, background);
    widget->setPalette(palette);
    if (roles.background == QPalette::Window)
        widget->setAutoFillBackground(true);
}

} // namespace

void setTextColor(QObject *control, const QColor &color)
{
    // Paper white goes with every colour that is not too light for it: 3 is the least contrast for a line of large
    // text.
    const bool readsOnWhite = contrastWithWhite(color) >= 3;
    setColors(control, color, readsOnWhite ? Qt::white : Qt::black);
}

void setBackgroundColor(QObject *control, const QColor &color)
{
    // White text reads better from where both contrasts are alike: their product is 21.
    const bool isDark = contrastWithWhite(color) > std::sqrt(21.0);
    setColors(control, isDark ? Qt::white : Qt::black, color);
}
