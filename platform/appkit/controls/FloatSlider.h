#pragma once

#include "platform/appkit/Export.h"

#include <QSlider>

/// A slider whose value is a number of its own, not a position: what code sets stays exact, what the user moves falls
/// on a step. Assistive technology is told the value, too.
class LM_APPKIT FloatSlider : public QSlider
{
    Q_OBJECT
    Q_PROPERTY(double minimum READ minimum WRITE setMinimum)
    Q_PROPERTY(double maximum READ maximum WRITE setMaximum)
    Q_PROPERTY(double step READ step WRITE setStep)
    Q_PROPERTY(double value READ value WRITE setValue)
    Q_PROPERTY(QString valueFormat READ valueFormat WRITE setValueFormat)

public:
    explicit FloatSlider(QWidget *parent = nullptr);

    double minimum() const { return minimum_; }
    void setMinimum(double minimum);
    double maximum() const { return maximum_; }
    void setMaximum(double maximum);
    double step() const { return step_; }
    void setStep(double step);

    /// Always between minimum and maximum; no number reads as the minimum.
    double value() const;
    /// Sends no valueChosen. Does nothing while the user drags: the end of the drag replaces it anyway.
    void setValue(double value);
    /// As a user who can name a number chooses it, bounded: sends valueChosen unless it is the value already. No
    /// number, and any during a drag, is ignored.
    void chooseValue(double value);

    /// The value in words, with its unit: "%1" stands for the number. Empty for a number without a unit.
    QString valueFormat() const { return valueFormat_; }
    void setValueFormat(const QString &format) { valueFormat_ = format; }
    /// The value so, in the user's notation and with as many decimals as the step has.
    QString spokenValue() const;

Q_SIGNALS:
    /// The user has chosen a value: at each key, wheel step and click, and at the end of a drag.
    void valueChosen();
    /// The value is another one, by whomever, during a drag too.
    void showsAnotherValue();

private:
    double valueAtPosition(int position) const;
    int lastPosition() const;
    int decimals() const;
    void showValue();
    void valueChangedFrom(double before);
    void positionChanged(int position);
    void actionWasTriggered();
    void dragEnded();

    double minimum_ = 0;
    double maximum_ = 1;
    double step_ = 0.01;
    double value_ = 0;
    QString valueFormat_;
    bool followsCode_ = false;
    bool movedInDrag_ = false;
};
