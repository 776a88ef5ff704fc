#pragma once

#include <QObject>
#include <QPointer>

class FloatSlider;
class NSBundle;
class QWidget;

/// Tells what the sliders of the key repeat come to, in words below their labels, and has the field for trying it go at
/// that beat. It finds its controls in the pane's view by their names.
class RepeatTrial : public QObject
{
    Q_OBJECT

public:
    RepeatTrial(QWidget *view, const NSBundle *bundle, QObject *parent);

    bool eventFilter(QObject *object, QEvent *event) override;

private:
    void follow(FloatSlider *slider);
    void show();
    void tell(const char *label, FloatSlider *slider, const QString &value);
    QString localized(const char *text, double number) const;

    QPointer<QWidget> view_;
    const NSBundle *bundle_;
    QPointer<FloatSlider> delay_, rate_;
};
