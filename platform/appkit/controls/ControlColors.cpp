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

/// The background of the control's kind here, whatever the control itself was given.
QColor ownBackground(const QObject *control)
{
    const auto *widget = qobject_cast<const QWidget *>(control);
    if (!widget)
        return Qt::white;
    const QWidget *parent = widget->parentWidget();
    return (parent ? parent->palette() : QGuiApplication::palette()).color(rolesOf(widget).background);
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
    // Its own background where the colour reads on that, else paper: 3 is the least contrast for a line of large text.
    const QList<QColor> backgrounds{ownBackground(control), Qt::white, Qt::black};
    const auto readable = [&color](const QColor &background) { return contrastRatio(color, background) >= 3; };
    const auto background = std::find_if(backgrounds.cbegin(), backgrounds.cend(), readable);
    setColors(control, color, background == backgrounds.cend() ? QColor(Qt::black) : *background);
}

void setBackgroundColor(QObject *control, const QColor &color)
{
    const bool isDark = contrastRatio(color, Qt::white) > contrastRatio(color, Qt::black);
    setColors(control, isDark ? Qt::white : Qt::black, color);
}
