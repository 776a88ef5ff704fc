#include "platform/appkit/controls/FloatSlider.h"

#include "platform/appkit/controls/internal/FloatSliderAccessibility.h"

#include <QLocale>
#include <QScopedValueRollback>
#include <cmath>
#include <utility>

namespace {

constexpr double mostPositions = 100000;
constexpr int mostDecimals = 6;

} // namespace

FloatSlider::FloatSlider(QWidget *parent) : QSlider(Qt::Horizontal, parent)
{
    FloatSliderAccessibility::install();
    connect(this, &QSlider::valueChanged, this, &FloatSlider::positionChanged);
    connect(this, &QSlider::sliderReleased, this, &FloatSlider::dragEnded);
    connect(this, &QSlider::actionTriggered, this, &FloatSlider::actionWasTriggered);
    showValue();
}

void FloatSlider::setMinimum(double minimum)
{
    minimum_ = minimum;
    showValue();
}

void FloatSlider::setMaximum(double maximum)
{
    maximum_ = maximum;
    showValue();
}

void FloatSlider::setStep(double step)
{
    step_ = step;
    showValue();
}

double FloatSlider::value() const
{
    // Bounded when it is read: an interface file may give the value before its bounds.
    return value_ > minimum_ ? std::fmin(value_, maximum_) : minimum_;
}

void FloatSlider::setValue(double value)
{
    // The end of a drag replaces it anyway.
    if (isSliderDown())
        return;
    const double before = this->value();
    value_ = value;
    showValue();
    valueChangedFrom(before);
}

void FloatSlider::chooseValue(double value)
{
    const double before = this->value();
    if (std::isnan(value))
        return;
    setValue(std::fmax(minimum_, std::fmin(value, maximum_)));
    if (this->value() != before)
        Q_EMIT valueChosen();
}

QString FloatSlider::spokenValue() const
{
    const QString number = QLocale().toString(value(), 'f', decimals());
    return valueFormat_.isEmpty() ? number : QString(valueFormat_).replace(QStringLiteral("%1"), number);
}

int FloatSlider::decimals() const
{
    int count = 0;
    for (double step = step_; count < mostDecimals && std::fabs(step - std::round(step)) > 1e-6; step *= 10)
        ++count;
    return count;
}

/// The toolkit tells of positions only, and of those before we know the value.
void FloatSlider::valueChangedFrom(double before)
{
    if (value() == before)
        return;
    QAccessibleValueChangeEvent event(this, value());
    QAccessible::updateAccessibility(&event);
    Q_EMIT showsAnotherValue();
}

int FloatSlider::lastPosition() const
{
    const double positions = step_ > 0 ? std::ceil((maximum_ - minimum_) / step_ - 1e-9) : 100;
    return positions >= 1 ? int(std::fmin(positions, mostPositions)) : 1;
}

double FloatSlider::valueAtPosition(int position) const
{
    if (position >= lastPosition())
        return maximum_;
    const double step =
        step_ > 0 ? std::fmax(step_, (maximum_ - minimum_) / mostPositions) : (maximum_ - minimum_) / 100;
    return minimum_ + position * step;
}

void FloatSlider::showValue()
{
    const QScopedValueRollback<bool> follows(followsCode_, true);
    const int last = lastPosition();
    const double share = maximum_ > minimum_ ? (value() - minimum_) / (valueAtPosition(1) - minimum_) : 0;
    setRange(0, last);
    setSingleStep(1);
    setPageStep(qMax(1, last / 10));
    QSlider::setValue(int(std::fmin(std::round(share), last)));
}

void FloatSlider::positionChanged(int position)
{
    if (followsCode_)
        return;
    const double before = value();
    value_ = valueAtPosition(position);
    valueChangedFrom(before);
    if (isSliderDown())
        movedInDrag_ = true;
    else
        Q_EMIT valueChosen();
}

/// A value between two steps, or beyond the bounds, is shown at the nearest position; a step that cannot go further
/// than that position reaches its value.
void FloatSlider::actionWasTriggered()
{
    const double reached = valueAtPosition(sliderPosition());
    if (isSliderDown() || sliderPosition() != QSlider::value() || value_ == reached)
        return;
    const double before = value();
    value_ = reached;
    valueChangedFrom(before);
    Q_EMIT valueChosen();
}

void FloatSlider::dragEnded()
{
    if (std::exchange(movedInDrag_, false))
        Q_EMIT valueChosen();
}
