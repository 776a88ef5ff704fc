#include "platform/appkit/controls/internal/LogicalColors.h"

#include "platform/appkit/colors/ColorMixing.h"
#include "platform/appkit/controls/StyledLabel.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QEvent>
#include <QGuiApplication>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QWidget>
#include <algorithm>

namespace {

constexpr double leastContrast = 3; // of a line of large text
constexpr double leastContrastOfRed = 4.5;

bool isField(const QWidget *control)
{
    return qobject_cast<const QLineEdit *>(control) || qobject_cast<const QAbstractScrollArea *>(control)
        || qobject_cast<const QAbstractSpinBox *>(control);
}

/// The colour of the control's kind here, whatever the control itself was given.
QColor ownColor(const QWidget *control, QPalette::ColorRole role)
{
    const QWidget *parent = control->parentWidget();
    return (parent ? parent->palette() : QGuiApplication::palette()).color(role);
}

bool isNamed(const QColor &color, Qt::GlobalColor name)
{
    return color.rgba() == QColor(name).rgba();
}

/// As near to a colour as reads on a background.
QColor readable(const QColor &color, const QColor &background, const QColor &ownText, double contrast)
{
    constexpr float step = 0.05f;
    float share = 0;
    while (share < 1 && contrastRatio(mixed(color, ownText, share), background) < contrast)
        share += step;
    return share == 0 ? color : mixed(color, ownText, std::min(share, 1.0f));
}

bool isDark(const QColor &color)
{
    return contrastRatio(color, Qt::white) > contrastRatio(color, Qt::black);
}

} // namespace

ColorRoles colorRolesOf(const QWidget *control)
{
    if (isField(control))
        return {QPalette::Text, QPalette::Base};
    if (qobject_cast<const QAbstractButton *>(control) || qobject_cast<const QComboBox *>(control))
        return {QPalette::ButtonText, QPalette::Button};
    return {QPalette::WindowText, QPalette::Window};
}

LogicalColors::LogicalColors(QWidget *control) : QObject(control), control_(control)
{
    control->installEventFilter(this);
}

LogicalColors &LogicalColors::of(QWidget *control)
{
    auto *known = control->findChild<LogicalColors *>(QString(), Qt::FindDirectChildrenOnly);
    return known ? *known : *new LogicalColors(control);
}

const LogicalColors *LogicalColors::existing(const QWidget *control)
{
    return control->findChild<const LogicalColors *>(QString(), Qt::FindDirectChildrenOnly);
}

void LogicalColors::setText(const QColor &text)
{
    text_ = text;
    apply();
}

void LogicalColors::setBackground(const QColor &background)
{
    background_ = background;
    text_ = isDark(background) ? Qt::white : Qt::black;
    if (colorRolesOf(control_).background == QPalette::Window)
        control_->setAutoFillBackground(true);
    apply();
}

QColor LogicalColors::drawnBackground() const
{
    const ColorRoles roles = colorRolesOf(control_);
    if (!background_.isValid())
        return ownColor(control_, roles.background);
    if (isNamed(background_, Qt::white))
        return ownColor(control_, QPalette::Base);
    return isNamed(background_, Qt::black) ? ownColor(control_, roles.text) : background_;
}

QColor LogicalColors::drawnText(const QColor &ground) const
{
    const QColor own = ownColor(control_, colorRolesOf(control_).text);
    // On a colour that was chosen, black and white are themselves.
    const bool isOnOwnGround = !background_.isValid() || ground != background_;
    if (isNamed(text_, Qt::red))
        return readable(text_, ground, own, leastContrastOfRed);
    if (isOnOwnGround && isNamed(text_, Qt::black))
        return readable(own, ground, isDark(ground) ? Qt::white : Qt::black, leastContrast);
    if (isOnOwnGround && isNamed(text_, Qt::white))
        return readable(ownColor(control_, QPalette::Base), ground, own, leastContrast);
    return readable(text_, ground, isDark(ground) ? Qt::white : Qt::black, leastContrast);
}

void LogicalColors::apply()
{
    const QScopedValueRollback<bool> guard(applying_, true);
    const ColorRoles roles = colorRolesOf(control_);
    const QColor ground = drawnBackground();
    QPalette palette = control_->palette();
    if (background_.isValid())
        palette.setColor(roles.background, ground);
    if (text_.isValid())
        palette.setColor(roles.text, drawnText(ground));
    if (palette != control_->palette())
        control_->setPalette(palette);
}

bool LogicalColors::eventFilter(QObject *control, QEvent *event)
{
    const bool isOfPalette = event->type() == QEvent::PaletteChange || event->type() == QEvent::ParentChange;
    if (control == control_ && isOfPalette && !applying_)
        apply();
    return false;
}
