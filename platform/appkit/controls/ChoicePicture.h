#pragma once

#include "platform/appkit/Export.h"

#include <QWidget>

/// A small drawing of what is chosen in another control of the window, the one that `control` names: a pop-up with a
/// list of `bindingValues`, or a check box. It follows that control, and the palette.
class LM_APPKIT ChoicePicture : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(Subject subject MEMBER subject_)
    Q_PROPERTY(QString control MEMBER control_)

public:
    enum Subject { LeftAndRight, UpAndDown, Stack, WrapSideways, WrapUpright };
    Q_ENUM(Subject)

    explicit ChoicePicture(QWidget *parent = nullptr);

    /// What is chosen, as it is stored.
    QString choice() const;
    QSize sizeHint() const override;

protected:
    void showEvent(QShowEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void follow(QObject *control);

    Subject subject_ = LeftAndRight;
    QString control_;
    QObject *followed_ = nullptr;
};
