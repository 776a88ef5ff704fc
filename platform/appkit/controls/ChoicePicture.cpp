#include "platform/appkit/controls/ChoicePicture.h"

#include "platform/appkit/controls/internal/ChoiceDrawing.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QPainter>

namespace {

constexpr int side = 40;

} // namespace

ChoicePicture::ChoicePicture(QWidget *parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize ChoicePicture::sizeHint() const
{
    return {side, side};
}

QString ChoicePicture::choice() const
{
    if (const auto *list = qobject_cast<const QComboBox *>(followed_))
        return list->property("bindingValues").toStringList().value(list->currentIndex());
    const auto *button = qobject_cast<const QAbstractButton *>(followed_);
    return button && button->isChecked() ? QStringLiteral("true") : QStringLiteral("false");
}

void ChoicePicture::follow(QObject *control)
{
    followed_ = control;
    connect(control, &QObject::destroyed, this, [this] { followed_ = nullptr; });
    if (auto *list = qobject_cast<QComboBox *>(control))
        connect(list, &QComboBox::currentIndexChanged, this, [this] { update(); });
    if (auto *button = qobject_cast<QAbstractButton *>(control))
        connect(button, &QAbstractButton::toggled, this, [this] { update(); });
}

void ChoicePicture::showEvent(QShowEvent *event)
{
    QObject *control = followed_ || control_.isEmpty() ? nullptr : window()->findChild<QWidget *>(control_);
    if (control)
        follow(control);
    QWidget::showEvent(event);
}

void ChoicePicture::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(width() / double(choiceDrawingSide), height() / double(choiceDrawingSide));
    const bool isUpright = subject_ == UpAndDown || subject_ == WrapUpright;
    // What is true from left to right is drawn once, and turned over for up and down.
    if (isUpright)
        painter.setTransform(QTransform(0, 1, 1, 0, 0, 0), true);
    const ChoiceDrawing drawing(painter, palette());
    if (subject_ == Stack)
        drawing.drawStack(choice() == QStringLiteral("true"));
    else if (subject_ == WrapSideways || subject_ == WrapUpright)
        drawing.drawWrapping(choice() == QStringLiteral("true"));
    else
        drawing.drawOrder(choice());
}
