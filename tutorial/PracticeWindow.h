#pragma once

#include "tutorial/Steps.h"

#include <QWidget>

/// One of the windows to practise with.
class PracticeWindow : public QWidget
{
    Q_OBJECT

public:
    explicit PracticeWindow(Shape shape);

    Shape shape() const { return shape_; }

Q_SIGNALS:
    /// It stays unless it is hidden.
    void askedToClose();
    /// Tab: there is nothing here to go to.
    void guideWanted();

protected:
    void paintEvent(QPaintEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    bool focusNextPrevChild(bool next) override;

private:
    Shape shape_;
};

/// What people call a shape.
QString shapeName(Shape shape);
