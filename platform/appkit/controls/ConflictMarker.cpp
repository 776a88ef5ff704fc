#include "platform/appkit/controls/ConflictMarker.h"

#include <QEvent>
#include <QIcon>
#include <QPainter>
#include <QStyle>

ConflictMarker::ConflictMarker(QWidget *parent) : QWidget(parent)
{
    QSizePolicy policy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    policy.setRetainSizeWhenHidden(true);
    setSizePolicy(policy);
}

void ConflictMarker::setText(const QString &text)
{
    text_ = text;
    Q_EMIT textSet(text);
}

bool ConflictMarker::event(QEvent *event)
{
    if (event->type() == QEvent::ShowToParent || event->type() == QEvent::HideToParent)
        tellOfConflict(event->type() == QEvent::ShowToParent);
    return QWidget::event(event);
}

void ConflictMarker::tellOfConflict(bool isConflict)
{
    auto *field = parentWidget() && !field_.isEmpty() ? parentWidget()->findChild<QWidget *>(field_) : nullptr;
    description_.set(field, isConflict ? accessibleName() : QString());
}

QSize ConflictMarker::sizeHint() const
{
    const int extent = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
    return {extent, extent};
}

void ConflictMarker::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    style()->standardIcon(QStyle::SP_MessageBoxWarning, nullptr, this).paint(&painter, rect());
}
