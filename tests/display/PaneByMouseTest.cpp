// The behaviour page by a real mouse: sliders are dragged and turned with the wheel, items chosen from opened pop-ups,
// and a colour is dragged onto the colour well.

#include "KeyPress.h"
#include "OpenAlert.h"
#include "PaneOnRealStore.h"
#include "Wait.h"

#include "KTXConstants.h"
#include "platform/appkit/colors/NSColorWell.h"
#include "platform/appkit/colors/SystemColors.h"
#include "platform/appkit/controls/FloatSlider.h"
#include "platform/foundation/colors/NSArchiver.h"
#include "platform/foundation/propertylists/PropertyList.h"

#include <QAbstractItemView>
#include <QClipboard>
#include <QComboBox>
#include <QDrag>
#include <QGuiApplication>
#include <QMimeData>
#include <QMouseEvent>
#include <QStyleOptionSlider>
#include <QTimer>
#include <cstdlib>
#include <linux/input-event-codes.h>
#include <xcb/xcb.h>

namespace {

class PaneByMouse : public PaneOnRealStore
{
protected:
    void showPage()
    {
        store().set(KTXFirstLaunch, QVariant(true));
        showPane();
        selectTabViewItemAtIndex(control("tabbedView"), 2);
        ASSERT_TRUE(waitUntil([this] { return control("overlayColorWell")->isVisible(); }));
        runPendingEvents();
        rememberStore();
    }

    void rememberStore()
    {
        before = store().domain();
        bus().clear();
    }
    /// Exactly these keys have changed since; the agent was told so often.
    void expectStored(const QVariantMap &changes, int announcements)
    {
        before.insert(changes);
        EXPECT_TRUE(isEqualPropertyList(store().domain(), before)) << changes.keys().join(u' ').toStdString();
        const QList<BusNotification> expected(announcements, {KTXLMPrefsChanged, KTXLMAppID, {}, true});
        EXPECT_EQ(bus().notifications(), expected);
        rememberStore();
    }

    FloatSlider *slider(const char *name) { return control<FloatSlider>(name); }
    static QPoint knob(const FloatSlider *slider)
    {
        QStyleOptionSlider option;
        option.initFrom(slider);
        option.orientation = Qt::Horizontal;
        option.maximum = static_cast<const QSlider *>(slider)->maximum();
        option.sliderPosition = option.sliderValue = slider->sliderPosition();
        const QRect place =
            slider->style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, slider);
        return slider->mapToGlobal(place.center());
    }
    /// Drags a slider's knob by so many pixels, in two moves; what is stored and announced on the way is nothing.
    void drag(FloatSlider *slider, int pixels)
    {
        bringIntoSight(slider);
        const QPoint start = knob(slider);
        movePointerTo(start);
        mouseDown();
        ASSERT_TRUE(waitUntil([&] { return slider->isSliderDown(); }));
        for (const int share : {2, 1}) {
            const double last = slider->value();
            movePointerTo(start + QPoint(pixels / share, 0));
            ASSERT_TRUE(waitUntil([&] { return slider->value() != last; }));
        }
        expectStored({}, 0);
        mouseUp();
        ASSERT_TRUE(waitUntil([&] { return !slider->isSliderDown(); }));
    }

    /// A pop-up that has closed has the pointer until the server knows.
    static void waitForToolkit()
    {
        xcb_connection_t *const server = qGuiApp->nativeInterface<QNativeInterface::QX11Application>()->connection();
        std::free(xcb_get_input_focus_reply(server, xcb_get_input_focus(server), nullptr));
    }
    /// Opens a pop-up and clicks on its item with a tag.
    void choose(const char *name, int itemTag)
    {
        auto *popUp = control<QComboBox>(name);
        bringIntoSight(popUp);
        clickAt(popUp->mapToGlobal(popUp->rect().center()));
        QAbstractItemView *list = popUp->view();
        ASSERT_TRUE(waitUntil([&] { return list->isVisible() && list->window()->windowHandle()->isExposed(); }));
        const QModelIndex item = popUp->model()->index(popUp->findData(itemTag), 0);
        clickAt(list->viewport()->mapToGlobal(list->visualRect(item).center()));
        ASSERT_TRUE(waitUntil([&] { return !list->isVisible() && selectedItemTag(popUp) == itemTag; })) << itemTag;
        waitForToolkit();
    }

    NSColorWell *well() { return control<NSColorWell>("overlayColorWell"); }
    /// The well shows a colour that was taken from outside; it is stored and was announced.
    void expectTaken(const QColor &color)
    {
        EXPECT_EQ(liveColor(well()->color()), color);
        const QByteArray archive = NSArchiver::archivedDataWithRootObject(well()->color());
        expectStored({{KTXOverlayColor, archive}}, 1);
        EXPECT_EQ(liveColor(NSUnarchiver::unarchiveObjectWithData(archive)), color);
        EXPECT_TRUE(isEnabled(control("defaultColorButton")));
    }

    QVariantMap before;
};

/// A patch of a colour that can be dragged to elsewhere.
class ColorPatch : public QWidget
{
public:
    explicit ColorPatch(const QColor &color) : color_(color)
    {
        setGeometry(5, 30, 60, 60);
        setAttribute(Qt::WA_ShowWithoutActivating);
    }

protected:
    void mouseMoveEvent(QMouseEvent *) override
    {
        auto *offered = new QMimeData;
        offered->setColorData(color_);
        auto *drag = new QDrag(this);
        drag->setMimeData(offered);
        drag->exec(Qt::CopyAction);
    }

private:
    QColor color_;
};

/// Lets go of the mouse once what is dragged is above a widget.
class LettingGo : public QObject
{
public:
    explicit LettingGo(QWidget *above) { above->installEventFilter(this); }
    bool hasDropped = false;

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::DragMove && !std::exchange(isLetGo_, true))
            QTimer::singleShot(0, this, [] { mouseUp(); });
        hasDropped = hasDropped || event->type() == QEvent::Drop;
        return false;
    }

private:
    bool isLetGo_ = false;
};

} // namespace

TEST_F(PaneByMouse, aSliderDraggedIsStoredWhenItIsLetGoAndAnnouncesNothing)
{
    showPage();
    FloatSlider *delay = slider("repeatDelaySlider");
    drag(delay, 60);
    EXPECT_GT(delay->value(), 0.2);
    EXPECT_LT(delay->value(), 1.8);
    expectStored({{KTXInitialDelay, float(delay->value())}}, 0);
    FloatSlider *rate = slider("repeatRateSlider");
    drag(rate, -60);
    EXPECT_GT(rate->value(), 0.1);
    EXPECT_LT(rate->value(), 0.9);
    expectStored({{KTXRepeatRate, float(rate->value())}}, 0);
}

TEST_F(PaneByMouse, aSliderTurnedWithTheWheelIsStoredAtEachNotchAndAnnouncesNothing)
{
    showPage();
    const QList<std::tuple<const char *, QString, Wheel>> turns{
        {"repeatDelaySlider", KTXInitialDelay, Wheel::Up}, {"repeatRateSlider", KTXRepeatRate, Wheel::Down}};
    for (const auto &[name, key, direction] : turns) {
        FloatSlider *turned = slider(name);
        bringIntoSight(turned);
        movePointerTo(turned->mapToGlobal(turned->rect().center()));
        for (int notch = 0; notch < 2; ++notch) {
            const double last = turned->value();
            turnWheel(direction);
            ASSERT_TRUE(waitUntil([&] { return turned->value() != last; })) << name;
            EXPECT_EQ(turned->value() > last, direction == Wheel::Up) << name;
            expectStored({{key, float(turned->value())}}, 0);
        }
    }
}

TEST_F(PaneByMouse, anItemClickedInEachPopUpIsStoredAndAnnounced)
{
    showPage();
    choose("HorizontalPopup", 60);
    expectStored({{KTXHSort, QStringLiteral("Center")}}, 1);
    choose("VerticalPopup", 56);
    expectStored({{KTXVSort, QStringLiteral("BottomEdge")}}, 1);
    choose("cycleOrderPopup", 50);
    expectStored({{KTXCycleAscending, true}}, 1);
}

TEST_F(PaneByMouse, aColourDroppedOnTheWellIsStoredAndAnnounced)
{
    showPage();
    setEnabled(control("defaultColorButton"), false);
    ColorPatch patch(QColor(11, 22, 33, 128));
    patch.show();
    ASSERT_TRUE(waitUntil([&] { return patch.windowHandle()->isExposed() && !patch.pos().isNull(); }));
    LettingGo lettingGo(well());
    bringIntoSight(well());
    const QPoint start = patch.mapToGlobal(patch.rect().center());
    const QPoint end = well()->mapToGlobal(well()->rect().center());
    movePointerTo(start);
    mouseDown();
    // The drag has an event loop of its own.
    QTimer::singleShot(0, [&] {
        for (int step = 1; step <= 4; ++step)
            movePointerTo(start + (end - start) * step / 4);
    });
    EXPECT_TRUE(waitUntil([&] { return lettingGo.hasDropped; }));
    runPendingEvents();
    expectTaken(QColor(11, 22, 33, 128));
}

TEST_F(PaneByMouse, aColourPastedIntoTheWellIsStoredAndAnnounced)
{
    showPage();
    setEnabled(control("defaultColorButton"), false);
    auto *copied = new QMimeData;
    copied->setColorData(QColor(44, 55, 66, 200));
    QGuiApplication::clipboard()->setMimeData(copied);
    well()->setFocus();
    ASSERT_TRUE(waitUntil([this] { return well()->hasFocus(); }));
    pressKey(KEY_V, {KEY_LEFTCTRL});
    EXPECT_TRUE(waitUntil([this] { return liveColor(well()->color()) == QColor(44, 55, 66, 200); }));
    expectTaken(QColor(44, 55, 66, 200));
}

TEST_F(PaneByMouse, whatIsNoColourIsNotPasted)
{
    showPage();
    const NSColorRef shown = well()->color();
    QGuiApplication::clipboard()->setText(QStringLiteral("red wine"));
    well()->setFocus();
    ASSERT_TRUE(waitUntil([this] { return well()->hasFocus(); }));
    pressKey(KEY_V, {KEY_LEFTCTRL});
    pressKey(KEY_TAB); // handled after it
    ASSERT_TRUE(waitUntil([this] { return !well()->hasFocus(); }));
    EXPECT_EQ(well()->color(), shown);
    expectStored({}, 0);
}
