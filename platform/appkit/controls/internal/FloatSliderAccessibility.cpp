#include "platform/appkit/controls/internal/FloatSliderAccessibility.h"

#include "platform/appkit/controls/FloatSlider.h"

namespace {

QAccessibleInterface *describe(const QString &, QObject *object)
{
    auto *slider = qobject_cast<FloatSlider *>(object);
    return slider ? new FloatSliderAccessibility(slider) : nullptr;
}

} // namespace

void FloatSliderAccessibility::install()
{
    [[maybe_unused]] static const bool isInstalled = [] {
        QAccessible::installFactory(&describe);
        return true;
    }();
}

FloatSliderAccessibility::FloatSliderAccessibility(FloatSlider *slider) : QAccessibleWidget(slider, QAccessible::Slider)
{
}

FloatSlider *FloatSliderAccessibility::slider() const
{
    return qobject_cast<FloatSlider *>(object());
}

void *FloatSliderAccessibility::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::ValueInterface)
        return static_cast<QAccessibleValueInterface *>(this);
    return QAccessibleWidget::interface_cast(type);
}

QString FloatSliderAccessibility::text(QAccessible::Text text) const
{
    const QString own = QAccessibleWidget::text(text);
    // On the bus a value is a bare number; its unit is heard in the description, unless that says what the value means.
    if (text == QAccessible::Description && own.isEmpty())
        return slider()->spokenValue();
    return text == QAccessible::Value ? slider()->spokenValue() : own;
}

QVariant FloatSliderAccessibility::currentValue() const
{
    return slider()->value();
}

void FloatSliderAccessibility::setCurrentValue(const QVariant &value)
{
    bool isNumber = false;
    const double number = value.toDouble(&isNumber);
    // As for its user, one that is switched off does not move.
    if (isNumber && slider()->isEnabled())
        slider()->chooseValue(number);
}

QVariant FloatSliderAccessibility::minimumValue() const
{
    return slider()->minimum();
}

QVariant FloatSliderAccessibility::maximumValue() const
{
    return slider()->maximum();
}

QVariant FloatSliderAccessibility::minimumStepSize() const
{
    return slider()->step();
}
