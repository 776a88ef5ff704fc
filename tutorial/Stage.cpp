#include "tutorial/Stage.h"

#include "tutorial/TutorialText.h"
#include "tutorial/WindowRequests.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QPainter>
#include <QScreen>

namespace {

/// Covers a screen. It cannot be selected, and what it covers is no longer in the way of a direction.
class Ground : public QWidget
{
public:
    explicit Ground(Stage &stage) : stage_(stage)
    {
        setWindowFlags(Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus);
        setAttribute(Qt::WA_ShowWithoutActivating);
        setAttribute(Qt::WA_QuitOnClose, false);
        setFocusPolicy(Qt::NoFocus);
        setWindowTitle(tutorialText("Lumaroo tutorial"));
        leaveOutOfTaskBars(this);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        const QColor window = palette().color(QPalette::Window);
        QPainter(this).fillRect(rect(), window.lightness() < 128 ? window.darker(135) : window.darker(112));
    }
    /// Window managers bring what is clicked to the front.
    void mousePressEvent(QMouseEvent *) override { stage_.raise(); }
    void closeEvent(QCloseEvent *event) override
    {
        event->ignore();
        Q_EMIT stage_.askedToClose(Shape::None);
    }

private:
    Stage &stage_;
};

} // namespace

void Stage::show(const StageLayout &layout, Shape front)
{
    if (windows_.empty())
        makeWindows();
    if (grounds_.empty())
        makeGrounds();
    front_ = front;
    for (const auto &ground : grounds_)
        ground->show();
    for (const auto &window : windows_) {
        const QRect place = layout.windows.at(size_t(window->shape()));
        window->move(place.topLeft());
        window->resize(place.size());
    }
    raise();
}

void Stage::raise()
{
    for (const auto &ground : grounds_)
        ground->raise();
    // The star under the square, unless it is the one to be seen. To some window managers the last one to be raised is
    // the active one.
    for (const Shape shape : {Shape::Star, Shape::Square, Shape::Triangle, Shape::Circle, front_}) {
        window(shape)->show();
        window(shape)->raise();
    }
    turnTo(window(front_));
}

void Stage::hide()
{
    for (const auto &window : windows_)
        window->hide();
    for (const auto &ground : grounds_)
        ground->hide();
}

void Stage::hide(Shape shape)
{
    if (shape != Shape::None)
        window(shape)->hide();
}

Shape Stage::shapeOf(const QWindow *window) const
{
    for (const auto &one : windows_) {
        if (window && one->windowHandle() == window)
            return one->shape();
    }
    return Shape::None;
}

void Stage::setDescription(const QString &description)
{
    for (const auto &window : windows_)
        window->setAccessibleDescription(description);
}

void Stage::makeWindows()
{
    for (int i = 0; i < shapeCount; ++i) {
        windows_.push_back(std::make_unique<PracticeWindow>(Shape(i)));
        PracticeWindow *const window = windows_.back().get();
        connect(window, &PracticeWindow::askedToClose, this, [this, window] { Q_EMIT askedToClose(window->shape()); });
        connect(window, &PracticeWindow::guideWanted, this, &Stage::guideWanted);
    }
}

void Stage::makeGrounds()
{
    for (const QScreen *screen : QGuiApplication::screens()) {
        grounds_.push_back(std::make_unique<Ground>(*this));
        grounds_.back()->setGeometry(screen->availableGeometry());
    }
}
