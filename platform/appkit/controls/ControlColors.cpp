#include "platform/appkit/controls/Controls.h"
#include "platform/appkit/controls/internal/LogicalColors.h"

namespace {

const LogicalColors *colorsOf(const QObject *control)
{
    const auto *widget = qobject_cast<const QWidget *>(control);
    return widget ? LogicalColors::existing(widget) : nullptr;
}

QColor shownColor(const QObject *control, QPalette::ColorRole ColorRoles::*role)
{
    const auto *widget = qobject_cast<const QWidget *>(control);
    return widget ? widget->palette().color(colorRolesOf(widget).*role) : QColor();
}

} // namespace

void setTextColor(QObject *control, const QColor &color)
{
    if (auto *widget = qobject_cast<QWidget *>(control); widget && color.isValid())
        LogicalColors::of(widget).setText(color);
}

void setBackgroundColor(QObject *control, const QColor &color)
{
    if (auto *widget = qobject_cast<QWidget *>(control); widget && color.isValid())
        LogicalColors::of(widget).setBackground(color);
}

QColor textColor(const QObject *control)
{
    const LogicalColors *given = colorsOf(control);
    return given && given->text().isValid() ? given->text() : shownColor(control, &ColorRoles::text);
}

QColor backgroundColor(const QObject *control)
{
    const LogicalColors *given = colorsOf(control);
    return given && given->background().isValid() ? given->background() : shownColor(control, &ColorRoles::background);
}
