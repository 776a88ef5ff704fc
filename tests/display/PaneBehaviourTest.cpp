// The options of the behaviour page, as a user changes them in the real window: what is stored, what is announced, and
// what else changes.

#include "PaneOnRealStore.h"
#include "Wait.h"

#include "KTXConstants.h"
#include "platform/appkit/FloatSlider.h"
#include "platform/foundation/CFPreferences.h"
#include "platform/foundation/PropertyList.h"

#include <QCheckBox>
#include <QRadioButton>
#include <QTest>
#include <algorithm>

namespace {

constexpr int behaviourPage = 2;
constexpr auto horizontalOrder = "HorizontalPopup";
constexpr auto verticalOrder = "VerticalPopup";
constexpr auto cycleOrder = "cycleOrderPopup";

struct CheckBox
{
    const char *name;
    int tag;
    QString key;
};

const QList<CheckBox> checkBoxes{{"animateButton", 73, KTXAnimate}, {"enableHorizontalWrapButton", 30, KTXHWrap},
    {"enableVerticalWrapButton", 31, KTXVWrap}, {"keyRepeatButton", 70, KTXAutoRepeat}};

struct Item
{
    const char *popUp;
    int tag;
    QString key;
    QVariant value;
};

const QList<Item> items{{cycleOrder, 50, KTXCycleAscending, true}, {cycleOrder, 51, KTXCycleAscending, false},
    {horizontalOrder, 52, KTXHSort, "RightEdge"}, {horizontalOrder, 53, KTXHSort, "LeftEdge"},
    {horizontalOrder, 54, KTXHSort, "FirstSelected"}, {horizontalOrder, 58, KTXHSort, "LeadingEdge"},
    {horizontalOrder, 60, KTXHSort, "Center"}, {verticalOrder, 55, KTXVSort, "TopEdge"},
    {verticalOrder, 56, KTXVSort, "BottomEdge"}, {verticalOrder, 57, KTXVSort, "FirstSelected"},
    {verticalOrder, 59, KTXVSort, "LeadingEdge"}, {verticalOrder, 61, KTXVSort, "Center"}};

class PaneBehaviour : public PaneOnRealStore
{
protected:
    PaneBehaviour() { store().set(KTXFirstLaunch, QVariant(true)); }

    void showPage()
    {
        showPane();
        selectTabViewItemAtIndex(control("tabbedView"), behaviourPage);
        runPendingEvents();
        bus().clear();
    }

    void click(QWidget *button) { QTest::mouseClick(button, Qt::LeftButton, {}, {8, button->height() / 2}); }
    void click(const char *name) { click(control(name)); }
    QAbstractButton *cell(int cellTag) { return control<NSMatrix>("persistentModeMatrix")->cellWithTag(cellTag); }

    /// Chooses an item by keyboard, coming from its neighbour.
    void choose(const char *popUp, int itemTag)
    {
        auto *box = control<QComboBox>(popUp);
        ASSERT_TRUE(selectItemWithTag(box, itemTag));
        const int index = box->currentIndex();
        const bool isFirst = index == 0;
        box->setCurrentIndex(isFirst ? 1 : index - 1);
        QTest::keyClick(box, isFirst ? Qt::Key_Up : Qt::Key_Down);
        ASSERT_EQ(selectedItemTag(box), itemTag);
    }

    /// Exactly one key has changed since `before`, and each change was announced exactly once.
    void expectStored(QVariantMap before, const QVariantMap &changes)
    {
        before.insert(changes);
        EXPECT_TRUE(isEqualPropertyList(store().domain(), before)) << qPrintable(changes.firstKey());
        EXPECT_EQ(bus().notifications(), (QList<BusNotification>{{KTXLMPrefsChanged, KTXLMAppID, {}, true}}));
        bus().clear();
    }

    void expectNothing(const QVariantMap &before)
    {
        EXPECT_TRUE(isEqualPropertyList(store().domain(), before));
        EXPECT_EQ(bus().names(), QStringList());
    }

    void expectEnabled(const QStringList &names, bool enabled)
    {
        for (const QString &name : names)
            EXPECT_EQ(isEnabled(control(qPrintable(name))), enabled) << qPrintable(name);
    }
};

const QStringList sliders{"repeatDelaySlider", "repeatRateSlider"};
const QStringList sliderLabels{"delayTextField", "repeatTextField"};

} // namespace

TEST_F(PaneBehaviour, eachCheckBoxStoresItsStateAndAnnouncesIt)
{
    showPage();
    for (const CheckBox &checkBox : checkBoxes) {
        ASSERT_EQ(tag(control(checkBox.name)), checkBox.tag);
        for (int times = 0; times < 2; ++times) {
            const QVariantMap before = store().domain();
            click(checkBox.name);
            const bool isOn = state(control(checkBox.name)) == NSOnState;
            EXPECT_NE(isOn, before.value(checkBox.key).toBool());
            expectStored(before, {{checkBox.key, isOn}});
        }
    }
}

TEST_F(PaneBehaviour, eachItemOfAPopUpStoresItsValueAndAnnouncesIt)
{
    showPage();
    for (const Item &item : items) {
        const QVariantMap before = store().domain();
        choose(item.popUp, item.tag);
        expectStored(before, {{item.key, item.value}});
    }
}

TEST_F(PaneBehaviour, choosingTheSameItemAgainAnnouncesItAgain)
{
    showPage();
    const QVariantMap before = store().domain();
    pane().enableChecked(control(horizontalOrder));
    expectStored(before, {{KTXHSort, "FirstSelected"}});
}

TEST_F(PaneBehaviour, anOrderThatStartsAtTheCenterOrTheLeadingEdgeIsNotSelectedOnReading)
{
    showPage();
    for (const int itemTag : {60, 58}) {
        choose(horizontalOrder, itemTag);
        selectItemWithTag(control(horizontalOrder), 52);
        pane().readUserPrefs();
        EXPECT_EQ(selectedItemTag(control(horizontalOrder)), 52) << "it shows what it showed";
    }
    EXPECT_EQ(store().value(KTXHSort), QVariant("LeadingEdge"));
}

TEST_F(PaneBehaviour, activatingWithADoubleClickForcesTheMatrixToo)
{
    showPage();
    ASSERT_EQ(state(cell(75)), NSOnState);
    const QVariantMap before = store().domain();
    click("doubleClickActivateCheckBox");
    expectStored(before, {{KTXActivateDoubleClick, true}, {KTXPersistentDoubleClick, true}});
    EXPECT_EQ(state(cell(74)), NSOnState);
    EXPECT_EQ(state(cell(75)), NSOffState);
    EXPECT_FALSE(isEnabled(cell(75)));
    EXPECT_TRUE(isEnabled(cell(74)));
}

TEST_F(PaneBehaviour, noLongerActivatingWithADoubleClickOnlyFreesTheOtherCell)
{
    showPage();
    click("doubleClickActivateCheckBox");
    bus().clear();
    const QVariantMap before = store().domain();
    click("doubleClickActivateCheckBox");
    expectStored(before, {{KTXActivateDoubleClick, false}});
    EXPECT_EQ(store().value(KTXPersistentDoubleClick), QVariant(true));
    EXPECT_EQ(state(cell(74)), NSOnState);
    EXPECT_TRUE(isEnabled(cell(75)));
}

TEST_F(PaneBehaviour, anUndecidedDoubleClickCheckBoxCountsAsSetButForcesNothing)
{
    showPage();
    QCheckBox undecided;
    undecided.setProperty("tag", 74);
    undecided.setTristate(true);
    undecided.setCheckState(Qt::PartiallyChecked);
    const QVariantMap before = store().domain();
    pane().enableChecked(&undecided);
    expectStored(before, {{KTXActivateDoubleClick, true}});
    EXPECT_EQ(state(cell(75)), NSOnState);
}

TEST_F(PaneBehaviour, theMatrixStoresWhetherADoubleClickIsNeeded)
{
    showPage();
    for (const int cellTag : {74, 75, 74}) {
        const QVariantMap before = store().domain();
        click(cell(cellTag));
        expectStored(before, {{KTXPersistentDoubleClick, cellTag == 74}});
    }
}

TEST_F(PaneBehaviour, theOptionsThatAreNotReadKeepWhatTheWindowFileGivesThem)
{
    store().set({{KTXActivateDoubleClick, true}, {KTXPersistentDoubleClick, true}, {KTXCycleAscending, true}});
    showPage();
    EXPECT_EQ(state(control("doubleClickActivateCheckBox")), NSOffState);
    EXPECT_EQ(state(cell(75)), NSOnState);
    EXPECT_EQ(selectedItemTag(control(cycleOrder)), 51);
}

TEST_F(PaneBehaviour, turningKeyRepeatOffDisablesTheSlidersAtOnceAndTheLabelsAtTheNextReading)
{
    showPage();
    click("keyRepeatButton");
    expectEnabled(sliders, false);
    expectEnabled(sliderLabels, true);
    pane().readUserPrefs();
    expectEnabled(sliders + sliderLabels, false);
    click("keyRepeatButton");
    expectEnabled(sliders, true);
    expectEnabled(sliderLabels, false);
    pane().readUserPrefs();
    expectEnabled(sliders + sliderLabels, true);
}

TEST_F(PaneBehaviour, keyRepeatIsAnnouncedBeforeTheSlidersFollow)
{
    showPage();
    bool wereEnabled = false;
    struct Watch : QObject
    {
        std::function<void()> atEnabledChange;
        bool eventFilter(QObject *, QEvent *event) override
        {
            if (event->type() == QEvent::EnabledChange)
                atEnabledChange();
            return false;
        }
    } watch;
    watch.atEnabledChange = [&] {
        wereEnabled = true;
        EXPECT_EQ(bus().names(), QStringList(KTXLMPrefsChanged));
        EXPECT_EQ(store().value(KTXAutoRepeat), QVariant(false));
        EXPECT_TRUE(isEnabled(control("repeatRateSlider"))) << "the delay's slider comes first";
    };
    control("repeatDelaySlider")->installEventFilter(&watch);
    click("keyRepeatButton");
    EXPECT_TRUE(wereEnabled);
}

TEST_F(PaneBehaviour, aSenderOutsideTheTableStoresAndAnnouncesNothing)
{
    showPage();
    const QVariantMap before = store().domain();
    QComboBox popUp;
    for (int unknown = -1; unknown <= 100; ++unknown) {
        QCheckBox checkBox;
        checkBox.setProperty("tag", unknown);
        const auto hasTag = [unknown](const auto &known) { return known.tag == unknown; };
        if (unknown != 74 && std::none_of(checkBoxes.begin(), checkBoxes.end(), hasTag))
            pane().enableChecked(&checkBox);
        if (std::none_of(items.begin(), items.end(), hasTag))
            popUp.addItem("Another", unknown);
    }
    for (int index = -1; index < popUp.count(); ++index) {
        popUp.setCurrentIndex(index);
        pane().enableChecked(&popUp);
    }
    pane().enableChecked(control("tabbedView"));
    pane().enableChecked(nullptr);
    expectNothing(before);
}

TEST_F(PaneBehaviour, aSliderStoresItsExactValueAndAnnouncesNothing)
{
    showPage();
    QVariantMap expected = store().domain();
    auto *delay = control<FloatSlider>("repeatDelaySlider");
    QTest::keyClick(delay, Qt::Key_Right);
    ASSERT_GT(delay->value(), 0);
    expected.insert(KTXInitialDelay, float(delay->value()));
    expectNothing(expected);
    auto *rate = control<FloatSlider>("repeatRateSlider");
    QTest::keyClick(rate, Qt::Key_Left);
    ASSERT_LT(rate->value(), 1);
    expected.insert(KTXRepeatRate, float(rate->value()));
    expectNothing(expected);
}

TEST_F(PaneBehaviour, theSlidersReachFromTheirLeastToTheirGreatestValue)
{
    showPage();
    QTest::keyClick(control("repeatDelaySlider"), Qt::Key_End);
    EXPECT_TRUE(isEqualPropertyList(store().value(KTXInitialDelay), 2.0f));
    QTest::keyClick(control("repeatDelaySlider"), Qt::Key_Home);
    EXPECT_TRUE(isEqualPropertyList(store().value(KTXInitialDelay), 0.0f));
    QTest::keyClick(control("repeatRateSlider"), Qt::Key_Home);
    EXPECT_TRUE(isEqualPropertyList(store().value(KTXRepeatRate), 0.0f));
    QTest::keyClick(control("repeatRateSlider"), Qt::Key_End);
    EXPECT_TRUE(isEqualPropertyList(store().value(KTXRepeatRate), 1.0f));
}

TEST_F(PaneBehaviour, aSliderWritesTheDomainAsItStandsWithEverythingElseInIt)
{
    showPage();
    store().set(QStringLiteral("theirs"), QVariant(QByteArray("kept")));
    QVariantMap expected = store().domain();
    QTest::keyClick(control("repeatDelaySlider"), Qt::Key_End);
    expected.insert(KTXInitialDelay, 2.0f);
    expectNothing(expected);
}

TEST_F(PaneBehaviour, aSliderOnAnEmptyDomainStoresItsValueAlone)
{
    showPage();
    store().clear();
    pane().changeSlider(control("repeatRateSlider"));
    EXPECT_TRUE(isEqualPropertyList(store().domain(), QVariantMap{{KTXRepeatRate, 1.0f}}));
}

TEST_F(PaneBehaviour, aSliderWithAnotherTagChangesNothing)
{
    showPage();
    const QVariantMap before = store().domain();
    FloatSlider stranger;
    stranger.setProperty("tag", 73);
    pane().changeSlider(&stranger);
    expectNothing(before);
}
