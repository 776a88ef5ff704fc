#pragma once

#include "platform/appkit/Export.h"

#include <QScrollArea>

/// A page whose content is one column in its middle, no wider than reads well. Where the page is too small for it, the
/// column scrolls.
class LM_APPKIT ColumnPage : public QScrollArea
{
    Q_OBJECT
    Q_PROPERTY(QString sideBySide READ sideBySide WRITE setSideBySide)

public:
    explicit ColumnPage(QWidget *parent = nullptr);

    /// What is comfortable; the column is not measured for it.
    QSize sizeHint() const override;

    /// The name of the column's layout whose items stand side by side where the page is wide enough for that, and
    /// below each other where it is not.
    QString sideBySide() const { return sideBySide_; }
    void setSideBySide(const QString &layout) { sideBySide_ = layout; }

protected:
    void resizeEvent(QResizeEvent *event) override;
    bool event(QEvent *event) override;

private:
    void fitColumn();
    void turnSideBySide();

    QString sideBySide_;
};
