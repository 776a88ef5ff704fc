// The options of the behaviour page, as a user changes them in the real window: what is stored, what is announced, and
// what else changes.

#include "PaneOnRealStore.h"
#include "Wait.h"

#include "KTXConstants.h"
#include "platform/foundation/propertylists/PropertyList.h"

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
};

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

TEST_F(PaneBehaviour, activatingWithADoubleClickForcesTheMatrixToo)
{
    showPage();
    click(cell(75));
    bus().clear();
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
    click(cell(75));
    bus().clear();
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
    for (const int cellTag : {75, 74, 75}) {
        const QVariantMap before = store().domain();
        click(cell(cellTag));
        expectStored(before, {{KTXPersistentDoubleClick, cellTag == 74}});
    }
}

TEST_F(PaneBehaviour, everyTagOfACheckBoxStoresItsRowOfTheTableAndNoOtherDoes)
{
    showPage();
    const QMap<int, QString> keys{
        {30, KTXHWrap}, {31, KTXVWrap}, {70, KTXAutoRepeat}, {73, KTXAnimate}, {74, KTXActivateDoubleClick}};
    for (int checkBoxTag = -1; checkBoxTag <= 100; ++checkBoxTag) {
        QCheckBox checkBox;
        checkBox.setProperty("tag", checkBoxTag);
        for (const bool isOn : {true, false}) {
            checkBox.setChecked(isOn);
            const QVariantMap before = store().domain();
            pane().enableChecked(&checkBox);
            if (!keys.contains(checkBoxTag)) {
                expectNothing(before);
                continue;
            }
            QVariantMap changes{{keys[checkBoxTag], isOn}};
            if (checkBoxTag == 74 && isOn)
                changes.insert(KTXPersistentDoubleClick, true);
            expectStored(before, changes);
        }
    }
}

TEST_F(PaneBehaviour, everyTagOfAnItemStoresItsRowOfTheTableAndNoOtherDoes)
{
    showPage();
    QComboBox popUp;
    for (int itemTag = -1; itemTag <= 100; ++itemTag) {
        popUp.clear();
        popUp.addItem("Item", itemTag);
        const QVariantMap before = store().domain();
        pane().enableChecked(&popUp);
        const auto item =
            std::find_if(items.begin(), items.end(), [itemTag](const Item &known) { return known.tag == itemTag; });
        if (item == items.end())
            expectNothing(before);
        else
            expectStored(before, {{item->key, item->value}});
    }
}

TEST_F(PaneBehaviour, everyTagOfAMatrixCellButTheFirstStandsForNoDoubleClick)
{
    showPage();
    for (int cellTag = -1; cellTag <= 100; ++cellTag) {
        NSMatrix matrix;
        auto *only = new QRadioButton(&matrix);
        only->setProperty("tag", cellTag);
        matrix.adoptCells();
        only->setChecked(true);
        const QVariantMap before = store().domain();
        pane().updatePersistentState(&matrix);
        expectStored(before, {{KTXPersistentDoubleClick, cellTag == 74}});
    }
    const QVariantMap before = store().domain();
    NSMatrix empty;
    pane().updatePersistentState(&empty);
    expectStored(before, {{KTXPersistentDoubleClick, false}});
}

TEST_F(PaneBehaviour, aSenderOfAnotherKindStoresAndAnnouncesNothing)
{
    showPage();
    const QVariantMap before = store().domain();
    QComboBox popUp;
    pane().enableChecked(&popUp);
    popUp.addItem("Without a tag");
    pane().enableChecked(&popUp);
    QWidget view;
    for (QObject *sender : QObjectList{control("tabbedView"), cell(75), &view, nullptr})
        pane().enableChecked(sender);
    expectNothing(before);
}
