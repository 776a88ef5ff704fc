#pragma once

#include "platform/appkit/Export.h"
#include "platform/foundation/colors/NSColor.h"

#include <QAbstractButton>
#include <QColor>

class QMimeData;

/// A field that shows a colour and, when clicked, edits it in the shared colour panel. A colour may also be dropped on
/// it, or copied from it and pasted into it, as a colour or as its name (#rrggbb).
///
/// Its `action` is performed at each change the user makes; setColor performs none.
class LM_APPKIT NSColorWell : public QAbstractButton
{
    Q_OBJECT
    Q_PROPERTY(QColor initialColor READ initialColor WRITE setInitialColor)
    Q_PROPERTY(QString initialColorName READ initialColorName WRITE setInitialColorName)

public:
    explicit NSColorWell(QWidget *parent = nullptr);
    ~NSColorWell() override;

    NSColorRef color() const { return color_; }
    void setColor(const NSColorRef &color);

    /// The colour an interface file gives the well.
    QColor initialColor() const;
    void setInitialColor(const QColor &color);
    /// The same for one of the system's own colours, by its name; any other name changes nothing.
    QString initialColorName() const { return color_ ? color_->colorName() : QString(); }
    void setInitialColorName(const QString &name);

    /// Called by the colour panel with each colour the user picks for this well.
    void takeColorFromPanel(const NSColorRef &color);

    QSize sizeHint() const override;

Q_SIGNALS:
    void colorPicked();

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void activate();
    void takeColor(const QMimeData *offered);
    void copyColor() const;
    void describeColor();
    void paintBorder(QPainter *painter) const;
    NSColorRef color_;
};
