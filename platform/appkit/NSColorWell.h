#pragma once

#include "platform/appkit/Export.h"
#include "platform/foundation/NSColor.h"

#include <QAbstractButton>

/// A field that shows a colour and, when clicked, edits it in the shared colour panel.
///
/// Its `action` is performed at each change the user makes; setColor performs none.
class LM_APPKIT NSColorWell : public QAbstractButton
{
    Q_OBJECT
    Q_PROPERTY(QColor initialColor READ initialColor WRITE setInitialColor)

public:
    explicit NSColorWell(QWidget *parent = nullptr);

    NSColorRef color() const { return color_; }
    void setColor(const NSColorRef &color);

    /// The colour an interface file gives the well.
    QColor initialColor() const;
    void setInitialColor(const QColor &color);

    QSize sizeHint() const override;

Q_SIGNALS:
    void colorPicked();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void activate();
    NSColorRef color_;
};
