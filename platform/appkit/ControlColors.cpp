#include "platform/appkit/Controls.h"
#include "platform/appkit/StyledLabel.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPalette>
#include <QWidget>

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
    const bool readsOnWhite = contrastRatio(color, Qt::white) >= 3;
    setColors(control, color, readsOnWhite ? Qt::white : Qt::black);
}

void setBackgroundColor(QObject *control, const QColor &color)
{
    const bool isDark = contrastRatio(color, Qt::white) > contrastRatio(color, Qt::black);
    setColors(control, isDark ? Qt::white : Qt::black, color);
}
