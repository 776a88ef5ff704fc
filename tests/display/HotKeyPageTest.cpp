// The hot key page: which view a tag finds, and how the keys of all eleven rows come into their fields.

#include "LoadedWindow.h"
#include "Wait.h"
#include "platform/appkit/controls/ConflictMarker.h"
#include "platform/appkit/controls/Controls.h"

#include <QLabel>
#include <QLineEdit>
#include <QTabWidget>

namespace {

constexpr int hotKeyPage = 1;
constexpr int rows = 11;
constexpr int movementRows = 5;

class TheHotKeyPage : public testing::Test
{
protected:
    QWidget *box(int row) const
    {
        return window.find(row < movementRows ? QStringLiteral("movementBox") : QStringLiteral("cancelBox"));
    }

    template <typename T>
    T *viewInBox(int row, int viewTag) const
    {
        for (T *view : box(row)->findChildren<T *>(Qt::FindDirectChildrenOnly)) {
            if (tag(view) == viewTag)
                return view;
        }
        return nullptr;
    }
    QLineEdit *field(int row) const { return viewInBox<QLineEdit>(row, row); }
    ConflictMarker *marker(int row) const { return viewInBox<ConflictMarker>(row, row + 5); }

    QList<QRect> fieldPlaces() const
    {
        QList<QRect> places;
        for (int row = 0; row < rows; ++row)
            places += QRect(field(row)->mapTo(window.root(), QPoint()), field(row)->size());
        return places;
    }

    LoadedWindow window;
};

TEST_F(TheHotKeyPage, hasAPlainFieldAndAMarkerForEachRow)
{
    for (int row = 0; row < rows; ++row) {
        ASSERT_TRUE(field(row)) << row;
        EXPECT_EQ(field(row)->metaObject(), &QLineEdit::staticMetaObject) << row;
        EXPECT_EQ(field(row)->property("delegate").toString(), QStringLiteral("owner")) << row;
        ASSERT_TRUE(marker(row)) << row;
    }
    EXPECT_EQ(window.root()->findChildren<ConflictMarker *>().size(), rows);
}

TEST_F(TheHotKeyPage, hasAllMarkersBeforeAllFieldsInEachBox)
{
    for (const int row : {0, movementRows}) {
        bool sawField = false;
        for (const QObject *child : box(row)->children()) {
            sawField = sawField || qobject_cast<const QLineEdit *>(child);
            EXPECT_FALSE(sawField && qobject_cast<const ConflictMarker *>(child)) << child->objectName().toStdString();
        }
    }
}

TEST_F(TheHotKeyPage, findsTheFieldsOfTheMovementKeysAndThenTheMarkersByTag)
{
    QWidget *root = window.root();
    for (int row = 0; row < movementRows; ++row)
        EXPECT_EQ(viewWithTag(root, row), field(row)) << row;
    for (int row = 0; row < rows; ++row)
        EXPECT_EQ(viewWithTag(root, row + 5), marker(row)) << row;
}

TEST_F(TheHotKeyPage, findsTheSameViewsWhicheverPageIsShown)
{
    window.show();
    auto *tabbedView = window.find<QTabWidget>(QStringLiteral("tabbedView"));
    for (int page = tabbedView->count() - 1; page >= 0; --page) {
        window.showPage(page);
        EXPECT_EQ(viewWithTag(window.root(), 4), field(4)) << page;
        EXPECT_EQ(viewWithTag(window.root(), 10), marker(5)) << page;
    }
}

TEST_F(TheHotKeyPage, showsAllElevenKeysWhenTheViewsTaggedZeroToTenGetThem)
{
    for (int row = 0; row < rows; ++row)
        setStringValue(viewWithTag(window.root(), row), QStringLiteral("key %1").arg(row));
    for (int row = 0; row < rows; ++row)
        EXPECT_EQ(field(row)->text(), QStringLiteral("key %1").arg(row));
}

TEST_F(TheHotKeyPage, showsAKeyAgainThatWasTypedOverWhenItIsReadAgain)
{
    setStringValue(viewWithTag(window.root(), 9), QStringLiteral("Escape"));
    field(9)->setText(QStringLiteral("X"));
    setStringValue(viewWithTag(window.root(), 9), QStringLiteral("Escape"));
    EXPECT_EQ(field(9)->text(), QStringLiteral("Escape"));
}

TEST_F(TheHotKeyPage, startsWithoutAWarning)
{
    window.show();
    window.showPage(hotKeyPage);
    for (int row = 0; row < rows; ++row)
        EXPECT_FALSE(marker(row)->isVisible()) << row;
}

TEST_F(TheHotKeyPage, movesNoFieldWhenAWarningComes)
{
    window.show();
    window.showPage(hotKeyPage);
    const QList<QRect> before = fieldPlaces();
    for (int row = 0; row < rows; ++row)
        marker(row)->show();
    runPendingEvents();
    EXPECT_EQ(fieldPlaces(), before);
}

TEST_F(TheHotKeyPage, standsTheMovementKeysAsTheyActAlsoWhenMirrored)
{
    for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        window.root()->setLayoutDirection(direction);
        window.show();
        window.showPage(hotKeyPage);
        const QPoint under = field(4)->geometry().center();
        EXPECT_LT(field(0)->geometry().bottom(), field(4)->geometry().top());
        EXPECT_EQ(field(0)->geometry().center().x(), under.x());
        EXPECT_GT(field(1)->geometry().left(), field(4)->geometry().right());
        EXPECT_EQ(field(1)->geometry().center().y(), under.y());
        EXPECT_GT(field(2)->geometry().top(), field(4)->geometry().bottom());
        EXPECT_EQ(field(2)->geometry().center().x(), under.x());
        EXPECT_LT(field(3)->geometry().right(), field(4)->geometry().left());
        EXPECT_EQ(field(3)->geometry().center().y(), under.y());
    }
}

TEST_F(TheHotKeyPage, hasKeysOfOneSize)
{
    window.show();
    window.showPage(hotKeyPage);
    for (int row = 1; row < rows; ++row)
        EXPECT_EQ(field(row)->size(), field(0)->size()) << row;
}

TEST_F(TheHotKeyPage, letsAKeyShowItsBackground)
{
    window.show();
    window.showPage(hotKeyPage);
    setBackgroundColor(field(6), Qt::magenta);
    const QImage shown = field(6)->grab().toImage();
    EXPECT_EQ(shown.pixelColor(shown.width() / 8, shown.height() / 2), QColor(Qt::magenta));
}

} // namespace
