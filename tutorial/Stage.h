#pragma once

#include "tutorial/PracticeWindow.h"
#include "tutorial/StageLayout.h"

#include <QObject>
#include <memory>
#include <vector>

/// The windows to practise with, on a ground that keeps all other programs' windows out of the way meanwhile.
class Stage : public QObject
{
    Q_OBJECT

public:
    Stage() = default;

    /// Shows the windows as a step needs them, and makes one of them the active one.
    void show(const StageLayout &layout, Shape front);
    void hide();
    void hide(Shape shape);
    /// Brings all of it before other programs' windows, with the window in front that was there.
    void raise();
    bool isShown() const { return !grounds_.empty() && grounds_.front()->isVisible(); }
    /// Which of the windows this is.
    Shape shapeOf(const QWindow *window) const;
    /// What assistive programs tell of each window.
    void setDescription(const QString &description);

Q_SIGNALS:
    void askedToClose(Shape shape);
    void guideWanted();

private:
    void makeWindows();
    void makeGrounds();
    PracticeWindow *window(Shape shape) const { return windows_.at(size_t(shape)).get(); }

    std::vector<std::unique_ptr<QWidget>> grounds_; ///< one on each screen
    std::vector<std::unique_ptr<PracticeWindow>> windows_; ///< by shape
    Shape front_ = Shape::Circle;
};
