// What the markers beside the fields tell of a conflict, and the test behind them.

#include "PaneOnHotKeyPage.h"

#include "KTXConstants.h"

#include <QAccessible>
#include <linux/input-event-codes.h>

namespace {

constexpr int upArrow = 126;
const QString usedTwice = QStringLiteral("This key is used more than once.");
const QString usual = QStringLiteral("Press a key");

class HotKeyMarker : public PaneOnHotKeyPage
{
protected:
    HotKeyMarker() { store().set(KTXsuppressHKeysTaken, true); }
    /// What a screen reader says of a field beside its name and its key.
    QString told(int row) { return QAccessible::queryAccessibleInterface(field(row))->text(QAccessible::Description); }
    QList<int> rowsThatTellOfAConflict()
    {
        QList<int> rows;
        for (int row = Up; row < RowCount; ++row) {
            EXPECT_TRUE(told(row).endsWith(usual) && told(row).count(usedTwice) <= 1) << told(row).toStdString();
            if (told(row).contains(usedTwice))
                rows += row;
        }
        return rows;
    }
};

} // namespace

TEST_F(HotKeyMarker, explainsItself)
{
    storeKey(Right, upArrow);
    showPage();
    const auto *marker = viewWithTag(pane().mainView(), 5);
    ASSERT_TRUE(marker->isVisible());
    EXPECT_EQ(marker->toolTip(), usedTwice);
    EXPECT_EQ(marker->accessibleName(), usedTwice);
}

TEST_F(HotKeyMarker, isToldByTheFieldBesideItAsLongAsItShows)
{
    storeKey(Right, upArrow);
    showPage();
    EXPECT_EQ(rowsThatTellOfAConflict(), (QList<int>{Up, Right}));
    pane().updateHotKeyFields();
    EXPECT_EQ(rowsThatTellOfAConflict(), (QList<int>{Up, Right})) << "once only";
    pressIn(Right, KEY_B);
    EXPECT_EQ(markedRows(), QList<int>());
    EXPECT_EQ(rowsThatTellOfAConflict(), QList<int>());
    storeKey(Under, upArrow);
    pane().readUserPrefs();
    pane().updateHotKeyFields();
    EXPECT_EQ(rowsThatTellOfAConflict(), (QList<int>{Up, Under}));
}

TEST_F(HotKeyMarker, isToldByEachOfTheFieldsThatHaveOne)
{
    showPage();
    EXPECT_EQ(rowsThatTellOfAConflict(), QList<int>());
    for (int row = Up; row < RowCount; ++row) {
        QWidget *marker = viewWithTag(pane().mainView(), row + 5);
        setHidden(marker, false);
        EXPECT_EQ(rowsThatTellOfAConflict(), QList<int>{row});
        setHidden(marker, true);
    }
}

TEST_F(HotKeyMarker, isToldInTheUsersLanguage)
{
    QLocale::setDefault(QLocale(QStringLiteral("de_DE")));
    storeKey(Right, upArrow);
    showPage();
    const auto *marker = viewWithTag(pane().mainView(), 5);
    EXPECT_NE(marker->accessibleName(), usedTwice);
    EXPECT_TRUE(told(Up).startsWith(marker->accessibleName() + ' ')) << told(Up).toStdString();
    EXPECT_FALSE(told(Down).contains(marker->accessibleName()));
}

TEST_F(HotKeyMarker, aRowThatThereIsNotHasNoConflict)
{
    showPage();
    for (const int row : {-1, int(RowCount), 1000, -1000})
        EXPECT_FALSE(pane().hotKeyIsDuplicateAtIndex(row)) << row;
    pane().setKeyCodes(std::make_shared<QList<VirtualKeyCode>>(QList<VirtualKeyCode>{upArrow, upArrow}));
    EXPECT_TRUE(pane().hotKeyIsDuplicateAtIndex(Up));
    EXPECT_TRUE(pane().hotKeyIsDuplicateAtIndex(Right));
    EXPECT_FALSE(pane().hotKeyIsDuplicateAtIndex(Down)) << "a table that ends before";
    pane().setKeyCodes(nullptr);
    EXPECT_FALSE(pane().hotKeyIsDuplicateAtIndex(Up));
}
