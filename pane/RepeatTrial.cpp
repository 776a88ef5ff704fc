#include "pane/RepeatTrial.h"

#include "KTXConstants.h"
#include "RepeatTiming.h"
#include "pane/Controls.h"
#include "platform/appkit/controls/FloatSlider.h"
#include "platform/appkit/controls/KeyRepeatField.h"
#include "platform/foundation/bundles/NSBundle.h"

#include <QEvent>
#include <QLocale>

namespace {

constexpr int significantDigits = 2;

double inSeconds(std::chrono::milliseconds time)
{
    return std::chrono::duration<double>(time).count();
}

} // namespace

RepeatTrial::RepeatTrial(QWidget *view, const NSBundle *bundle, QObject *parent)
    : QObject(parent), view_(view), bundle_(bundle)
{
    if (!view)
        return;
    delay_ = view->findChild<FloatSlider *>(QStringLiteral("repeatDelaySlider"));
    rate_ = view->findChild<FloatSlider *>(QStringLiteral("repeatRateSlider"));
    if (!delay_ || !rate_)
        return;
    follow(delay_);
    follow(rate_);
    show();
}

void RepeatTrial::follow(FloatSlider *slider)
{
    slider->installEventFilter(this);
    connect(slider, &FloatSlider::showsAnotherValue, this, &RepeatTrial::show);
}

bool RepeatTrial::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() == QEvent::EnabledChange)
        show();
    return QObject::eventFilter(object, event);
}

/// By the same rule as the agent, whose least delay the slider does not know.
void RepeatTrial::show()
{
    if (!view_ || !delay_ || !rate_)
        return;
    const RepeatTiming timing = repeatTiming({{KTXInitialDelay, delay_->value()}, {KTXRepeatRate, rate_->value()}});
    tell("delayValueField", delay_, localized("%1 s", inSeconds(timing.delay)));
    tell("rateValueField", rate_, localized("%1 per second", 1 / inSeconds(timing.interval)));
    auto *field = view_->findChild<KeyRepeatField *>(QStringLiteral("keyRepeatField"));
    if (!field)
        return;
    field->setRepeats(rate_->isEnabled());
    field->setBeat(timing.delay, timing.interval);
}

void RepeatTrial::tell(const char *label, FloatSlider *slider, const QString &value)
{
    auto *field = view_->findChild<QWidget *>(QString::fromLatin1(label));
    setStringValue(field, value);
    setEnabled(field, slider->isEnabled());
    slider->setAccessibleDescription(value);
}

QString RepeatTrial::localized(const char *text, double number) const
{
    return bundle_->localizedStringForKeyValueTable(QString::fromLatin1(text), {}, {})
        .arg(QLocale().toString(number, 'g', significantDigits));
}
