#pragma once

#include "tutorial/Course.h"
#include "tutorial/GuideWindow.h"
#include "tutorial/Stage.h"

/// The tutorial's windows and the way through it, together.
class TutorialApplication : public QObject
{
    Q_OBJECT

public:
    TutorialApplication();

    /// Shows the guide; the rest comes once the event loop runs.
    void start();
    /// Brings the windows before all others.
    void raise();
    /// Remembers that it was closed, and ends the program.
    void leave();

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    void begin();
    StageLayout layout() const;
    void showPage();
    void showStage(Shape front);
    void hideStage();
    void handleClosing(Shape shape);
    void fulfil(Wish wish);
    bool takeKey(int key);

    Course course_;
    Stage stage_;
    GuideWindow guide_;
};
