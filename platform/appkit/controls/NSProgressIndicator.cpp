#include "platform/appkit/controls/NSProgressIndicator.h"

#include "platform/appkit/controls/Controls.h"

NSProgressIndicator::NSProgressIndicator(QWidget *parent) : QProgressBar(parent)
{
    QSizePolicy policy = sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    setSizePolicy(policy);
    setTextVisible(false);
    hide();
}

void NSProgressIndicator::startAnimation()
{
    // Without bounds: nobody knows when it ends.
    setRange(0, 0);
    show();
}

void startAnimation(QObject *progressIndicator)
{
    if (auto *indicator = qobject_cast<NSProgressIndicator *>(progressIndicator))
        indicator->startAnimation();
}
