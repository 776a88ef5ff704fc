#include "platform/appkit/colors/ColorMixing.h"
#include "platform/appkit/controls/Controls.h"
#include "platform/appkit/controls/StyledLabel.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QGuiApplication>
#include <QLineEdit>
#include <QPalette>
#include <QWidget>
#include <algorithm>

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

/// The colour of the control's kind here, whatever the control itself was given.
QColor ownColor(const QWidget *control, QPalette::ColorRole role)
{
    const QWidget *parent = control->parentWidget();
    return (parent ? parent->palette() : QGuiApplication::palette()).color(role);
}

/// A colour as it reads on a background: 3 is the least contrast for a line of large text. Black or white stands for
/// the text's own colour where it does not, and any other comes as near to that as it has to.
QColor readable(const QColor &color, const QColor &background, const QColor &ownText)
{
    constexpr float step = 0.1f;
    if (!color.isValid() || contrastRatio(color, background) >= 3)
        return color;
    float share = color.hsvSaturation() == 0 ? 1 : step;
    while (share < 1 && contrastRatio(mixed(color, ownText, share), background) < 3)
        share += step;
    return mixed(color, ownText, std::min(share, 1.0f));
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
    const auto *widget = qobject_cast<const QWidget *>(control);
    if (!widget)
        return;
    const ColorRoles roles = rolesOf(widget);
    const QColor background = ownColor(widget, roles.background);
    setColors(control, readable(color, background, ownColor(widget, roles.text)), background);
}

void setBackgroundColor(QObject *control, const QColor &color)
{
    const bool isDark = contrastRatio(color, Qt::white) > contrastRatio(color, Qt::black);
    setColors(control, isDark ? Qt::white : Qt::black, color);
}
