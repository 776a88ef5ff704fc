#include "tutorial/TutorialApplication.h"

#include "KTXConstants.h"
#include "platform/foundation/preferences/CFPreferences.h"
#include "platform/foundation/system/NSLog.h"
#include "tutorial/WindowRequests.h"

#include <QGuiApplication>
#include <QIcon>
#include <QKeyEvent>
#include <QScreen>
#include <QWindow>

namespace {

void rememberThatItWasClosed()
{
    CFPreferencesSetAppValue(KTXTutorialDone, true, KTXLMAppID);
    if (!CFPreferencesAppSynchronize(KTXLMAppID))
        NSLog(QStringLiteral("lumaroo: tutorial: that it was closed could not be stored"));
}

} // namespace

TutorialApplication::TutorialApplication()
{
    connect(&course_, &Course::pageChanged, this, &TutorialApplication::showPage);
    connect(&course_, &Course::stageNeeded, this, &TutorialApplication::showStage);
    connect(&course_, &Course::stageNotNeeded, this, &TutorialApplication::hideStage);
    connect(&guide_, &GuideWindow::wished, this, &TutorialApplication::fulfil);
    connect(&stage_, &Stage::askedToClose, this, &TutorialApplication::handleClosing);
    connect(&stage_, &Stage::guideWanted, this, [this] {
        guide_.focusButton();
        turnTo(&guide_);
    });
    connect(qGuiApp, &QGuiApplication::focusWindowChanged, this,
        [this](const QWindow *window) { course_.windowActivated(stage_.shapeOf(window)); });
    qGuiApp->installEventFilter(this);
}

void TutorialApplication::start()
{
    guide_.setPage(course_.page());
    guide_.move(layout().guide);
    guide_.show();
    guide_.focusButton();
    turnTo(&guide_);
    QMetaObject::invokeMethod(this, &TutorialApplication::begin, Qt::QueuedConnection);
}

StageLayout TutorialApplication::layout() const
{
    const QScreen *screen = guide_.screen();
    return stageLayout(screen->availableGeometry(), guide_.size(), screen->devicePixelRatio());
}

/// Looking for the icon would hold the first window up.
void TutorialApplication::begin()
{
    guide_.setWindowIcon(QIcon::fromTheme(QGuiApplication::desktopFileName()));
    course_.begin();
}

void TutorialApplication::raise()
{
    guide_.raise();
    if (stage_.isShown())
        stage_.raise();
    else
        turnTo(&guide_);
}

void TutorialApplication::leave()
{
    rememberThatItWasClosed();
    QCoreApplication::exit(0);
}

void TutorialApplication::showPage()
{
    guide_.setPage(course_.page());
    stage_.setDescription(guide_.spokenText());
    if (!stage_.isShown())
        guide_.focusButton();
}

void TutorialApplication::showStage(Shape front)
{
    stage_.setDescription(guide_.spokenText());
    stage_.show(layout(), front);
}

void TutorialApplication::hideStage()
{
    if (!stage_.isShown())
        return;
    stage_.hide();
    turnTo(&guide_);
}

void TutorialApplication::handleClosing(Shape shape)
{
    if (course_.windowAskedToClose())
        stage_.hide(shape);
    else
        leave();
}

void TutorialApplication::fulfil(Wish wish)
{
    if (wish == Wish::Leave)
        leave();
    else
        course_.fulfil(wish);
}

/// In whichever of the windows. A window's own keys come later.
bool TutorialApplication::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() != QEvent::KeyPress || !object->isWindowType())
        return QObject::eventFilter(object, event);
    const auto *press = static_cast<QKeyEvent *>(event);
    return press->modifiers() == Qt::NoModifier && !press->isAutoRepeat() && takeKey(press->key());
}

bool TutorialApplication::takeKey(int key)
{
    switch (key) {
    case Qt::Key_Escape:
        if (!course_.takeEscape())
            leave();
        return true;
    case Qt::Key_PageDown:
        course_.fulfil(Wish::Skip);
        return true;
    case Qt::Key_PageUp:
        course_.fulfil(Wish::GoBack);
        return true;
    default:
        return false;
    }
}
