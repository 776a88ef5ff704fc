// What the pop-ups of the sort orders show when the pane reads its settings.

#include "PaneOnRealStore.h"

#include "KTXConstants.h"

namespace {

struct SortOrder
{
    const char *popUp;
    int tag;
    QString key;
    QString value;
};

class PaneSortOrderReading : public PaneOnRealStore
{
protected:
    PaneSortOrderReading() { store().set(KTXFirstLaunch, QVariant(true)); }
};

} // namespace

TEST_F(PaneSortOrderReading, leavesThePopUpAsItIsForTheCenterAndTheLeadingEdge)
{
    const QList<SortOrder> shownBefore{{"HorizontalPopup", 52, KTXHSort, {}}, {"HorizontalPopup", 53, KTXHSort, {}},
        {"VerticalPopup", 55, KTXVSort, {}}, {"VerticalPopup", 56, KTXVSort, {}}};
    showPane();
    for (const SortOrder &order : shownBefore) {
        for (const char *stored : {"Center", "LeadingEdge"}) {
            selectItemWithTag(control(order.popUp), order.tag);
            store().set(order.key, QVariant(stored));
            pane().readUserPrefs();
            EXPECT_EQ(selectedItemTag(control(order.popUp)), order.tag) << "it shows what it showed";
            EXPECT_EQ(store().value(order.key), QVariant(stored)) << "and stays stored";
        }
    }
}

TEST_F(PaneSortOrderReading, selectsTheItemOfAnEdgeAndOfTheFirstSelected)
{
    const QList<SortOrder> orders{{"HorizontalPopup", 52, KTXHSort, "RightEdge"},
        {"HorizontalPopup", 53, KTXHSort, "LeftEdge"}, {"HorizontalPopup", 54, KTXHSort, "FirstSelected"},
        {"VerticalPopup", 55, KTXVSort, "TopEdge"}, {"VerticalPopup", 56, KTXVSort, "BottomEdge"},
        {"VerticalPopup", 57, KTXVSort, "FirstSelected"}};
    showPane();
    for (const SortOrder &order : orders) {
        control<QComboBox>(order.popUp)->setCurrentIndex(4);
        store().set(order.key, QVariant(order.value));
        pane().readUserPrefs();
        EXPECT_EQ(selectedItemTag(control(order.popUp)), order.tag);
    }
}
