#include "platform/appkit/ConflictMarker.h"

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
