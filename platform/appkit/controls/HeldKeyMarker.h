#pragma once

#include "platform/appkit/Export.h"
#include "platform/appkit/controls/AddedDescription.h"

#include <QWidget>

/// The mark on a hot key field whose combination another program holds: a sign on the field's corner, which lets clicks
/// through. `field` is the field's name, a view in the same one; it tells an assistive tool the reason. `row` is the
/// field's in the hot key table.
class LM_APPKIT HeldKeyMarker : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString field MEMBER field_)
    Q_PROPERTY(int row MEMBER row_)

public:
    explicit HeldKeyMarker(QWidget *parent = nullptr);

    int row() const { return row_; }
    /// Shows with a reason, and hides without.
    void setReason(const QString &reason);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString field_;
    int row_ = -1;
    AddedDescription description_;
};
