#pragma once

#include <QAccessible>
#include <QAccessibleWidget>

class FloatSlider;

/// What assistive technology is told of a FloatSlider: its value, bounds and step as the numbers they are, not its
/// position. A value set through it counts as chosen by the user.
class FloatSliderAccessibility : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    /// From now on every FloatSlider of the process is described so. May be called more than once.
    static void install();

    explicit FloatSliderAccessibility(FloatSlider *slider);

    void *interface_cast(QAccessible::InterfaceType type) override;
    QString text(QAccessible::Text text) const override;

    QVariant currentValue() const override;
    void setCurrentValue(const QVariant &value) override;
    QVariant minimumValue() const override;
    QVariant maximumValue() const override;
    QVariant minimumStepSize() const override;

private:
    FloatSlider *slider() const;
};
